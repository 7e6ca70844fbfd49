// SPDX-License-Identifier: MIT
#include "analysis/photograph/details.h"
#include "tests/analysis/photograph/placed_tools.h"
#include "tests/support/test_run.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>
#include <random>

using analysis::Area;
using analysis::areaOf;
using analysis::Details;
using analysis::detailsOf;
using analysis::Figure;
using analysis::Reading;
using analysis::shareAbove;
using analysis::shareBelow;
using analysis::shown;
using analysis::Temperatures;
using analysis::wholePicture;
using testing::line;
using testing::rect;

namespace {

constexpr double nothing = std::numeric_limits<double>::quiet_NaN();
constexpr double infinite = std::numeric_limits<double>::infinity();

/// A row of pixels with these readings.
Area row(const std::vector<double>& values)
{
    Area area;
    for (const double value : values)
        area.readings.push_back({int(area.readings.size()), 7, value});
    return area;
}

/// The same numbers by other ways: everything sorted, sums of the widest type from small to large.
Details plainly(const Area& area)
{
    std::vector<Reading> sorted = area.readings;
    std::sort(sorted.begin(), sorted.end(), [](const Reading& a, const Reading& b) {
        return std::make_tuple(a.value, a.y, a.x) < std::make_tuple(b.value, b.y, b.x);
    });
    const std::size_t count = sorted.size();
    Details details;
    details.low = sorted.front();
    details.high = *std::find_if(sorted.begin(), sorted.end(), [&](const Reading& reading) {
        return reading.value == sorted.back().value;
    });
    long double sum = 0;
    for (const Reading& reading : sorted)
        sum += reading.value;
    const long double mean = sum / static_cast<long double>(count);
    long double squares = 0;
    for (const Reading& reading : sorted)
        squares += (reading.value - mean) * (reading.value - mean);
    details.mean = double(mean);
    details.deviation = double(std::sqrt(squares / static_cast<long double>(count)));
    details.median = (sorted[(count - 1) / 2].value + sorted[count / 2].value) / 2;
    details.pixels = int(count);
    return details;
}

bool same(const Reading& a, const Reading& b)
{
    return a.x == b.x && a.y == b.y && a.value == b.value;
}

bool near(double a, double b)
{
    return std::abs(a - b) <= 1e-11 * std::max(1.0, std::abs(b));
}

} // namespace

class DetailsTest : public QObject
{
    Q_OBJECT

    std::mt19937 random{20};

    bool agrees(const Area& area)
    {
        const Details expected = plainly(area);
        const std::optional<Details> found = detailsOf(area);
        return found && same(found->high, expected.high) && same(found->low, expected.low) &&
               near(found->mean, expected.mean) && near(found->deviation, expected.deviation) &&
               found->median == expected.median && found->pixels == expected.pixels &&
               found->withoutReading == 0;
    }

private slots:
    /// The mean of these eight is 5, the sum of their squares from it 32.
    void aRowByHand()
    {
        const std::optional<Details> found = detailsOf(row({4, 2, 4, 9, 4, 5, 5, 7}));
        QVERIFY(found);
        QVERIFY(same(found->high, {3, 7, 9.0}));
        QVERIFY(same(found->low, {1, 7, 2.0}));
        QCOMPARE(found->mean, 5.0);
        QCOMPARE(found->deviation, 2.0);
        QCOMPARE(found->median, 4.5);
        QCOMPARE(found->pixels, 8);
        QCOMPARE(found->withoutReading, 0);
        QCOMPARE(detailsOf(row({9, 1, 5}))->median, 5.0);
    }

    void aSinglePixel()
    {
        const std::optional<Details> found = detailsOf(row({-12.5}));
        QVERIFY(found);
        QVERIFY(same(found->high, {0, 7, -12.5}));
        QVERIFY(same(found->low, {0, 7, -12.5}));
        QCOMPARE(found->mean, -12.5);
        QCOMPARE(found->deviation, 0.0);
        QCOMPARE(found->median, -12.5);
    }

    void ofEqualPixelsTheFirstOfThePageIsTold()
    {
        const Area area{{}, {{9, 8, 1.0}, {3, 9, 5.0}, {4, 2, 5.0}, {2, 2, 5.0}, {1, 9, 1.0}}};
        QVERIFY(same(detailsOf(area)->high, {2, 2, 5.0}));
        QVERIFY(same(detailsOf(area)->low, {9, 8, 1.0}));
    }

    void nothingStartsFromAFixedValue()
    {
        QCOMPARE(detailsOf(row({-60, -70}))->high.value, -60.0);
        QCOMPARE(detailsOf(row({2500, 2600}))->low.value, 2500.0);
    }

    void whatIsNoReadingIsLeftOutAndCounted()
    {
        const std::optional<Details> found =
            detailsOf(row({nothing, 3, infinite, 1, -infinite, 2, nothing}));
        QVERIFY(found);
        QVERIFY(same(found->high, {1, 7, 3.0}));
        QVERIFY(same(found->low, {3, 7, 1.0}));
        QCOMPARE(found->mean, 2.0);
        QCOMPARE(found->median, 2.0);
        QCOMPARE(found->pixels, 3);
        QCOMPARE(found->withoutReading, 4);
    }

    void anAreaWithoutReadingsHasNoDetails()
    {
        QVERIFY(!detailsOf({}));
        QVERIFY(!detailsOf(row({nothing, infinite})));
        const auto temperatures = std::make_unique<Temperatures>();
        QVERIFY(!detailsOf(areaOf(line(4, 4, 4, 4), *temperatures, {})));
        QVERIFY(!detailsOf(areaOf(rect(240, 320, 240, 320), *temperatures, {})));
        QVERIFY(!detailsOf(areaOf(rect(-1, -1, -1, -1), *temperatures, {})));
    }

    void randomAreasAgreeWithASecondReckoning()
    {
        for (const qint64 digits : {1, 1000000}) {
            std::uniform_int_distribution<qint64> tenths(-400 * digits, 10000 * digits);
            for (int round = 0; round < 60; ++round) {
                Area area;
                for (int i = 0; i <= round * round; ++i)
                    area.readings.push_back(
                        {i % 239, i / 239, double(tenths(random)) / (10.0 * double(digits))});
                std::shuffle(area.readings.begin(), area.readings.end(), random);
                QVERIFY2(agrees(area), qPrintable(QString::number(round)));
            }
        }
    }

    void theWholePictureAgreesWithASecondReckoning()
    {
        const auto temperatures = std::make_unique<Temperatures>();
        std::normal_distribution<float> room(27.06F, 0.2F);
        for (float& temperature : *temperatures)
            temperature = room(random);
        QVERIFY(agrees(wholePicture(*temperatures, analysis::toFahrenheit)));
    }

    /// Sums of squares in place of squares of differences would lose every digit of it.
    void aSmallDeviationOfLargeReadings()
    {
        std::vector<double> values(76800, 1e9);
        for (std::size_t i = 0; i < values.size(); i += 2)
            values[i] += 0.25;
        const std::optional<Details> found = detailsOf(row(values));
        QCOMPARE(found->deviation, 0.125);
        QCOMPARE(found->mean, 1e9 + 0.125);
        QCOMPARE(found->median, 1e9 + 0.125);
    }

    /// 76,800 times the same reading: the table's single precision says 27.0.
    void theAverageIsExact()
    {
        const auto temperatures = std::make_unique<Temperatures>();
        temperatures->fill(27.0614F);
        const std::optional<Details> found = detailsOf(wholePicture(*temperatures, {}));
        QVERIFY(found->mean == double(shown(27.0614F, {})));
        QVERIFY(found->deviation == 0.0);
    }

    void sharesAreStrict()
    {
        const Area area = row({1, 2, 2, 3, nothing, 4, infinite});
        QCOMPARE(shareAbove(area, 2.0), 0.4);
        QCOMPARE(shareBelow(area, 2.0), 0.2);
        QCOMPARE(shareAbove(area, 0.0), 1.0);
        QCOMPARE(shareBelow(area, 0.0), 0.0);
        QCOMPARE(shareAbove(area, 4.0), 0.0);
        QCOMPARE(shareAbove(area, nothing), 0.0);
        QCOMPARE(shareBelow(area, nothing), 0.0);
        QCOMPARE(shareAbove({}, 0.0), 0.0);
        QCOMPARE(shareBelow(row({nothing}), 0.0), 0.0);
    }

    /// 43.9 in single precision is more than 43.9, and 20.3 is less than 20.3.
    void thresholdsAreAsPreciseAsReadings()
    {
        const Area area = row({double(43.9F), double(20.3F)});
        QCOMPARE(shareAbove(area, 43.9), 0.0);
        QCOMPARE(shareAbove(area, 20.3), 0.5);
        QCOMPARE(shareBelow(area, 20.3), 0.0);
        QCOMPARE(shareBelow(area, 43.9), 0.5);
    }

    void figures()
    {
        const std::optional<Details> details = detailsOf(row({4, 2, 4, 9, 4, 5, 5, 7}));
        QCOMPARE(valueOf(*details, Figure::High), 9.0);
        QCOMPARE(valueOf(*details, Figure::Low), 2.0);
        QCOMPARE(valueOf(*details, Figure::Average), 5.0);
        QCOMPARE(valueOf(*details, Figure::Deviation), 2.0);
        QCOMPARE(valueOf(*details, Figure::Median), 4.5);
        for (std::size_t i = 0; i < analysis::figures.size(); ++i)
            QCOMPARE(std::size_t(analysis::figures[i].figure), i);
    }

    void differences()
    {
        const std::optional<Details> hot = detailsOf(row({80, 60}));
        const std::optional<Details> cold = detailsOf(row({20, 30, 40}));
        QCOMPARE(differenceOf(hot, Figure::High, cold, Figure::High), std::optional(40.0));
        QCOMPARE(differenceOf(hot, Figure::Average, cold, Figure::Low), std::optional(50.0));
        QCOMPARE(differenceOf(cold, Figure::Low, hot, Figure::High), std::optional(-60.0));
        QCOMPARE(differenceOf(hot, Figure::Low, 25.5), std::optional(34.5));
        const std::optional<Details> none = detailsOf({});
        QVERIFY(!differenceOf(hot, Figure::High, none, Figure::High));
        QVERIFY(!differenceOf(none, Figure::High, hot, Figure::High));
        QVERIFY(!differenceOf(none, Figure::High, 0.0));
        QVERIFY(!differenceOf(hot, Figure::High, nothing));
        QVERIFY(!differenceOf(hot, Figure::High, infinite));
    }
};

int main(int argc, char** argv)
{
    return testing::run<DetailsTest>(argc, argv);
}

#include "details_test.moc"
