// SPDX-License-Identifier: MIT
#include "tests/support/test_run.h"
#include "tests/tools/photographs.h"
#include "tests/tools/thermaphoto.h"

#include <QJsonObject>

using testing::Ended;
using testing::Folder;
using testing::Shot;
using testing::tenths;
using testing::thermaphoto;

namespace {

const QString info = QStringLiteral("info");
const QString asJson = QStringLiteral("--json");

} // namespace

/// How files are laid out, and what becomes of those that are not.
class LayoutTest : public QObject
{
    Q_OBJECT

private slots:
    void layouts_data();
    void layouts();
    void bothLayoutsWithAKnownImager();
    void anotherImagersPhotograph();
    void shortFiles_data();
    void shortFiles();
    void cutOffIsNoOtherImager();
    void nothingStaysFromThePhotographBefore();
    void tooLongIsReadInPart();
};

void LayoutTest::layouts_data()
{
    QTest::addColumn<int>("model");
    QTest::addColumn<QStringList>("option");
    QTest::addColumn<int>("layout");
    const QString layout = QStringLiteral("--layout");
    for (const int model : {0, 1}) {
        QTest::addRow("layout %d, by itself", model) << model << QStringList() << model;
        QTest::addRow("layout %d, auto", model)
            << model << QStringList{layout, QStringLiteral("auto")} << model;
        QTest::addRow("layout %d, named", model)
            << model << QStringList{layout, QString::number(model)} << model;
    }
}

void LayoutTest::layouts()
{
    QFETCH(int, model);
    QFETCH(QStringList, option);
    QFETCH(int, layout);
    Shot shot = tenths();
    shot.model = model;
    const Folder folder;
    const QString path = folder.write(QStringLiteral("a.bmp"), photographBytes(shot));
    const Ended ended = thermaphoto(QStringList{info, asJson, path} + option);
    QCOMPARE(ended.status, 0);
    const QJsonObject object = ended.json()[0].toObject();
    QCOMPARE(object[QStringLiteral("layout")].toInt(), layout);
    QCOMPARE(object[QStringLiteral("centre")].toDouble(), 27.9);
    const QJsonArray markerA = model == 1 ? QJsonArray{229, 299} : QJsonArray{10, 20};
    QCOMPARE(object[QStringLiteral("markerA")].toArray(), markerA);
}

/// The gray image may happen to hold a known machine ID where the other layout has one.
void LayoutTest::bothLayoutsWithAKnownImager()
{
    QByteArray bytes = photographBytes(tenths());
    testing::put(bytes, 230969 + 10, 5, 4);
    const Folder folder;
    const Ended ended = thermaphoto({info, asJson, folder.write(QStringLiteral("a.bmp"), bytes)});
    const QJsonObject object = ended.json()[0].toObject();
    QCOMPARE(object[QStringLiteral("layout")].toInt(), 0);
    QCOMPARE(object[QStringLiteral("centre")].toDouble(), 27.9);
}

/// Left to itself the program cannot tell how to read it, and says so; whoever names the layout
/// sees what stands there.
void LayoutTest::anotherImagersPhotograph()
{
    Shot shot = tenths();
    shot.machineId = 0x105; // all four bytes count
    const Folder folder;
    const QString path = folder.write(QStringLiteral("a.bmp"), photographBytes(shot));
    const Ended automatic = thermaphoto({info, asJson, path});
    QCOMPARE(automatic.status, 1);
    QCOMPARE(automatic.json(), QJsonArray());
    QCOMPARE(automatic.output, QByteArray("[]\n"));
    QCOMPARE(automatic.errorLines().size(), 1);
    QVERIFY(automatic.errors.contains(path.toUtf8()));
    QVERIFY(automatic.errors.contains("neither layout"));
    QVERIFY(automatic.errors.contains("0: 261"));

    const Ended named =
        thermaphoto({info, asJson, QStringLiteral("--layout"), QStringLiteral("0"), path});
    QCOMPARE(named.status, 0);
    const QJsonObject object = named.json()[0].toObject();
    QCOMPARE(object[QStringLiteral("accepted")].toBool(true), false);
    QCOMPARE(object[QStringLiteral("machineId")].toInt(), 261);
    QCOMPARE(object[QStringLiteral("centre")].toDouble(), 27.9);
    for (const char* key : {"mean", "markerA", "markerB", "markerC"})
        QVERIFY(object[QLatin1String(key)].isNull());
    QVERIFY(thermaphoto({info, QStringLiteral("--layout"), QStringLiteral("0"), path})
                .output.contains("261, not accepted"));
}

void LayoutTest::shortFiles_data()
{
    QTest::addColumn<int>("model");
    QTest::addColumn<int>("bytes");
    QTest::addColumn<QString>("layout");
    QTest::addColumn<int>("status");
    const QString automatic = QStringLiteral("auto");
    QTest::newRow("empty") << 0 << 0 << automatic << 1;
    QTest::newRow("bitmap only") << 0 << 230454 << automatic << 1;
    QTest::newRow("one byte missing, layout 0") << 0 << 307791 << automatic << 1;
    QTest::newRow("just whole, layout 0") << 0 << 307792 << automatic << 0;
    QTest::newRow("one byte missing, layout 1") << 1 << 230994 << automatic << 1;
    QTest::newRow("just whole, layout 1") << 1 << 230995 << automatic << 0;
    QTest::newRow("one byte missing, layout 0 named") << 0 << 307791 << "0" << 1;
    QTest::newRow("just whole, layout 0 named") << 0 << 307792 << "0" << 0;
    QTest::newRow("one byte missing, layout 1 named") << 1 << 230994 << "1" << 1;
    QTest::newRow("just whole, layout 1 named") << 1 << 230995 << "1" << 0;
}

void LayoutTest::shortFiles()
{
    QFETCH(int, model);
    QFETCH(int, bytes);
    QFETCH(QString, layout);
    QFETCH(int, status);
    Shot shot = tenths();
    shot.model = model;
    const Folder folder;
    const QString path = folder.write(QStringLiteral("a.bmp"), photographBytes(shot).left(bytes));
    const Ended ended = thermaphoto({info, asJson, QStringLiteral("--layout"), layout, path});
    QCOMPARE(ended.status, status);
    QCOMPARE(ended.json().size(), 1 - status);
    QCOMPARE(ended.errorLines().size(), status);
}

/// The end of layout 0 is missing; what stands where layout 1 has its machine ID are gray values.
void LayoutTest::cutOffIsNoOtherImager()
{
    const Folder folder;
    const QByteArray whole = photographBytes(tenths());
    for (const int bytes : {230995, 300000, 307791}) {
        const QString path = folder.write("a.bmp", whole.left(bytes));
        const Ended ended = thermaphoto({info, path});
        QCOMPARE(ended.status, 1);
        QCOMPARE(ended.errors, "thermaphoto: " + path.toUtf8() + ": too short for a photograph: " +
                                   QByteArray::number(bytes) + "/307792 bytes\n");
    }
    Shot foreign = tenths();
    foreign.model = 1;
    foreign.machineId = 7;
    const Ended ended = thermaphoto({info, folder.write("a.bmp", photographBytes(foreign))});
    QVERIFY(ended.errors.contains("neither layout"));
    QVERIFY(ended.errors.contains("1: 7"));
}

/// A whole photograph, then one that ends before its blocks do: nothing is made up for it.
void LayoutTest::nothingStaysFromThePhotographBefore()
{
    const Folder folder;
    const QByteArray whole = photographBytes(tenths());
    folder.write(QStringLiteral("1.bmp"), whole);
    folder.write(QStringLiteral("2.bmp"), whole.left(250000));
    folder.write(QStringLiteral("3.bmp"), whole);
    const Ended ended = thermaphoto({info, asJson, QStringLiteral("--jobs=1"), folder.path()});
    QCOMPARE(ended.status, 1);
    QCOMPARE(ended.json().size(), 2);
    QCOMPARE(ended.errorLines().size(), 1);
    QVERIFY(ended.errors.contains("2.bmp"));
}

void LayoutTest::tooLongIsReadInPart()
{
    const Folder folder;
    QByteArray bytes = photographBytes(tenths());
    bytes.resize(2'000'001);
    const QString path = folder.write(QStringLiteral("a.bmp"), bytes);
    const QJsonObject object = thermaphoto({info, asJson, path}).json()[0].toObject();
    QCOMPARE(object[QStringLiteral("bytes")].toInt(), 2'000'000);
}

int main(int argc, char** argv)
{
    return testing::run<LayoutTest>(argc, argv);
}

#include "layout_test.moc"
