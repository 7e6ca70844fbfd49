// SPDX-License-Identifier: MIT
#include "tests/support/test_run.h"
#include "tests/tools/across.h"

#include <QJsonObject>

using testing::Across;
using testing::Ended;

namespace {

/// 30.0 to 31.0 °C in eleven steps.
const char* const tools = R"({"rectangles": [[100, 0, 110, 0]]})";

QByteArray header()
{
    return "file,unit,name,from,to,pixels,share\n";
}

} // namespace

/// How many pixels have which temperature.
class HistogramCommandTest : public QObject
{
    Q_OBJECT

private slots:
    void range();
    void withoutRange_data();
    void withoutRange();
    void thePicture();
    void otherFormats();
    void areasWithoutReadings();
    void wrong_data();
    void wrong();
};

/// What lies outside is told by rows that are open on one side.
void HistogramCommandTest::range()
{
    const Across folder(tools);
    const QString command = QStringLiteral("histogram --tools tools.json --format csv a.bmp ");
    const Ended ended = folder.run(command + "--from 30.15 --to 30.75 --bins 3");
    QCOMPARE(ended.output, header() + "a.bmp,C,R0,,30.15,2,0.181818\n"
                                      "a.bmp,C,R0,30.15,30.35,2,0.181818\n"
                                      "a.bmp,C,R0,30.35,30.55,2,0.181818\n"
                                      "a.bmp,C,R0,30.55,30.75,2,0.181818\n"
                                      "a.bmp,C,R0,30.75,,3,0.272727\n");
    QCOMPARE(ended.errors, QByteArray());
    QCOMPARE(ended.status, 0);
    QCOMPARE(folder.run(command + "--from 30.15 --to 30.75 --width 0.2").output, ended.output);
    // The last bin reaches beyond the range.
    QVERIFY(folder.run(command + "--from 30.15 --to 30.7 --width 0.2")
                .output.contains("R0,30.55,30.75,2"));
    QCOMPARE(folder.run(command + "--from 30.15 --to 30.75").output.count('\n'), 103);
    QCOMPARE(folder.run(command + "--from=-20 --to=-10 --bins 1").output,
             header() + "a.bmp,C,R0,,-20,0,0.000000\n"
                        "a.bmp,C,R0,-20,-10,0,0.000000\n"
                        "a.bmp,C,R0,-10,,11,1.000000\n");
}

void HistogramCommandTest::withoutRange_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<QByteArray>("bins");
    QTest::newRow("number") << "--bins 2"
                            << QByteArray("a.bmp,C,R0,30,30.5,5,0.454545\n"
                                          "a.bmp,C,R0,30.5,31,6,0.545455\n");
    QTest::newRow("width") << "--width 0.75"
                           << QByteArray("a.bmp,C,R0,30,30.75,8,0.727273\n"
                                         "a.bmp,C,R0,30.75,31.5,3,0.272727\n");
}

/// From the coldest to the hottest; by width, from a multiple of it.
void HistogramCommandTest::withoutRange()
{
    QFETCH(QString, option);
    QFETCH(QByteArray, bins);
    QCOMPARE(Across(tools).run("histogram --tools tools.json --format csv a.bmp " + option).output,
             header() + bins);
}

/// 240 columns of 320 pixels, 20 to 43.9 °C: in half degrees, because fifths would be 120.
void HistogramCommandTest::thePicture()
{
    const Ended ended = Across(tools).run("histogram --format csv a.bmp");
    QCOMPARE(ended.output.count('\n'), 1 + 48);
    QVERIFY(ended.output.startsWith(header() + "a.bmp,C,picture,20,20.5,1600,0.020833\n"));
    QVERIFY(ended.output.endsWith("a.bmp,C,picture,43.5,44,1600,0.020833\n"));
}

void HistogramCommandTest::otherFormats()
{
    const Across folder(tools);
    const QString command =
        QStringLiteral("histogram --tools tools.json --from 30.25 --to 31 --bins 1 a.bmp ");
    QCOMPARE(folder.run(command).output,
             QByteArray("a.bmp (°C)\n"
                        "name           from          to pixels    share\n"
                        "R0                        30.25      3 0.272727\n"
                        "R0            30.25          31      8 0.727273\n"
                        "R0               31                  0 0.000000\n"));
    const QJsonArray bins =
        folder.run(command + "--format json").json()[0].toObject()["bins"].toArray();
    QCOMPARE(bins.size(), 3);
    QCOMPARE(bins[0].toObject(),
             (QJsonObject{{"name", "R0"}, {"to", 30.25}, {"pixels", 3}, {"share", 0.272727}}));
    QCOMPARE(bins[1].toObject()["from"], QJsonValue(30.25));
    QCOMPARE(folder.run(command + "--format ndjson").output.count('\n'), 1);
}

/// They have no bins of their own, and no pixel in others'.
void HistogramCommandTest::areasWithoutReadings()
{
    const QByteArray both = R"({"lines": [[240, 0, 240, 9]], "rectangles": [[100, 0, 110, 0]]})";
    const Across folder(both);
    const QString command = QStringLiteral("histogram --tools tools.json --format csv a.bmp ");
    QVERIFY(!folder.run(command).output.contains("L0"));
    QCOMPARE(folder.run(command).status, 0);
    QVERIFY(folder.run(command + "--from 30 --to 31 --bins 1").output.contains("L0,30,31,0,0.0"));
    const Across nothing(both, testing::withoutReadings());
    QCOMPARE(nothing.run(command).output, header());
    QVERIFY(nothing.run(command + "--from 30 --to 31 --bins 1")
                .output.contains("R0,30,31,0,0.000000\n"));
}

void HistogramCommandTest::wrong_data()
{
    QTest::addColumn<QString>("options");
    QTest::addColumn<QByteArray>("told");
    QTest::newRow("no end") << "--from 20" << QByteArray("--from goes with --to");
    QTest::newRow("no beginning") << "--to 20" << QByteArray("--to goes with --from");
    QTest::newRow("backwards") << "--from 30 --to 20" << QByteArray("--from is less than --to");
    QTest::newRow("no extent") << "--from 30 --to 30" << QByteArray("--from is less than --to");
    QTest::newRow("a word") << "--from cold --to 30" << QByteArray("--from is a number");
    QTest::newRow("not a number") << "--from 1 --to nan" << QByteArray("--to is a number");
    QTest::newRow("no bins") << "--bins 0" << QByteArray("--bins is a whole number from 1");
    QTest::newRow("too many bins") << "--bins 100001" << QByteArray("from 1 to 100000");
    QTest::newRow("no width") << "--width 0" << QByteArray("--width is more than 0");
    QTest::newRow("negative width") << "--width=-1" << QByteArray("--width is a number from 0");
    QTest::newRow("both") << "--width 1 --bins 4" << QByteArray("does not go with --width");
    QTest::newRow("too fine") << "--from 0 --to 100 --width 0.0001"
                              << QByteArray("--width makes more than 100000 bins");
}

void HistogramCommandTest::wrong()
{
    QFETCH(QString, options);
    QFETCH(QByteArray, told);
    const Across folder(tools);
    const Ended ended = folder.run("histogram a.bmp " + options);
    QCOMPARE(ended.status, 2);
    QCOMPARE(ended.errorLines().size(), 1);
    QVERIFY2(ended.errors.contains(told), ended.errors.constData());
    // Only the photograph tells.
    const Ended fine = folder.run("histogram --width 0.00001 a.bmp");
    QCOMPARE(fine.status, 1);
    QCOMPARE(fine.errors, QByteArray("thermaphoto: a.bmp: --width makes more than 100000 bins\n"));
}

int main(int argc, char** argv)
{
    return testing::run<HistogramCommandTest>(argc, argv);
}

#include "histogram_command_test.moc"
