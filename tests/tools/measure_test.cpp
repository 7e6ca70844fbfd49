// SPDX-License-Identifier: MIT
#include "analysis/photograph/file_buffer.h"
#include "analysis/photograph/tool_statistics.h"
#include "tests/analysis/photograph_writer.h"
#include "tests/support/test_run.h"
#include "tests/tools/thermaphoto.h"

#include <QJsonDocument>
#include <QJsonObject>

using testing::Ended;
using testing::Folder;
using testing::Shot;
using testing::thermaphoto;

namespace {

const QString measure = QStringLiteral("measure");

/// x tenths above 20 °C, the same in every row: 20.0 °C on the left, 43.9 °C on the right.
QByteArray acrossBytes(int unit = 0)
{
    Shot shot;
    shot.gray = [](int x, int) {
        return x;
    };
    shot.maximum10 = 440;
    shot.minimum10 = 200;
    shot.grayMaximum = 240;
    shot.grayMinimum = 0;
    shot.unit = unit;
    return photographBytes(shot);
}

/// By hand: a point has one value; the horizontal line is one pixel wide; the rectangle goes from
/// column 10 to 30; the circle covers the columns 100 ± 5 symmetrically.
const char* const tools = R"({"points": [[100, 50], [0, 319]],
                              "lines": [[10, 20, 20, 20]],
                              "rectangles": [[30, 40, 10, 60]],
                              "circles": [[100, 100, 5]]})";

struct Row
{
    const char* name;
    const char* type;
    const char* high;
    const char* low;
    const char* average;
};

const std::vector<Row> rowsOfAcross{{"P0", "point", "30.0", "30.0", "30.0"},
                                    {"P1", "point", "20.0", "20.0", "20.0"},
                                    {"L0", "line", "22.0", "21.0", "21.5"},
                                    {"R0", "rectangle", "23.0", "21.0", "22.0"},
                                    {"C0", "circle", "30.5", "29.5", "30.0"}};

QJsonArray jsonRows(const std::vector<Row>& rows)
{
    QJsonArray array;
    for (const Row& row : rows)
        array.append(QJsonObject{{"name", row.name},
                                 {"type", row.type},
                                 {"high", QByteArray(row.high).toDouble()},
                                 {"low", QByteArray(row.low).toDouble()},
                                 {"average", QByteArray(row.average).toDouble()}});
    return array;
}

/// A photograph and a file of tools in a folder, measured.
class Measured : public Folder
{
public:
    Measured(const QByteArray& photograph, const QByteArray& toolFile)
        : photographPath(write(QStringLiteral("a.bmp"), photograph)),
          toolPath(write(QStringLiteral("tools.json"), toolFile))
    {
    }

    Ended run(const QStringList& options) const
    {
        return thermaphoto(
            QStringList{measure, QStringLiteral("--tools"), toolPath, photographPath} + options);
    }
    QJsonObject object(const QStringList& options) const
    {
        return run(QStringList{QStringLiteral("--format"), QStringLiteral("json")} + options)
            .json()[0]
            .toObject();
    }

    QString photographPath;
    QString toolPath;
};

} // namespace

/// The tool table without the window.
class MeasureTest : public QObject
{
    Q_OBJECT

private slots:
    void handMadeTable();
    void csv();
    void table();
    void units_data();
    void units();
    void everyKind_data();
    void everyKind();
    void noTools();
    void noNumbers();
    void separatorsInNames_data();
    void separatorsInNames();
    void otherPhotographsGoOn();
};

void MeasureTest::handMadeTable()
{
    const Measured measured(acrossBytes(), tools);
    const QJsonObject expected{
        {"file", measured.photographPath}, {"unit", "C"}, {"tools", jsonRows(rowsOfAcross)}};
    QCOMPARE(measured.object({}), expected);
}

void MeasureTest::csv()
{
    const Measured measured(acrossBytes(), tools);
    QByteArray expected = "file,unit,name,type,high,low,average\n";
    for (const Row& row : rowsOfAcross)
        expected += measured.photographPath.toUtf8() + ",C," + row.name + ',' + row.type + ',' +
                    row.high + ',' + row.low + ',' + row.average + '\n';
    const Ended ended = measured.run({QStringLiteral("--format=csv")});
    QCOMPARE(ended.output, expected);
    QCOMPARE(ended.status, 0);
}

void MeasureTest::table()
{
    const Measured measured(acrossBytes(), tools);
    const QByteArray expected = measured.photographPath.toUtf8() +
                                " (°C)\n"
                                "name  type          high      low  average\n"
                                "P0    point         30.0     30.0     30.0\n"
                                "P1    point         20.0     20.0     20.0\n"
                                "L0    line          22.0     21.0     21.5\n"
                                "R0    rectangle     23.0     21.0     22.0\n"
                                "C0    circle        30.5     29.5     30.0\n";
    QCOMPARE(measured.run({}).output, expected);
    QCOMPARE(measured.run({QStringLiteral("--format"), QStringLiteral("table")}).output, expected);
}

void MeasureTest::units_data()
{
    QTest::addColumn<int>("fileUnit");
    QTest::addColumn<QStringList>("option");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<QString>("value");
    const QStringList inC{QStringLiteral("--unit"), QStringLiteral("C")};
    const QStringList inF{QStringLiteral("--unit"), QStringLiteral("F")};
    QTest::newRow("C file") << 0 << QStringList() << "C"
                            << "30.0";
    QTest::newRow("C file in C") << 0 << inC << "C"
                                 << "30.0";
    // 300 / 5.556 + 32 = 85.996
    QTest::newRow("C file in F") << 0 << inF << "F"
                                 << "86.0";
    QTest::newRow("F file") << 1 << QStringList() << "F"
                            << "30.0";
    // 300 / 18 − 17.78 = −1.113
    QTest::newRow("F file in C") << 1 << inC << "C"
                                 << "-1.1";
    QTest::newRow("F file in F") << 1 << inF << "F"
                                 << "30.0";
    // The window cannot convert what has no known unit either.
    QTest::newRow("file without a unit") << 2 << QStringList() << "C"
                                         << "30.0";
    QTest::newRow("file without a unit in F") << 2 << inF << "F"
                                              << "30.0";
}

void MeasureTest::units()
{
    QFETCH(int, fileUnit);
    QFETCH(QStringList, option);
    QFETCH(QString, unit);
    QFETCH(QString, value);
    const Measured measured(acrossBytes(fileUnit), R"({"points": [[100, 50]]})");
    const QJsonObject object = measured.object(option);
    QCOMPARE(object[QStringLiteral("unit")].toString(), unit);
    const QJsonObject point = object[QStringLiteral("tools")].toArray()[0].toObject();
    for (const char* key : {"high", "low", "average"})
        QCOMPARE(point[QLatin1String(key)], QJsonValue(value.toDouble()));
}

void MeasureTest::everyKind_data()
{
    QTest::addColumn<int>("sample");
    QTest::addColumn<int>("unitIndex");
    for (int i = 0; i < int(testing::samples().size()); ++i) {
        const char* name = testing::samples()[std::size_t(i)].name;
        QTest::addRow("%s in C", name) << i << 0;
        QTest::addRow("%s in F", name) << i << 1;
    }
}

/// The rows that the window puts into its table for the same photograph and tools.
void MeasureTest::everyKind()
{
    QFETCH(int, sample);
    QFETCH(int, unitIndex);
    const testing::Sample& kind = testing::samples()[std::size_t(sample)];
    const Measured measured(kind.bytes(), R"({"points": [[0, 0], [239, 319], [240, 320]],
        "lines": [[3, 4, 200, 310], [239, 0, 0, 319], [7, 20, 7, 300]], "rectangles": [[0, 0, 239, 319]],
        "circles": [[2, 2, 1], [120, 160, 1], [160, 240, 79]]})");

    analysis::FileBuffer buffer;
    const int readCount = buffer.read(measured.photographPath);
    analysis::Photograph photograph;
    QVERIFY(analysis::read(buffer.bytes(), readCount, kind.settings.modelIndex, photograph));
    overlay::Tools placed;
    placed.pointList = {{"P0", 0, 0}, {"P1", 239, 319}, {"P2", 240, 320}};
    placed.lineList = {{"L0", 3, 4, 200, 310}, {"L1", 239, 0, 0, 319}, {"L2", 7, 20, 7, 300}};
    placed.rectList = {{"R0", 0, 0, 239, 319}};
    placed.circleList = {
        {"C0", 2, 2, 0, 0, 1}, {"C1", 120, 160, 0, 0, 1}, {"C2", 160, 240, 0, 0, 79}};
    const analysis::Conversion conversion = analysis::conversionFor(
        unitIndex, 0, photograph.parameters.unit, kind.settings.raw, analysis::unchanged);
    const auto rows = toolRows(placed, photograph.temperatures, conversion);

    const QString unit = unitIndex == 1 ? QStringLiteral("F") : QStringLiteral("C");
    const QJsonObject object = measured.object({QStringLiteral("--unit"), unit});
    QCOMPARE(object[QStringLiteral("unit")].toString(), unit);
    const QJsonArray found = object[QStringLiteral("tools")].toArray();
    QCOMPARE(found.size(), int(rows.size()));
    for (int i = 0; i < found.size(); ++i) {
        const QJsonObject tool = found[i].toObject();
        const analysis::ToolRow& row = rows[std::size_t(i)];
        QCOMPARE(tool[QStringLiteral("name")].toString(), row.name);
        QCOMPARE(tool[QStringLiteral("high")], QJsonValue(row.high.toDouble()));
        QCOMPARE(tool[QStringLiteral("low")], QJsonValue(row.low.toDouble()));
        QCOMPARE(tool[QStringLiteral("average")], QJsonValue(row.average.toDouble()));
    }
}

void MeasureTest::noTools()
{
    const Measured measured(acrossBytes(), "{}");
    QCOMPARE(measured.object({})[QStringLiteral("tools")].toArray(), QJsonArray());
    QCOMPARE(measured.run({QStringLiteral("--format=csv")}).output,
             QByteArray("file,unit,name,type,high,low,average\n"));
}

/// A photograph without a gray span has no temperatures, and JSON no word for them.
void MeasureTest::noNumbers()
{
    Shot shot;
    shot.grayMinimum = shot.grayMaximum = 100;
    shot.gray = [](int, int) {
        return 100;
    };
    const Measured measured(photographBytes(shot), R"({"points": [[100, 50]]})");
    const QJsonObject point = measured.object({})[QStringLiteral("tools")].toArray()[0].toObject();
    for (const char* key : {"high", "low", "average"})
        QVERIFY(point[QLatin1String(key)].isNull());
    QVERIFY(measured.run({QStringLiteral("--format=csv")}).output.endsWith(",nan,nan,nan\n"));
}

void MeasureTest::separatorsInNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("field");
    QTest::newRow("blank") << "a b.bmp" << QByteArray("a b.bmp");
    QTest::newRow("comma") << "a,b.bmp" << QByteArray(R"("a,b.bmp")");
    if (testing::onWindows()) // where no name may hold these
        return;
    QTest::newRow("quote") << "a\"b.bmp" << QByteArray(R"("a""b.bmp")");
    QTest::newRow("line end") << "a\nb.bmp" << QByteArray("\"a\nb.bmp\"");
}

/// A spreadsheet finds the name again whatever is in it.
void MeasureTest::separatorsInNames()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, field);
    const Folder folder;
    folder.write(name, acrossBytes());
    folder.write(QStringLiteral("tools.json"), R"({"points": [[100, 50]]})");
    const Ended ended =
        thermaphoto({measure, QStringLiteral("--tools"), QStringLiteral("tools.json"),
                     QStringLiteral("--format"), QStringLiteral("csv"), name},
                    folder.path());
    QCOMPARE(ended.output,
             "file,unit,name,type,high,low,average\n" + field + ",C,P0,point,30.0,30.0,30.0\n");
}

void MeasureTest::otherPhotographsGoOn()
{
    const Measured measured(acrossBytes(), tools);
    const QString missing = measured / QStringLiteral("missing.bmp");
    const QString cut = measured.write(QStringLiteral("cut.bmp"), acrossBytes().left(300000));
    const Ended ended = measured.run({QStringLiteral("--format=json"), missing, cut,
                                      measured.write(QStringLiteral("c.bmp"), acrossBytes())});
    QCOMPARE(ended.status, 1);
    QCOMPARE(ended.json().size(), 2);
    QCOMPARE(ended.errorLines().size(), 2);
    QVERIFY(ended.errorLines()[0].contains(missing.toUtf8()));
    QVERIFY(ended.errorLines()[1].contains(cut.toUtf8()));
}

int main(int argc, char** argv)
{
    return testing::run<MeasureTest>(argc, argv);
}

#include "measure_test.moc"
