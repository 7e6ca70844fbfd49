// SPDX-License-Identifier: MIT
#include "analysis/photograph/area.h"
#include "tests/analysis/photograph/placed_tools.h"
#include "tests/analysis/photograph/plainly_measured.h"
#include "tests/support/test_run.h"

#include <memory>
#include <random>
#include <set>

using analysis::Area;
using analysis::areaOf;
using analysis::areasOf;
using analysis::Reading;
using analysis::Temperatures;
using overlay::Tools;
using testing::circle;
using testing::line;
using testing::point;
using testing::rect;

namespace {

using Pixels = std::set<std::pair<int, int>>;

/// Each pixel of the picture is asked on its own.
template<typename Tool>
Pixels plainPixels(const Tool& tool)
{
    const testing::Box box = testing::boxOf(tool);
    Pixels pixels;
    for (int y = 0; y < 320; ++y) {
        for (int x = 0; x < 240; ++x) {
            const bool isInBox = x >= box.x1 && x <= box.x2 && y >= box.y1 && y <= box.y2;
            if (isInBox && testing::covers(tool, x, y))
                pixels.emplace(x, y);
        }
    }
    return pixels;
}

} // namespace

class AreaTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<Temperatures> temperatures = std::make_unique<Temperatures>();
    std::mt19937 random{160016};

    int upTo(int last) { return std::uniform_int_distribution<int>(0, last)(random); }

    /// Each pixel is there once, with the reading of its place.
    Pixels pixelsOf(const Area& area)
    {
        Pixels pixels;
        for (const Reading& reading : area.readings) {
            const bool isNew = pixels.emplace(reading.x, reading.y).second;
            const float stored = (*temperatures)[std::size_t(reading.x * 320 + reading.y)];
            if (!isNew || reading.value != double(stored))
                qWarning("(%d, %d) is %g", reading.x, reading.y, reading.value);
            if (!isNew || reading.value != double(stored))
                return {};
        }
        return pixels;
    }

    template<typename Tool>
    bool agrees(const Tool& tool)
    {
        return pixelsOf(areaOf(tool, *temperatures, {})) == plainPixels(tool);
    }

private slots:
    void init()
    {
        for (std::size_t i = 0; i < temperatures->size(); ++i)
            (*temperatures)[i] = float(i);
    }

    void anAreaHasThePixelsOfTheTable()
    {
        for (int round = 0; round < 50; ++round) {
            QVERIFY(agrees(line(upTo(240), upTo(320), upTo(240), upTo(320))));
            QVERIFY(agrees(rect(upTo(240), upTo(320), upTo(240), upTo(320))));
            QVERIFY(agrees(circle(upTo(240), upTo(320), upTo(119))));
        }
        QVERIFY(agrees(rect(5, 7, 5, 7)));
        QVERIFY(agrees(circle(100, 100, 0)));
    }

    void aPointHasItsNearestPixel()
    {
        QVERIFY(pixelsOf(areaOf(point(30, 200), *temperatures, {})) == Pixels({{30, 200}}));
        QVERIFY(pixelsOf(areaOf(point(240, 320), *temperatures, {})) == Pixels({{239, 319}}));
        QVERIFY(pixelsOf(areaOf(point(0, 320), *temperatures, {})) == Pixels({{0, 319}}));
    }

    void whatIsNotPlacedOrHasNoExtentHasNoPixel()
    {
        QVERIFY(areaOf(point(-1, -1), *temperatures, {}).readings.empty());
        QVERIFY(areaOf(line(-1, -1, -1, -1), *temperatures, {}).readings.empty());
        QVERIFY(areaOf(line(-1, 5, 9, 5), *temperatures, {}).readings.empty());
        QVERIFY(areaOf(rect(-1, 3, 4, 4), *temperatures, {}).readings.empty());
        QVERIFY(areaOf(circle(-1, -1, -1), *temperatures, {}).readings.empty());
        QVERIFY(areaOf(line(4, 4, 4, 4), *temperatures, {}).readings.empty());
        QVERIFY(areaOf(circle(9, 9, -1), *temperatures, {}).readings.empty());
        QVERIFY(areaOf(rect(240, 320, 240, 320), *temperatures, {}).readings.empty());
    }

    void areasComeInTheOrderOfTheTable()
    {
        Tools tools{{point(1, 1), point(-1, -1), point(2, 2)},
                    {line(-1, -1, -1, -1), line(0, 0, 5, 5)},
                    {rect(0, 0, 5, 5)},
                    {circle(9, 9, -1), circle(-1, -1, -1)}};
        tools.pointList[2].name = QStringLiteral("P2");
        QStringList names;
        QList<std::size_t> pixels;
        for (const Area& area : areasOf(tools, *temperatures, {})) {
            names += area.name;
            pixels += area.readings.size();
        }
        QCOMPARE(names,
                 QStringList({QStringLiteral("P0"), QStringLiteral("P2"), QStringLiteral("L0"),
                              QStringLiteral("R0"), QStringLiteral("C0")}));
        QCOMPARE(pixels, QList<std::size_t>({1, 1, plainPixels(tools.lineList[1]).size(), 36, 0}));
        QVERIFY(areasOf({}, *temperatures, {}).empty());
    }

    void theWholePicture()
    {
        const Area picture = analysis::wholePicture(*temperatures, {});
        QCOMPARE(picture.name, QString());
        QCOMPARE(picture.readings.size(), std::size_t(76800));
        QCOMPARE(pixelsOf(picture).size(), std::size_t(76800));
    }

    /// 20.7 °C: in single precision 10 × 20.7 / 5.556 + 32, which is not 69.26 in double.
    void readingsAreWhatTheWindowShows()
    {
        temperatures->fill(20.7F);
        const float step = 10.0F * 20.7F;
        const float quotient = step / 5.556F;
        const float sum = quotient + 32.0F;
        const Area shown = areaOf(point(3, 4), *temperatures, analysis::toFahrenheit);
        QCOMPARE(shown.readings.front().value, double(sum));
        QVERIFY(shown.readings.front().value != 10.0 * 20.7 / 5.556 + 32.0);
        const Area picture = analysis::wholePicture(*temperatures, analysis::toFahrenheit);
        QCOMPARE(picture.readings.back().value, double(sum));
    }

    void readingOrderIsThatOfAPage()
    {
        QVERIFY((Reading{9, 3, 0.0}.isBefore({0, 4, 0.0})));
        QVERIFY((Reading{3, 4, 0.0}.isBefore({4, 4, 0.0})));
        QVERIFY(!(Reading{4, 4, 0.0}.isBefore({4, 4, 0.0})));
        QVERIFY(!(Reading{0, 4, 0.0}.isBefore({9, 3, 0.0})));
    }
};

int main(int argc, char** argv)
{
    return testing::run<AreaTest>(argc, argv);
}

#include "area_test.moc"
