// SPDX-License-Identifier: MIT
#include "analysis/photograph/photograph_reader.h"
#include "analysis/report/information.h"
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

double meanOfTenths()
{
    double sum = 0;
    for (int y = 0; y < 320; ++y) {
        for (int x = 0; x < 240; ++x)
            sum += 20 + 0.1 * ((x + y) % 201);
    }
    return sum / 76800;
}

} // namespace

/// What a photograph tells about itself.
class InfoTest : public QObject
{
    Q_OBJECT

private slots:
    void everyKey();
    void everyKind_data();
    void everyKind();
    void readableText();
    void meanOfRawImageIsInCelsius();
    void meanIsFullyPrecise();
    void meanThatIsNoNumber();
};

void InfoTest::everyKey()
{
    const Folder folder;
    const QString path = folder.write(QStringLiteral("a.bmp"), photographBytes(tenths()));
    const Ended ended = thermaphoto({info, asJson, path});
    QCOMPARE(ended.errors, QByteArray());
    QCOMPARE(ended.status, 0);
    QCOMPARE(ended.json().size(), 1);
    QJsonObject object = ended.json()[0].toObject();
    QVERIFY(std::abs(object.take(QStringLiteral("mean")).toDouble() - meanOfTenths()) < 1e-5);
    const QJsonObject expected{{"file", path},
                               {"bytes", 307966},
                               {"layout", 0},
                               {"source", "gray"},
                               {"machineId", 5},
                               {"accepted", true},
                               {"unit", "C"},
                               {"maximum", 40.0},
                               {"minimum", 20.0},
                               {"centre", 27.9},
                               {"grayMaximum", 200},
                               {"grayMinimum", 0},
                               {"emissivity", 0.87},
                               {"markerA", QJsonArray{10, 20}},
                               {"markerB", QJsonArray{30, 40}},
                               {"markerC", QJsonArray{120, 160}}};
    QCOMPARE(object, expected);
}

void InfoTest::everyKind_data()
{
    QTest::addColumn<int>("sample");
    for (int i = 0; i < int(testing::samples().size()); ++i)
        QTest::newRow(testing::samples()[std::size_t(i)].name) << i;
}

/// What the information table of the window tells of the same photograph, with the selector at the
/// photograph's own unit; and what the file was made of.
void InfoTest::everyKind()
{
    QFETCH(int, sample);
    const testing::Sample& kind = testing::samples()[std::size_t(sample)];
    const Folder folder;
    const QString path = folder.write(QStringLiteral("a.bmp"), kind.bytes());

    analysis::FileBuffer buffer;
    const int readCount = buffer.read(path);
    analysis::Photograph photograph;
    QVERIFY(analysis::read(buffer.bytes(), readCount, kind.settings.modelIndex, photograph));
    const auto texts =
        analysis::informationTexts(path, {}, readCount, photograph.parameters, photograph.mean,
                                   kind.settings.fahrenheit ? 1 : 0, analysis::unchanged);
    const auto text = [&texts](analysis::InformationRow row) {
        return texts[std::size_t(row)];
    };

    const QJsonObject object = thermaphoto({info, asJson, path}).json()[0].toObject();
    const auto number = [&object](const char* key) {
        return object[QLatin1String(key)].toDouble();
    };
    QCOMPARE(analysis::kilobytes(qint64(number("bytes"))) + QStringLiteral(" KB"),
             text(analysis::InformationRow::FileSize));
    QCOMPARE(QString::number(number("emissivity"), 'f', 2),
             text(analysis::InformationRow::Emissivity));
    QCOMPARE(QStringLiteral("°") + object[QStringLiteral("unit")].toString(),
             text(analysis::InformationRow::Unit));
    QCOMPARE(analysis::oneDecimal(number("maximum")), text(analysis::InformationRow::Maximum));
    QCOMPARE(analysis::oneDecimal(number("minimum")), text(analysis::InformationRow::Minimum));
    QCOMPARE(analysis::oneDecimal(number("centre")), text(analysis::InformationRow::Centre));
    QCOMPARE(analysis::oneDecimal(number("mean")), text(analysis::InformationRow::Mean));
    QCOMPARE(object[QStringLiteral("layout")].toInt(), kind.settings.modelIndex);
    QCOMPARE(object[QStringLiteral("source")].toString(),
             kind.settings.raw ? QStringLiteral("raw") : QStringLiteral("gray"));
    QCOMPARE(number("machineId"), double(kind.settings.machineId));
    QCOMPARE(object[QStringLiteral("markerA")].toArray(),
             (QJsonArray{photograph.markerA.x, photograph.markerA.y}));
    QCOMPARE(object[QStringLiteral("markerB")].toArray(),
             (QJsonArray{photograph.markerB.x, photograph.markerB.y}));
    QCOMPARE(object[QStringLiteral("markerC")].toArray(), (QJsonArray{120, 160}));
}

void InfoTest::readableText()
{
    const Folder folder;
    const QString path = folder.write(QStringLiteral("a.bmp"), photographBytes(tenths()));
    const Ended ended = thermaphoto({info, path});
    QCOMPARE(ended.status, 0);
    const QStringList lines{path,
                            QStringLiteral("  bytes        307966"),
                            QStringLiteral("  layout       0"),
                            QStringLiteral("  source       gray"),
                            QStringLiteral("  machine ID   5, accepted"),
                            QStringLiteral("  unit         °C"),
                            QStringLiteral("  maximum      40.0 °C at gray 200"),
                            QStringLiteral("  minimum      20.0 °C at gray 0"),
                            QStringLiteral("  centre       27.9 °C"),
                            QStringLiteral("  emissivity   0.87"),
                            QStringLiteral("  marker A     10, 20"),
                            QStringLiteral("  marker B     30, 40"),
                            QStringLiteral("  marker C     120, 160"),
                            QStringLiteral("  mean         ") +
                                QString::number(meanOfTenths(), 'f', 1) + QStringLiteral(" °C"),
                            {}};
    QCOMPARE(QString::fromUtf8(ended.output), lines.join(QLatin1Char('\n')));
}

/// 24.975 °C everywhere in a raw image, in a photograph that speaks of °F.
void InfoTest::meanOfRawImageIsInCelsius()
{
    Shot shot = tenths();
    shot.unit = 1;
    shot.raw = [](int, int) {
        return 4770;
    }; // 298.125 K
    const Folder folder;
    const QString path = folder.write(QStringLiteral("a.bmp"), photographBytes(shot));
    const QJsonObject object = thermaphoto({info, asJson, path}).json()[0].toObject();
    QCOMPARE(object[QStringLiteral("source")].toString(), QStringLiteral("raw"));
    QCOMPARE(object[QStringLiteral("unit")].toString(), QStringLiteral("F"));
    QCOMPARE(object[QStringLiteral("maximum")].toDouble(), 40.0);
    QCOMPARE(object[QStringLiteral("mean")].toDouble(), double(24.975F));
    QVERIFY(thermaphoto({info, path}).output.contains("mean         25.0 °C\n"));
}

/// All pixels but one are 20 °C, that one 40 °C: the mean shows in the seventh digit.
void InfoTest::meanIsFullyPrecise()
{
    Shot shot = tenths();
    shot.gray = [](int x, int y) {
        return x == 7 && y == 9 ? 200 : 0;
    };
    const Folder folder;
    const QString path = folder.write(QStringLiteral("a.bmp"), photographBytes(shot));
    const QJsonObject object = thermaphoto({info, asJson, path}).json()[0].toObject();
    QCOMPARE(object[QStringLiteral("mean")].toDouble(), (76799 * 20.0 + 40.0) / 76800.0);
}

void InfoTest::meanThatIsNoNumber()
{
    Shot shot = tenths();
    shot.grayMinimum = shot.grayMaximum;
    const Folder folder;
    const QString path = folder.write(QStringLiteral("a.bmp"), photographBytes(shot));
    const Ended ended = thermaphoto({info, asJson, path});
    QCOMPARE(ended.status, 0);
    QVERIFY(ended.output.contains("\"mean\":null"));
    QCOMPARE(ended.json().size(), 1);
}

int main(int argc, char** argv)
{
    return testing::run<InfoTest>(argc, argv);
}

#include "info_test.moc"
