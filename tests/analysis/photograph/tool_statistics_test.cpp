#include "analysis/photograph/tool_statistics.h"
#include "tests/support/test_run.h"

#include <cmath>
#include <limits>
#include <memory>
#include <random>

using analysis::AreaStatistics;
using analysis::Temperatures;
using overlay::CircleTool;
using overlay::LineTool;
using overlay::PointTool;
using overlay::RectTool;
using overlay::Tools;

namespace {

PointTool point(int x, int y)
{
    PointTool tool;
    tool.name = QStringLiteral("P0");
    tool.x = x;
    tool.y = y;
    return tool;
}

LineTool line(int x1, int y1, int x2, int y2)
{
    LineTool tool;
    tool.name = QStringLiteral("L0");
    tool.x1 = x1;
    tool.y1 = y1;
    tool.x2 = x2;
    tool.y2 = y2;
    return tool;
}

RectTool rect(int x1, int y1, int x2, int y2)
{
    RectTool tool;
    tool.name = QStringLiteral("R0");
    tool.x1 = x1;
    tool.y1 = y1;
    tool.x2 = x2;
    tool.y2 = y2;
    return tool;
}

CircleTool circle(int cx, int cy, int radius)
{
    CircleTool tool;
    tool.name = QStringLiteral("C0");
    tool.cx = cx;
    tool.cy = cy;
    tool.radius = radius;
    return tool;
}

bool covers(const LineTool& t, int x, int y)
{
    if (t.x1 == t.x2 && t.y1 == t.y2)
        return false;
    const int dx = t.x2 - t.x1;
    const int dy = t.y2 - t.y1;
    const double u = double((y - t.y1) * dy + (x - t.x1) * dx) / double(dx * dx + dy * dy);
    const int fx = t.x1 + int(dx * u);
    const int fy = t.y1 + int(dy * u);
    return int(std::sqrt(double((x - fx) * (x - fx) + (y - fy) * (y - fy)))) < 2;
}

bool covers(const RectTool&, int, int)
{
    return true;
}

bool covers(const CircleTool& t, int x, int y)
{
    const int dx = x - t.cx;
    const int dy = y - t.cy;
    return int(std::sqrt(double(dx * dx + dy * dy))) <= t.radius;
}

struct Box
{
    int x1, y1, x2, y2;
};

template<typename Cornered>
Box boxOf(const Cornered& t)
{
    return {std::min(t.x1, t.x2), std::min(t.y1, t.y2), std::max(t.x1, t.x2), std::max(t.y1, t.y2)};
}
Box boxOf(const CircleTool& t)
{
    return {t.cx - t.radius, t.cy - t.radius, t.cx + t.radius, t.cy + t.radius};
}

template<typename Tool>
AreaStatistics plainly(const Tool& tool, const Temperatures& temperatures)
{
    AreaStatistics result{std::is_same_v<Tool, CircleTool> ? -50.0F : -10.0F, 2000.0F, 0.0F, 0};
    float sum = 0.0F;
    const Box box = boxOf(tool);
    for (int x = box.x1; x <= box.x2; ++x) {
        for (int y = box.y1; y <= box.y2; ++y) {
            if (x < 0 || x > 239 || y < 0 || y > 319 || !covers(tool, x, y))
                continue;
            const float t = temperatures[std::size_t(x * 320 + y)];
            if (t > result.high)
                result.high = t;
            if (t < result.low)
                result.low = t;
            sum += t;
            ++result.pixels;
        }
    }
    if (result.pixels > 0)
        result.average = sum / float(result.pixels);
    return result;
}

std::vector<AreaStatistics> plainly(const Tools& tools, const Temperatures& temperatures)
{
    std::vector<AreaStatistics> all;
    for (const LineTool& tool : tools.lineList)
        all.push_back(plainly(tool, temperatures));
    for (const RectTool& tool : tools.rectList)
        all.push_back(plainly(tool, temperatures));
    for (const CircleTool& tool : tools.circleList)
        all.push_back(plainly(tool, temperatures));
    return all;
}

bool same(float a, float b)
{
    return a == b || (std::isnan(a) && std::isnan(b));
}

bool same(const AreaStatistics& a, const AreaStatistics& b)
{
    return same(a.high, b.high) && same(a.low, b.low) && same(a.average, b.average) &&
           a.pixels == b.pixels;
}

QStringList texts(const analysis::ToolRow& row)
{
    return {row.high, row.low, row.average};
}

} // namespace

class ToolStatisticsTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<Temperatures> temperatures;
    std::mt19937 random{4711};

    int upTo(int end) { return std::uniform_int_distribution<int>(0, end - 1)(random); }

    void fill(float value) { temperatures->fill(value); }
    float& at(int x, int y) { return (*temperatures)[std::size_t(x * 320 + y)]; }

    void fillRandomly()
    {
        std::uniform_real_distribution<float> anything(-40.0F, 150.0F);
        for (float& t : *temperatures)
            t = anything(random);
    }

    AreaStatistics measured(const Tools& tools)
    {
        const auto all = analysis::measureAreas(tools, *temperatures);
        return all.size() == 1 ? all.front() : AreaStatistics{0, 0, 0, -1};
    }
    AreaStatistics measured(const LineTool& tool) { return measured(Tools{{}, {tool}, {}, {}}); }
    AreaStatistics measured(const RectTool& tool) { return measured(Tools{{}, {}, {tool}, {}}); }
    AreaStatistics measured(const CircleTool& tool) { return measured(Tools{{}, {}, {}, {tool}}); }

    std::vector<analysis::ToolRow> rows(const Tools& tools, analysis::Conversion conversion = {})
    {
        return analysis::toolRows(tools, *temperatures, conversion);
    }

    /// Compares with the plain rules; false with a message at the first difference.
    bool agrees(const Tools& tools)
    {
        const auto expected = plainly(tools, *temperatures);
        const auto found = analysis::measureAreas(tools, *temperatures);
        if (found.size() != expected.size())
            return false;
        for (std::size_t i = 0; i < found.size(); ++i) {
            if (same(found[i], expected[i]))
                continue;
            qWarning("area %zu: %g %g %g (%d pixels) instead of %g %g %g (%d)", i,
                     double(found[i].high), double(found[i].low), double(found[i].average),
                     found[i].pixels, double(expected[i].high), double(expected[i].low),
                     double(expected[i].average), expected[i].pixels);
            return false;
        }
        return true;
    }

private slots:
    void initTestCase() { temperatures = std::make_unique<Temperatures>(); }
    void init() { fill(20.0F); }

    void aUprightLineIsOnePixelWide()
    {
        for (int y = 20; y <= 40; ++y)
            at(10, y) = float(y);
        at(10, 19) = at(10, 41) = at(9, 30) = at(11, 30) = 500.0F;
        for (const LineTool& tool : {line(10, 20, 10, 40), line(10, 40, 10, 20)}) {
            const AreaStatistics found = measured(tool);
            QCOMPARE(found.pixels, 21);
            QCOMPARE(found.high, 40.0F);
            QCOMPARE(found.low, 20.0F);
            QCOMPARE(found.average, 30.0F);
        }
        QCOMPARE(measured(line(20, 10, 40, 10)).pixels, 21);
    }

    void aSlantedLineTakesItsNeighbours()
    {
        // Of the box of 16 only two corners are out: their feet are truncated to (1, 1), √5 away.
        QCOMPARE(measured(line(0, 0, 3, 3)).pixels, 14);
        QCOMPARE(measured(line(0, 0, 1, 1)).pixels, 4);
        QCOMPARE(measured(line(0, 0, 2, 1)).pixels, 6);
    }

    void aLineWithoutExtentCoversNothing()
    {
        const AreaStatistics found = measured(line(50, 60, 50, 60));
        QCOMPARE(found.pixels, 0);
        QCOMPARE(found.high, -10.0F);
        QCOMPARE(found.low, 2000.0F);
        QCOMPARE(found.average, 0.0F);
    }

    void everyShortLineIsMeasuredByTheRule()
    {
        fillRandomly();
        for (int dx = -25; dx <= 25; ++dx) {
            Tools tools;
            for (int dy = -25; dy <= 25; ++dy)
                tools.lineList.append(line(100, 100, 100 + dx, 100 + dy));
            QVERIFY2(agrees(tools), qPrintable(QStringLiteral("dx %1").arg(dx)));
        }
    }

    /// No window draws them, but whoever hands them over gets what lies in the picture.
    void linesThatBeginOutsideThePicture()
    {
        fillRandomly();
        QCOMPARE(measured(line(136, -38, 136, 297)).pixels, 298);
        QCOMPARE(measured(line(136, 700, 136, 20)).pixels, 300);
        QCOMPARE(measured(line(3, 7, 900, 7)).pixels, 237);
        Tools tools;
        for (int i = 0; i < 400; ++i) {
            const auto anywhere = [&] {
                return upTo(1200) - 500;
            };
            LineTool tool = line(upTo(700), anywhere(), anywhere(), anywhere());
            if (i % 3 == 0)
                tool.x2 = tool.x1;
            else if (i % 3 == 1)
                tool.y2 = tool.y1;
            tools.lineList.append(tool);
        }
        QVERIFY(agrees(tools));
    }

    void longLinesAreMeasuredByTheRule()
    {
        fillRandomly();
        for (int round = 0; round < 40; ++round) {
            Tools tools;
            for (int i = 0; i < 10; ++i)
                tools.lineList.append(line(upTo(241), upTo(321), upTo(241), upTo(321)));
            QVERIFY2(agrees(tools), qPrintable(QStringLiteral("round %1").arg(round)));
        }
        Tools borders;
        for (int x : {0, 1, 239, 240}) {
            for (int y : {0, 1, 319, 320}) {
                borders.lineList.append(line(0, 0, x, y));
                borders.lineList.append(line(240, 320, x, y));
                borders.lineList.append(line(x, y, 0, 320));
            }
        }
        QVERIFY(agrees(borders));
    }

    void aRectangleIncludesItsEdges()
    {
        for (int x = 10; x <= 12; ++x) {
            for (int y = 20; y <= 23; ++y)
                at(x, y) = float(x + y);
        }
        for (const RectTool& tool : {rect(10, 20, 12, 23), rect(12, 23, 10, 20),
                                     rect(12, 20, 10, 23), rect(10, 23, 12, 20)}) {
            const AreaStatistics found = measured(tool);
            QCOMPARE(found.pixels, 12);
            QCOMPARE(found.high, 35.0F);
            QCOMPARE(found.low, 30.0F);
            QCOMPARE(found.average, 32.5F);
        }
        QCOMPARE(measured(rect(5, 5, 5, 5)).pixels, 1);
    }

    void circles_data()
    {
        QTest::addColumn<int>("radius");
        QTest::addColumn<int>("pixels");
        QTest::newRow("centre alone") << 0 << 1;
        QTest::newRow("with all eight neighbours") << 1 << 9;
        // Distances below 3: 25 pixels of the box, (±2, ±2) at 2.83 included.
        QTest::newRow("two") << 2 << 25;
        // Below 4 the corners (±3, ±3) at 4.24 are out.
        QTest::newRow("three") << 3 << 45;
        QTest::newRow("not dragged yet") << -1 << 0;
        QTest::newRow("negative") << -7 << 0;
    }
    void circles()
    {
        QFETCH(int, radius);
        QFETCH(int, pixels);
        const AreaStatistics found = measured(circle(100, 100, radius));
        QCOMPARE(found.pixels, pixels);
        QCOMPARE(found.high, pixels > 0 ? 20.0F : -50.0F);
        QCOMPARE(found.low, pixels > 0 ? 20.0F : 2000.0F);
        QCOMPARE(found.average, pixels > 0 ? 20.0F : 0.0F);
    }

    void everyCircleIsMeasuredByTheRule()
    {
        fillRandomly();
        for (int radius = 0; radius < 120; ++radius) {
            Tools tools;
            tools.circleList.append(circle(120, 160, radius));
            tools.circleList.append(circle(upTo(241), upTo(321), radius));
            QVERIFY2(agrees(tools), qPrintable(QStringLiteral("radius %1").arg(radius)));
        }
    }

    void mixedToolsOfAllSizesAgreeWithTheRules()
    {
        fillRandomly();
        for (int round = 0; round < 20; ++round) {
            Tools tools;
            for (int i = upTo(12); i >= 0; --i)
                tools.lineList.append(line(upTo(241), upTo(321), upTo(241), upTo(321)));
            for (int i = upTo(12); i >= 0; --i)
                tools.rectList.append(rect(upTo(241), upTo(321), upTo(241), upTo(321)));
            for (int i = upTo(12); i >= 0; --i)
                tools.circleList.append(circle(upTo(241), upTo(321), upTo(120)));
            QVERIFY(agrees(tools));
        }
    }

    void pixelsOutsideThePictureDoNotCount()
    {
        fillRandomly();
        QCOMPARE(measured(rect(239, 319, 240, 320)).pixels, 1);
        QCOMPARE(measured(rect(240, 320, 240, 320)).pixels, 0);
        QCOMPARE(measured(rect(0, 0, 240, 320)).pixels, 76800);
        QCOMPARE(measured(line(240, 0, 240, 319)).pixels, 0);
        QCOMPARE(measured(line(239, 310, 239, 320)).pixels, 10);
        QCOMPARE(measured(circle(240, 320, 1)).pixels, 1);
        QCOMPARE(measured(circle(0, 0, 1)).pixels, 4);
        Tools far;
        far.rectList.append(rect(5, -400, 500, 900));
        far.circleList.append(circle(600, 100, 500));
        far.lineList.append(line(3, -50, 300, 400));
        QVERIFY(agrees(far));
    }

    void extremesStartFromFixedValues()
    {
        fill(-60.0F);
        QCOMPARE(measured(rect(0, 0, 9, 9)).high, -10.0F);
        QCOMPARE(measured(line(0, 0, 0, 9)).high, -10.0F);
        QCOMPARE(measured(circle(50, 50, 3)).high, -50.0F);
        QCOMPARE(measured(circle(50, 50, 3)).low, -60.0F);
        fill(2500.0F);
        QCOMPARE(measured(rect(0, 0, 9, 9)).low, 2000.0F);
        QCOMPARE(measured(circle(50, 50, 3)).low, 2000.0F);
        QCOMPARE(measured(circle(50, 50, 3)).high, 2500.0F);
    }

    void sumsAreOfSinglePrecision()
    {
        fill(27.0614F);
        const AreaStatistics found = measured(rect(0, 0, 239, 319));
        QCOMPARE(found.pixels, 76800);
        const Tools tools{{}, {}, {rect(0, 0, 239, 319)}, {}};
        QCOMPARE(
            texts(rows(tools).front()),
            QStringList({QStringLiteral("27.1"), QStringLiteral("27.1"), QStringLiteral("27.0")}));
    }

    void sumsGoDownTheColumnsFromLeftToRight()
    {
        // 2^24 swallows single ones; what is added before it counts, what follows does not.
        fill(1.0F);
        at(1, 0) = 16777216.0F;
        // x outer: 1 + 1 + 2^24 + 1 + ... → 16777218, then each 1 is a tie to even and is lost.
        const AreaStatistics found = measured(rect(0, 0, 1, 1));
        QCOMPARE(found.average, 16777218.0F / 4.0F);
        at(1, 0) = 1.0F;
        at(0, 0) = 16777216.0F;
        QCOMPARE(measured(rect(0, 0, 1, 1)).average, 16777216.0F / 4.0F);
    }

    void notANumberChangesNoExtreme()
    {
        const float nothing = std::numeric_limits<float>::quiet_NaN();
        fill(nothing);
        const Tools tools{
            {point(1, 1)}, {line(0, 0, 0, 5)}, {rect(0, 0, 100, 100)}, {circle(50, 50, 20)}};
        const auto table = rows(tools);
        QCOMPARE(texts(table[0]), QStringList({QStringLiteral("nan"), QStringLiteral("nan"),
                                               QStringLiteral("nan")}));
        QCOMPARE(texts(table[1]), QStringList({QStringLiteral("-10.0"), QStringLiteral("2000.0"),
                                               QStringLiteral("nan")}));
        QCOMPARE(texts(table[2]), QStringList({QStringLiteral("-10.0"), QStringLiteral("2000.0"),
                                               QStringLiteral("nan")}));
        QCOMPARE(texts(table[3]), QStringList({QStringLiteral("-50.0"), QStringLiteral("2000.0"),
                                               QStringLiteral("nan")}));
        for (std::size_t i = 0; i < temperatures->size(); i += 3)
            (*temperatures)[i] = float(i % 100);
        QVERIFY(agrees(tools));
    }

    void infiniteTemperatures()
    {
        fill(std::numeric_limits<float>::infinity());
        const Tools tools{{}, {}, {rect(0, 0, 3, 3)}, {}};
        QCOMPARE(
            texts(rows(tools).front()),
            QStringList({QStringLiteral("inf"), QStringLiteral("2000.0"), QStringLiteral("inf")}));
        at(0, 0) = -std::numeric_limits<float>::infinity();
        QCOMPARE(
            texts(rows(tools).front()),
            QStringList({QStringLiteral("inf"), QStringLiteral("-inf"), QStringLiteral("nan")}));
    }

    void pointsShowOneTemperatureThreeTimes()
    {
        at(30, 200) = 25.0F;
        const Tools tools{{point(30, 200)}, {}, {}, {}};
        QCOMPARE(
            texts(rows(tools).front()),
            QStringList({QStringLiteral("25.0"), QStringLiteral("25.0"), QStringLiteral("25.0")}));
        QCOMPARE(
            texts(rows(tools, analysis::toFahrenheit).front()),
            QStringList({QStringLiteral("77.0"), QStringLiteral("77.0"), QStringLiteral("77.0")}));
    }

    void pointsOnTheFarEdgeTakeTheNearestPixel()
    {
        at(239, 319) = 31.0F;
        at(100, 319) = 32.0F;
        at(101, 0) = 99.0F; // next in the matrix after (100, 319)
        const auto table = rows({{point(240, 320), point(100, 320), point(240, 319)}, {}, {}, {}});
        QCOMPARE(table[0].high, QStringLiteral("31.0"));
        QCOMPARE(table[1].high, QStringLiteral("32.0"));
        QCOMPARE(table[2].high, QStringLiteral("31.0"));
    }

    void rowsComeByKindAndUnplacedToolsAreLeftOut()
    {
        Tools tools{{point(1, 1), point(-1, -1), point(2, 2)},
                    {line(-1, -1, -1, -1), line(0, 0, 5, 5)},
                    {rect(0, 0, 5, 5), rect(-1, 3, 4, 4)},
                    {circle(9, 9, -1), circle(-1, -1, -1)}};
        tools.pointList[2].name = QStringLiteral("P2");
        const auto table = rows(tools);
        QStringList names;
        for (const auto& row : table)
            names.append(row.name);
        QCOMPARE(names,
                 QStringList({QStringLiteral("P0"), QStringLiteral("P2"), QStringLiteral("L0"),
                              QStringLiteral("R0"), QStringLiteral("C0")}));
        QVERIFY(table[0].kind == overlay::ToolKind::Point);
        QVERIFY(table[2].kind == overlay::ToolKind::Line);
        QVERIFY(table[3].kind == overlay::ToolKind::Rect);
        QVERIFY(table[4].kind == overlay::ToolKind::Circle);
        // Just pressed, not dragged: nothing measured yet.
        QCOMPARE(texts(table[4]), QStringList({QStringLiteral("-50.0"), QStringLiteral("2000.0"),
                                               QStringLiteral("0.0")}));
    }

    void sentinelsAreConvertedToo()
    {
        const Tools tools{{}, {line(4, 4, 4, 4)}, {}, {circle(9, 9, -1)}};
        const auto table = rows(tools, analysis::toFahrenheit);
        QCOMPARE(texts(table[0]), QStringList({QStringLiteral("14.0"), QStringLiteral("3631.7"),
                                               QStringLiteral("32.0")}));
        QCOMPARE(texts(table[1]), QStringList({QStringLiteral("-58.0"), QStringLiteral("3631.7"),
                                               QStringLiteral("32.0")}));
    }

    void noToolsNoRows() { QVERIFY(rows({}).empty()); }
};

int main(int argc, char** argv)
{
    return testing::run<ToolStatisticsTest>(argc, argv);
}

#include "tool_statistics_test.moc"
