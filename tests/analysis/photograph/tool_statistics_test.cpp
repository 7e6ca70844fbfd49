// SPDX-License-Identifier: MIT
#include "analysis/photograph/tool_statistics.h"
#include "tests/analysis/photograph/placed_tools.h"
#include "tests/analysis/photograph/plainly_measured.h"
#include "tests/support/test_run.h"

#include <cmath>
#include <limits>
#include <memory>
#include <random>

using analysis::AreaStatistics;
using analysis::Temperatures;
using overlay::CircleTool;
using overlay::LineTool;
using overlay::RectTool;
using overlay::Tools;
using testing::circle;
using testing::line;
using testing::plainly;
using testing::rect;

namespace {

bool same(float a, float b)
{
    return a == b || (std::isnan(a) && std::isnan(b));
}

bool same(const AreaStatistics& a, const AreaStatistics& b)
{
    return same(a.high, b.high) && same(a.low, b.low) && same(a.average, b.average) &&
           a.pixels == b.pixels;
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
        QCOMPARE(QString::number(double(found.average), 'f', 1), QStringLiteral("27.0"));
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
        fill(std::numeric_limits<float>::quiet_NaN());
        const Tools tools{{}, {line(0, 0, 0, 5)}, {rect(0, 0, 100, 100)}, {circle(50, 50, 20)}};
        QVERIFY(agrees(tools));
        for (std::size_t i = 0; i < temperatures->size(); i += 3)
            (*temperatures)[i] = float(i % 100);
        QVERIFY(agrees(tools));
    }
};

int main(int argc, char** argv)
{
    return testing::run<ToolStatisticsTest>(argc, argv);
}

#include "tool_statistics_test.moc"
