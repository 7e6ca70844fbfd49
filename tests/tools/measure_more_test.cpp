// SPDX-License-Identifier: MIT
#include "tests/support/test_run.h"
#include "tests/tools/across.h"

#include <QJsonObject>

using testing::Across;
using testing::Ended;

namespace {

/// By hand: of equal pixels the first of the page; the deviation of n neighbours in steps of a
/// tenth is √((n² − 1) / 12) tenths.
const char* const tools = R"({"points": [[100, 50]], "lines": [[240, 20, 240, 40]],
                              "rectangles": [[30, 40, 10, 60]]})";

} // namespace

/// measure --more and what is printed as an object on each line.
class MeasureMoreTest : public QObject
{
    Q_OBJECT

private slots:
    void csv();
    void table();
    void json();
    void ndjson();
    void withoutReadings();
};

void MeasureMoreTest::csv()
{
    const Ended ended = Across(tools).run("measure --more --tools tools.json --format csv a.bmp");
    QCOMPARE(ended.output,
             QByteArray("file,unit,name,type,high,low,average,high_x,high_y,low_x,low_y,deviation,"
                        "median,pixels\n"
                        "a.bmp,C,P0,point,30.0,30.0,30.0,100,50,100,50,0.000,30.000,1\n"
                        "a.bmp,C,L0,line,-10.0,2000.0,0.0,nan,nan,nan,nan,nan,nan,0\n"
                        "a.bmp,C,R0,rectangle,23.0,21.0,22.0,30,40,10,40,0.606,22.000,441\n"));
    QCOMPARE(ended.errors, QByteArray());
    QCOMPARE(ended.status, 0);
}

void MeasureMoreTest::table()
{
    QCOMPARE(Across(R"({"rectangles": [[30, 40, 10, 60]]})")
                 .run("measure --more --tools tools.json a.bmp")
                 .output,
             QByteArray("a.bmp (°C)\n"
                        "name  type          high      low  average   high_x   high_y    low_x    "
                        "low_y deviation   median   pixels\n"
                        "R0    rectangle     23.0     21.0     22.0       30       40       10     "
                        "  40     0.606   22.000      441\n"));
}

void MeasureMoreTest::json()
{
    const QJsonArray found = Across(tools)
                                 .run("measure --more --tools tools.json --format json a.bmp")
                                 .json()[0]
                                 .toObject()["tools"]
                                 .toArray();
    const QJsonObject expected{{"name", "R0"},       {"type", "rectangle"}, {"high", 23},
                               {"low", 21},          {"average", 22},       {"high_x", 30},
                               {"high_y", 40},       {"low_x", 10},         {"low_y", 40},
                               {"deviation", 0.606}, {"median", 22},        {"pixels", 441}};
    QCOMPARE(found[2].toObject(), expected);
    QVERIFY(found[1].toObject()["median"].isNull());
    QCOMPARE(found[1].toObject()["pixels"], QJsonValue(0));
}

/// The objects of the array, one on each line.
void MeasureMoreTest::ndjson()
{
    const Across folder(tools);
    folder.write("b.bmp", testing::acrossBytes(1));
    for (const char* more : {"", "--more "}) {
        const auto as = [&](const char* format) {
            return folder.run(QStringLiteral("measure %1--tools tools.json --format %2 a.bmp b.bmp")
                                  .arg(QLatin1String(more), QLatin1String(format)));
        };
        const QByteArray lines = as("ndjson").output;
        QCOMPARE(lines.count('\n'), 2);
        QVERIFY(lines.endsWith("}\n"));
        QCOMPARE("[" + lines.trimmed().replace("\n", ",\n ") + "]\n", as("json").output);
    }
}

void MeasureMoreTest::withoutReadings()
{
    const Across folder(R"({"points": [[100, 50]]})", testing::withoutReadings());
    const QString command = QStringLiteral("measure --more --tools tools.json --format=%1 a.bmp");
    QVERIFY(folder.run(command.arg("csv"))
                .output.endsWith("point,nan,nan,nan,nan,nan,nan,nan,nan,nan,0\n"));
    const QJsonObject point =
        folder.run(command.arg("json")).json()[0].toObject()["tools"].toArray()[0].toObject();
    for (const char* key : {"high", "high_x", "low_y", "deviation", "median"})
        QVERIFY(point[key].isNull());
}

int main(int argc, char** argv)
{
    return testing::run<MeasureMoreTest>(argc, argv);
}

#include "measure_more_test.moc"
