// SPDX-License-Identifier: MIT
#include "tests/support/test_run.h"
#include "tests/tools/across.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

#include <cmath>

using testing::Folder;
using testing::Shot;
using testing::thermaphoto;

namespace {

const char* const tools = R"({"points": [[7, 9], [240, 320]],
    "lines": [[10, 300, 201, 20], [5, 5, 5, 90], [238, 3, 3, 250]],
    "rectangles": [[100, 100, 30, 60], [0, 0, 240, 320]],
    "circles": [[150, 200, 40], [30, 30, 1]]})";

/// Hills on a slope, each with a peak, and noise that is the same every time.
QByteArray hills()
{
    Shot shot;
    shot.gray = [](int x, int y) {
        const auto hill = [x, y](int atX, int atY, double height) {
            const double squared = std::pow(x - atX, 2) + std::pow(y - atY, 2);
            return height * std::exp(-squared / 90.0) + (squared == 0.0 ? 12.0 : 0.0);
        };
        const double noise = (x * 7919 + y * 104729 + x * y) % 5;
        return int(40 + x / 6.0 + y / 8.0 + noise + hill(60, 70, 90) + hill(180, 90, 75) +
                   hill(100, 250, 60) + hill(30, 160, 95));
    };
    shot.maximum10 = 487;
    shot.minimum10 = 123;
    shot.grayMaximum = 211;
    shot.grayMinimum = 17;
    return photographBytes(shot);
}

bool isShownAs(const QJsonValue& found, const QJsonValue& expected)
{
    constexpr double halfOfTheLastDigit = 0.000501;
    return found.isDouble() && expected.isDouble() &&
           std::abs(found.toDouble() - expected.toDouble()) <= halfOfTheLastDigit;
}

/// Each of the expected numbers is there; false with a message at the first difference.
bool agree(const QJsonObject& found, const QJsonObject& expected, const QStringList& keys)
{
    for (const QString& key : keys) {
        if (isShownAs(found[key], expected[key]))
            continue;
        qWarning() << key << found[key] << "instead of" << expected[key];
        return false;
    }
    return true;
}

QJsonObject withNumpy(const Folder& folder, const QString& unit)
{
    QProcess python;
    python.start(QStringLiteral("/usr/bin/python3"),
                 {QStringLiteral(NUMPY_SCRIPT), folder / QStringLiteral("a.bmp"),
                  folder / QStringLiteral("tools.json"), unit});
    python.waitForFinished();
    const QByteArray errors = python.readAllStandardError();
    if (!errors.isEmpty())
        qWarning("%s", errors.constData());
    return QJsonDocument::fromJson(python.readAllStandardOutput()).object();
}

} // namespace

/// The numbers of thermaphoto beside those that an engineer's script gets from the same files.
class NumpyTest : public QObject
{
    Q_OBJECT

    Folder folder;
    QString unit;
    QJsonObject expected;

    QJsonObject measured(const QStringList& arguments) const
    {
        const QStringList all =
            arguments + QStringList{"--format", "json", "--unit", unit, "a.bmp"};
        return thermaphoto(all, folder.path()).json()[0].toObject();
    }

    static void addRows()
    {
        QTest::addColumn<QByteArray>("photograph");
        QTest::addColumn<QString>("shownUnit");
        for (const char* name : {"C", "F"}) {
            QTest::addRow("hills in %s", name) << hills() << QString(name);
            QTest::addRow("a window in %s", name) << testing::samples()[0].bytes() << QString(name);
            QTest::addRow("raw in %s", name) << testing::samples()[2].bytes() << QString(name);
        }
    }

private slots:
    void initTestCase_data() { addRows(); }
    void init()
    {
        QFETCH_GLOBAL(QByteArray, photograph);
        QFETCH_GLOBAL(QString, shownUnit);
        folder.write("a.bmp", photograph);
        folder.write("tools.json", tools);
        unit = shownUnit;
        expected = withNumpy(folder, unit);
        QVERIFY(!expected.isEmpty());
    }

    void details()
    {
        const QJsonArray found =
            measured({"measure", "--more", "--tools", "tools.json"})["tools"].toArray();
        QCOMPARE(found.size(), 9);
        for (const QJsonValue& tool : found)
            QVERIFY(agree(tool.toObject(),
                          expected["details"].toObject()[tool["name"].toString()].toObject(),
                          {"high_x", "high_y", "low_x", "low_y", "deviation", "median", "pixels"}));
    }

    void deltas()
    {
        const QJsonObject details = expected["details"].toObject();
        const QJsonObject delta =
            measured({"measure", "--tools", "tools.json", "--delta", "C0.average-R0.low"})["tools"]
                .toArray()
                .last()
                .toObject();
        QVERIFY(isShownAs(delta["delta"], details["C0"].toObject()["mean"].toDouble() -
                                              details["R0"].toObject()["low"].toDouble()));
    }

    void profile()
    {
        const QJsonArray found = measured({"profile", "--tools", "tools.json"})["pixels"].toArray();
        const QJsonArray line = expected["profile"].toArray();
        QCOMPARE(line.size(), 281);
        for (int i = 0; i < line.size(); ++i)
            QVERIFY(agree(found[i].toObject(), line[i].toObject(),
                          {"distance", "x", "y", "temperature"}));
        QCOMPARE(found[line.size()].toObject()["name"], QJsonValue("L1"));
    }

    void histogram()
    {
        const QJsonArray bins =
            measured({"histogram", "--from", "10", "--to", "50", "--bins", "40"})["bins"].toArray();
        const QJsonArray counts = expected["histogram"].toArray();
        QCOMPARE(bins.size(), counts.size() + 2);
        for (int i = 0; i < counts.size(); ++i)
            QCOMPARE(bins[i + 1].toObject()["pixels"], counts[i]);
    }

    void find()
    {
        const double hottest = expected["hottest"].toDouble();
        const auto status = [&](double above) {
            return thermaphoto({"find", "--unit", unit, "--above", QString::number(above), "a.bmp"},
                               folder.path())
                .status;
        };
        QCOMPARE(status(hottest - 0.001), 0);
        QCOMPARE(status(hottest + 0.001), 1);
    }

    /// Where no hill has a flat top, which the script does not know.
    void spots()
    {
        QFETCH_GLOBAL(QByteArray, photograph);
        if (photograph != hills())
            return;
        const QJsonArray found =
            measured({"spots", "--count", "4", "--distance", "25"})["spots"].toArray();
        const QJsonArray hot = expected["hot"].toArray();
        QCOMPARE(hot.size(), 4);
        for (int i = 0; i < hot.size(); ++i)
            QVERIFY(agree(found[i].toObject(), hot[i].toObject(), {"x", "y", "temperature"}));
    }
};

int main(int argc, char** argv)
{
    return testing::run<NumpyTest>(argc, argv);
}

#include "numpy_test.moc"
