// SPDX-License-Identifier: MIT
#include "tests/support/test_run.h"
#include "tests/tools/across.h"

#include <QJsonObject>

using testing::Across;
using testing::Ended;

namespace {

/// R0: 21 to 23 °C. R1: 30 to 31 °C. L0 has no pixels.
const char* const tools = R"({"lines": [[240, 20, 240, 40]],
    "rectangles": [[30, 40, 10, 60], [100, 0, 110, 0]]})";

} // namespace

/// measure --delta and --limit.
class ComparisonsTest : public QObject
{
    Q_OBJECT

private slots:
    void deltas_data();
    void deltas();
    void formats();
    void deltasInTheShownUnit();
    void limits_data();
    void limits();
    void severalLimits();
    void whatCannotBeJudged();
    void failuresBesideLimits();
    void wrong_data();
    void wrong();
};

void ComparisonsTest::deltas_data()
{
    QTest::addColumn<QString>("delta");
    QTest::addColumn<QString>("value");
    QTest::newRow("highest minus highest") << "R1-R0"
                                           << "8.000";
    QTest::newRow("below zero") << "R0-R1"
                                << "-8.000";
    QTest::newRow("of named numbers") << "R1.low-R0.average"
                                      << "8.000";
    QTest::newRow("only the first is named") << "R1.low-R0"
                                             << "7.000";
    QTest::newRow("only the second is named") << "R1-R0.median"
                                              << "9.000";
    QTest::newRow("deviations") << "R0.deviation-R1.deviation"
                                << "0.289";
    QTest::newRow("minus a number") << "R0-20"
                                    << "3.000";
    QTest::newRow("minus a decimal number") << "R0.low-20.25"
                                            << "0.750";
    QTest::newRow("minus a negative number") << "R0--4.5"
                                             << "27.500";
    QTest::newRow("minus a positive number") << "R0-+4.5"
                                             << "18.500";
    QTest::newRow("minus itself") << "R0-R0.low"
                                  << "2.000";
    QTest::newRow("of a tool without pixels") << "R0-L0"
                                              << "nan";
    QTest::newRow("a number of a tool without pixels") << "L0-20"
                                                       << "nan";
}

void ComparisonsTest::deltas()
{
    QFETCH(QString, delta);
    QFETCH(QString, value);
    const Ended ended =
        Across(tools).run("measure --tools tools.json --format csv --delta " + delta + " a.bmp");
    QCOMPARE(ended.errors, QByteArray());
    QCOMPARE(ended.status, 0);
    const QList<QByteArray> lines = ended.output.split('\n');
    QCOMPARE(lines[0], QByteArray("file,unit,name,type,high,low,average,delta"));
    QCOMPARE(lines[2], QByteArray("a.bmp,C,R0,rectangle,23.0,21.0,22.0,"));
    QCOMPARE(lines[4], QStringLiteral("a.bmp,C,%1,delta,,,,%2").arg(delta, value).toUtf8());
}

void ComparisonsTest::formats()
{
    const Across folder(R"({"points": [[0, 0]], "rectangles": [[30, 40, 10, 60]]})");
    const QString command = "measure --tools tools.json --delta R0-P0 --delta R0.low-P0 a.bmp ";
    QCOMPARE(folder.run(command + "--format table").output,
             QByteArray("a.bmp (°C)\n"
                        "name      type          high      low  average    delta\n"
                        "P0        point         20.0     20.0     20.0         \n"
                        "R0        rectangle     23.0     21.0     22.0         \n"
                        "R0-P0     delta                                   3.000\n"
                        "R0.low-P0 delta                                   1.000\n"));
    const QJsonArray rows =
        folder.run(command + "--format json").json()[0].toObject()["tools"].toArray();
    QCOMPARE(rows.size(), 4);
    QVERIFY(!rows[1].toObject().contains("delta"));
    QCOMPARE(rows[2].toObject(), (QJsonObject{{"name", "R0-P0"}, {"type", "delta"}, {"delta", 3}}));
    QVERIFY(folder.run(command + "--more --format csv")
                .output.endsWith("R0.low-P0,delta,,,,,,,,,,,1.000\n"));
}

/// 2 K are 20 / 5.556 degrees Fahrenheit.
void ComparisonsTest::deltasInTheShownUnit()
{
    const Ended ended = Across(tools).run(
        "measure --tools tools.json --unit F --format csv --delta R0-R0.low a.bmp");
    QVERIFY(ended.output.endsWith("a.bmp,F,R0-R0.low,delta,,,,3.600\n"));
}

void ComparisonsTest::limits_data()
{
    QTest::addColumn<QString>("limit");
    QTest::addColumn<QString>("passed"); ///< by what; empty when it holds
    QTest::newRow("above") << "R0.high>22.9"
                           << "23.000";
    QTest::newRow("just not above") << "R0.high>23"
                                    << "";
    QTest::newRow("not below") << "R0.high>=23"
                               << "23.000";
    QTest::newRow("a name alone is the highest") << "R0>22"
                                                 << "23.000";
    QTest::newRow("below") << "R0.low<21.5"
                           << "21.000";
    QTest::newRow("just not below") << "R0.low<21"
                                    << "";
    QTest::newRow("not above") << "R0.low<=21"
                               << "21.000";
    QTest::newRow("a difference") << "R1-R0>7.5"
                                  << "8.000";
    QTest::newRow("a difference from a number") << "R1.average-20>=10.5"
                                                << "10.500";
    QTest::newRow("as it is told") << "R1.average-20.1>=10.4"
                                   << "10.400";
    QTest::newRow("a difference that holds") << "R1-R0>8"
                                             << "";
    QTest::newRow("a negative limit") << "R0-R1<-7.9"
                                      << "-8.000";
}

void ComparisonsTest::limits()
{
    QFETCH(QString, limit);
    QFETCH(QString, passed);
    const Across folder(tools);
    const QString command = QStringLiteral("measure --tools tools.json a.bmp");
    const Ended ended = folder.run(command + " --limit " + limit);
    QCOMPARE(ended.output, folder.run(command).output);
    QCOMPARE(ended.status, passed.isEmpty() ? 0 : 3);
    QCOMPARE(ended.errors, passed.isEmpty()
                               ? QByteArray()
                               : QStringLiteral("thermaphoto: a.bmp: passes the limit %1: %2 °C\n")
                                     .arg(limit, passed)
                                     .toUtf8());
}

/// Each photograph that passes any is told, with each that it passes.
void ComparisonsTest::severalLimits()
{
    const Across folder(tools);
    testing::Shot cold;
    cold.gray = [](int, int) {
        return 100;
    };
    cold.maximum10 = 210;
    cold.minimum10 = 200;
    folder.write("b.bmp", photographBytes(cold));
    folder.write("c.bmp", testing::acrossBytes());
    const Ended ended =
        folder.run("measure --tools tools.json --limit R0>22 --limit R1>99 --limit R1>30.9 a.bmp "
                   "b.bmp c.bmp");
    QCOMPARE(ended.status, 3);
    QCOMPARE(ended.errors, QByteArray("thermaphoto: a.bmp: passes the limit R0>22: 23.000 °C\n"
                                      "thermaphoto: a.bmp: passes the limit R1>30.9: 31.000 °C\n"
                                      "thermaphoto: c.bmp: passes the limit R0>22: 23.000 °C\n"
                                      "thermaphoto: c.bmp: passes the limit R1>30.9: 31.000 °C\n"));
}

/// It does not pass for good: the photograph is measured, told, and counts as failed.
void ComparisonsTest::whatCannotBeJudged()
{
    const Across folder(tools);
    const QString command = QStringLiteral("measure --tools tools.json a.bmp");
    const Ended ended = folder.run(command + " --limit L0>70 --limit R0>70 --limit R0-L0>5");
    QCOMPARE(ended.output, folder.run(command).output);
    QCOMPARE(ended.errors,
             QByteArray("thermaphoto: a.bmp: has no readings to judge L0>70, R0-L0>5 by\n"));
    QCOMPARE(ended.status, 1);
}

/// Who waits for a passed limit is told of it, whatever else went wrong.
void ComparisonsTest::failuresBesideLimits()
{
    const Across folder(tools);
    const QString command = QStringLiteral("measure --tools tools.json missing.bmp a.bmp --limit ");
    QCOMPARE(folder.run(command + "R0>70").status, 1);
    const Ended ended = folder.run(command + "R0>20");
    QCOMPARE(ended.status, 3);
    QCOMPARE(ended.errorLines().size(), 2);
}

void ComparisonsTest::wrong_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<QByteArray>("told");
    const QByteArray delta = "--delta is written like R0-R1, R0.high-R1.average or R0-20";
    const QByteArray limit = "--limit is written like \"R0.high>70\" or \"R0-R1>=10\"";
    QTest::newRow("no difference") << "--delta=R0" << delta;
    QTest::newRow("a number first") << "--delta=20-R0" << delta;
    QTest::newRow("unknown number") << "--delta=R0.hottest-R1" << delta;
    QTest::newRow("three") << "--delta=R0-R1-R0" << delta;
    QTest::newRow("comma") << "--delta=R0-20,5" << delta;
    QTest::newRow("nothing") << "--delta=" << delta;
    QTest::newRow("no such tool") << "--delta=R0-R2" << QByteArray("R0-R2: there is no tool R2");
    QTest::newRow("no such tool first")
        << "--delta=C0-R0" << QByteArray("C0-R0: there is no tool C0");
    QTest::newRow("no limit") << "--limit=R0" << limit;
    QTest::newRow("no number") << "--limit=R0>hot" << limit;
    QTest::newRow("no sign") << "--limit=R0=20" << limit;
    QTest::newRow("limit of no tool") << "--limit=R9>20" << QByteArray("there is no tool R9");
}

void ComparisonsTest::wrong()
{
    QFETCH(QString, option);
    QFETCH(QByteArray, told);
    const Ended ended = Across(tools).run("measure --tools tools.json a.bmp " + option);
    QCOMPARE(ended.status, 2);
    QCOMPARE(ended.output, QByteArray());
    QCOMPARE(ended.errorLines().size(), 1);
    QVERIFY2(ended.errors.contains(told), ended.errors.constData());
}

int main(int argc, char** argv)
{
    return testing::run<ComparisonsTest>(argc, argv);
}

#include "comparisons_test.moc"
