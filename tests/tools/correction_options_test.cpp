// SPDX-License-Identifier: MIT
#include "tests/support/test_run.h"
#include "tests/tools/across.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

#include <cmath>

using testing::Across;
using testing::Ended;

namespace {

/// The whole row 160, and a point at 40.0 °C.
const char* const tools = R"({"points": [[200, 50]], "lines": [[0, 160, 239, 160]]})";

/// 60 °C everywhere.
testing::Shot sixty(int unit = 0)
{
    testing::Shot shot;
    shot.unit = unit;
    shot.maximum10 = unit == 1 ? 1400 : 600;
    shot.minimum10 = 0;
    shot.gray = [](int, int) {
        return 255;
    };
    return shot;
}

QJsonObject firstRow(const Ended& ended, const char* key)
{
    return ended.json()[0].toObject()[QLatin1String(key)].toArray()[0].toObject();
}

} // namespace

/// --emissivity and what goes with it. Numbers are those of the tables in docs/correction.md.
class CorrectionOptionsTest : public QObject
{
    Q_OBJECT

private slots:
    void rowsSayThatTheyAreCorrected()
    {
        const Across folder(R"({"points": [[200, 50]]})");
        QCOMPARE(
            folder.run("measure --tools tools.json --format csv --emissivity 0.6 a.bmp").output,
            QByteArray("file,unit,name,type,high,low,average,corrected_emissivity,"
                       "stored_emissivity,reflected\n"
                       "a.bmp,C,P0,point,50.3,50.3,50.3,0.60,0.95,20.0\n"));
        QCOMPARE(folder
                     .run("measure --tools tools.json --format csv --emissivity 0.6 --reflected 10 "
                          "--stored-emissivity 0.6 a.bmp")
                     .output,
                 QByteArray("file,unit,name,type,high,low,average,corrected_emissivity,"
                            "stored_emissivity,reflected\n"
                            "a.bmp,C,P0,point,40.0,40.0,40.0,0.60,0.60,10.0\n"));
        // Without, nothing is said.
        QCOMPARE(folder.run("measure --tools tools.json --format csv a.bmp").output,
                 QByteArray("file,unit,name,type,high,low,average\n"
                            "a.bmp,C,P0,point,40.0,40.0,40.0\n"));
    }

    void everyCommandTakesIt()
    {
        const Across folder(tools, photographBytes(sixty()));
        const auto first = [&](const QString& command, const char* key) {
            const QJsonObject row =
                firstRow(folder.run(command + " --emissivity 0.6 --format json a.bmp"), key);
            return row["corrected_emissivity"] == QJsonValue(0.6) ? row : QJsonObject();
        };
        QCOMPARE(first("measure --tools tools.json", "tools")["high"], QJsonValue(78.8));
        QVERIFY(std::abs(first("profile --tools tools.json", "pixels")["temperature"].toDouble() -
                         78.8) < 0.05);
        const QJsonObject bin = first("histogram --from 78 --to 79 --bins 1", "bins");
        QVERIFY(bin["pixels"] == QJsonValue(0)); // below the range
        QCOMPARE(folder.run("find --above 78 --emissivity 0.6 a.bmp").output,
                 QByteArray("a.bmp\n"));
        QCOMPARE(folder.run("find --above 79 --emissivity 0.6 a.bmp").status, 1);
        QCOMPARE(folder.run("find --above 78 a.bmp").status, 1);
        const QJsonObject spot = firstRow(
            Across(tools).run("spots --count 1 --emissivity 0.6 --format json a.bmp"), "spots");
        QVERIFY(spot["temperature"].toDouble() > 55);
        QCOMPARE(spot["reflected"], QJsonValue(20));
    }

    /// What was typed is in the unit of the temperatures: that of --unit, or each photograph's own.
    void theReflectedTemperatureIsInTheShownUnit()
    {
        const Across folder(tools, photographBytes(sixty(1)));
        const auto high = [&](const QString& options) -> QJsonValue {
            return firstRow(
                folder.run("measure --tools tools.json --format json --emissivity 0.6 " + options +
                           " a.bmp"),
                "tools")["high"];
        };
        // 78.8 °C, and 3.5 more in surroundings of 10 °C.
        QCOMPARE(high("--unit C"), QJsonValue(78.8));
        QCOMPARE(high("--unit C --reflected 20"), QJsonValue(78.8));
        QCOMPARE(high("--reflected 68"), QJsonValue(173.8));
        QCOMPARE(high("--unit F --reflected 68"), QJsonValue(173.8));
        QVERIFY(std::abs(high("--unit C --reflected 10").toDouble() - 82.3) < 0.11);
        QVERIFY(std::abs(high("--reflected 50").toDouble() - (82.3 * 1.8 + 32)) < 0.2);
    }

    void theSameAsWithNumpy_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QString>("emissivity");
        QTest::addColumn<QString>("reflected");
        QTest::newRow("metal") << "0.95"
                               << "0.3"
                               << "20";
        QTest::newRow("under the sky") << "0.95"
                                       << "0.8"
                                       << "-40";
        QTest::newRow("beside a furnace") << "0.98"
                                          << "0.9"
                                          << "150";
        QTest::newRow("a mirror was seen") << "0.2"
                                           << "1"
                                           << "18";
    }
    void theSameAsWithNumpy()
    {
        QFETCH(const QString, stored);
        QFETCH(const QString, emissivity);
        QFETCH(const QString, reflected);
        const Across folder(tools);
        QProcess python;
        python.start(QStringLiteral("/usr/bin/python3"),
                     {QStringLiteral(NUMPY_SCRIPT), folder / QStringLiteral("a.bmp"), stored,
                      emissivity, reflected});
        QVERIFY(python.waitForFinished());
        const QJsonArray expected = QJsonDocument::fromJson(python.readAllStandardOutput()).array();
        QVERIFY2(expected.size() == 240, python.readAllStandardError().constData());
        const QJsonArray found =
            folder
                .run(QStringLiteral("profile --tools tools.json --format json --emissivity %1 "
                                    "--stored-emissivity %2 --reflected %3 a.bmp")
                         .arg(emissivity, stored, reflected))
                .json()[0]
                .toObject()["pixels"]
                .toArray();
        int compared = 0;
        for (int x = 0; x < 240; ++x) {
            const QJsonValue temperature = found[x].toObject()["temperature"];
            if (expected[x].toDouble() < -40)
                continue; // beyond what is promised; NumPy's end of the search where there is none
            QVERIFY2(std::abs(temperature.toDouble() - expected[x].toDouble()) < 0.01,
                     qPrintable(QStringLiteral("%1: %2, not %3")
                                    .arg(x)
                                    .arg(temperature.toDouble())
                                    .arg(expected[x].toDouble())));
            ++compared;
        }
        QVERIFY(compared > 100);
    }

    /// −20 °C with an emissivity of 0.3 in a room: such pixels are left out.
    void pixelsWithoutATemperature()
    {
        testing::Shot shot;
        shot.gray = [](int x, int) {
            return x < 10 ? 0 : 255;
        };
        shot.minimum10 = -200;
        shot.maximum10 = 600;
        const Across folder(R"({"points": [[5, 5]], "rectangles": [[0, 0, 19, 0]]})",
                            photographBytes(shot));
        const QList<QByteArray> lines =
            folder.run("measure --tools tools.json --more --format csv --emissivity 0.3 a.bmp")
                .output.split('\n');
        QCOMPARE(
            lines.at(1),
            QByteArray("a.bmp,C,P0,point,nan,nan,nan,nan,nan,nan,nan,nan,nan,0,0.30,0.95,20.0"));
        QVERIFY2(lines.at(2).startsWith("a.bmp,C,R0,rectangle,121.4,121.4,121.4,"),
                 lines.at(2).constData());
    }

    void aPhotographThatCannotBeCorrectedFails_data()
    {
        QTest::addColumn<int>("emissivity100");
        QTest::addColumn<int>("unit");
        QTest::addColumn<QString>("options");
        QTest::addColumn<QByteArray>("reason");
        QTest::newRow("stores none") << 0 << 0 << QString() << QByteArray("--stored-emissivity");
        QTest::newRow("stores too much") << 255 << 0 << QString() << QByteArray("from 0.1 to 1");
        QTest::newRow("has no scale") << 95 << 7 << QString() << QByteArray("in which unit");
        QTest::newRow("too cold") << 95 << 0 << QStringLiteral("--reflected -151")
                                  << QByteArray("-150");
    }
    void aPhotographThatCannotBeCorrectedFails()
    {
        QFETCH(const int, emissivity100);
        QFETCH(const int, unit);
        QFETCH(const QString, options);
        QFETCH(const QByteArray, reason);
        testing::Shot shot = sixty(unit);
        shot.emissivity100 = emissivity100;
        const Across folder(tools, photographBytes(shot));
        const Ended ended =
            folder.run("measure --tools tools.json --emissivity 0.6 " + options + " a.bmp");
        QCOMPARE(ended.status, 1);
        QCOMPARE(ended.output, QByteArray());
        QVERIFY2(ended.errors.contains("a.bmp") && ended.errors.contains(reason),
                 ended.errors.constData());
        if (emissivity100 != 95)
            QCOMPARE(folder
                         .run("measure --tools tools.json --emissivity 0.6 --stored-emissivity 0.9 "
                              "a.bmp")
                         .status,
                     0);
    }

    void badUsage_data()
    {
        QTest::addColumn<QString>("options");
        QTest::addColumn<QByteArray>("error");
        QTest::newRow("low") << "--emissivity 0.09" << QByteArray("--emissivity is from 0.1 to 1");
        QTest::newRow("high") << "--emissivity 1.01" << QByteArray("--emissivity is from 0.1 to 1");
        QTest::newRow("no number") << "--emissivity x" << QByteArray("--emissivity is a number");
        QTest::newRow("stored") << "--emissivity 0.6 --stored-emissivity 0"
                                << QByteArray("--stored-emissivity is from 0.1 to 1");
        QTest::newRow("reflected alone")
            << "--reflected 20" << QByteArray("--reflected goes with --emissivity");
        QTest::newRow("stored alone") << "--stored-emissivity 0.9"
                                      << QByteArray("--stored-emissivity goes with --emissivity");
    }
    void badUsage()
    {
        QFETCH(const QString, options);
        QFETCH(const QByteArray, error);
        const Ended ended = Across(tools).run("measure --tools tools.json " + options + " a.bmp");
        QCOMPARE(ended.status, 2);
        QVERIFY2(ended.errors.contains(error), ended.errors.constData());
    }
};

int main(int argc, char** argv)
{
    return testing::run<CorrectionOptionsTest>(argc, argv);
}

#include "correction_options_test.moc"
