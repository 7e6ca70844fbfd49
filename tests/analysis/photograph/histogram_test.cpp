// SPDX-License-Identifier: MIT
#include "analysis/photograph/histogram.h"
#include "tests/support/test_run.h"

#include <cmath>
#include <limits>
#include <numeric>
#include <random>

using analysis::Area;
using analysis::Bins;
using analysis::binsByCount;
using analysis::binsByWidth;
using analysis::Histogram;
using analysis::histogramOf;
using analysis::shareBetween;

namespace {

constexpr double nothing = std::numeric_limits<double>::quiet_NaN();
constexpr double infinite = std::numeric_limits<double>::infinity();

Area areaOf(const std::vector<double>& values)
{
    Area area;
    for (const double value : values)
        area.readings.push_back(
            {int(area.readings.size()) % 240, int(area.readings.size()) / 240, value});
    return area;
}

/// Each bin looks through all values and takes those between its edges.
std::vector<int> plainCounts(const std::vector<double>& values, const Bins& bins)
{
    std::vector<int> counts;
    for (int bin = 0; bin < bins.count; ++bin) {
        const double lower = bins.edge(bin);
        const double upper = bins.edge(bin + 1);
        const bool isLast = bin == bins.count - 1;
        int count = 0;
        for (const double value : values)
            count += value >= lower && (value < upper || (isLast && value == upper)) ? 1 : 0;
        counts.push_back(count);
    }
    return counts;
}

} // namespace

class HistogramTest : public QObject
{
    Q_OBJECT

private slots:
    void byHand()
    {
        const Area area =
            areaOf({9.9, 10, 10.5, 12, 13.9, 14, 19.999, 20, 20.001, nothing, infinite, -infinite});
        const Histogram found = histogramOf(area, *binsByCount(10, 20, 5));
        QCOMPARE(found.counts, std::vector<int>({2, 2, 1, 0, 2}));
        QCOMPARE(found.below, 1);
        QCOMPARE(found.above, 1);
        QCOMPARE(found.withoutReading, 3);
    }

    void edges()
    {
        const std::optional<Bins> bins = binsByCount(-1, 2, 10);
        QVERIFY(bins);
        QCOMPARE(bins->edge(0), -1.0);
        QCOMPARE(bins->edge(5), 0.5);
        QCOMPARE(bins->edge(10), 2.0);
        QCOMPARE(bins->width(), 0.3);
        QVERIFY(bins->binOf(-1.0) == 0);
        QVERIFY(bins->binOf(2.0) == 9);
        QVERIFY(!bins->binOf(2.0001));
        QVERIFY(!bins->binOf(-1.0001));
        QVERIFY(!bins->binOf(nothing));
        QVERIFY(!bins->binOf(infinite));
    }

    /// An edge belongs to the bin above it, however it was rounded.
    void eachEdgeBelongsToTheBinAboveIt()
    {
        for (int count = 1; count < 400; ++count) {
            const Bins bins{20.1, 37.3, count};
            for (int bin = 0; bin < count; ++bin) {
                QVERIFY(bins.binOf(bins.edge(bin)) == bin);
                QVERIFY(bins.binOf(std::nextafter(bins.edge(bin + 1), 0.0)) == bin);
            }
        }
    }

    void aWidthGivesAsManyBinsAsTheRangeNeeds()
    {
        QCOMPARE(binsByWidth(0, 10, 2)->count, 5);
        QCOMPARE(binsByWidth(0, 10, 2)->to, 10.0);
        QCOMPARE(binsByWidth(0, 10, 3)->count, 4);
        QCOMPARE(binsByWidth(0, 10, 3)->to, 12.0);
        QCOMPARE(binsByWidth(20, 20.3, 0.1)->count, 3);
        QCOMPARE(binsByWidth(20, 21, 50)->count, 1);
        QCOMPARE(binsByWidth(20, 21, 50)->to, 70.0);
    }

    void binsThatMakeNoSense()
    {
        QVERIFY(!binsByCount(10, 10, 5));
        QVERIFY(!binsByCount(11, 10, 5));
        QVERIFY(!binsByCount(10, 20, 0));
        QVERIFY(!binsByCount(10, 20, -1));
        QVERIFY(!binsByCount(10, 20, Bins::most + 1));
        QVERIFY(binsByCount(10, 20, Bins::most));
        QVERIFY(!binsByCount(nothing, 20, 5));
        QVERIFY(!binsByCount(10, infinite, 5));
        QVERIFY(!binsByWidth(10, 20, 0));
        QVERIFY(!binsByWidth(10, 20, -1));
        QVERIFY(!binsByWidth(10, 20, nothing));
        QVERIFY(!binsByWidth(10, 20, infinite));
        QVERIFY(!binsByWidth(10, 20, 1e-9));
        QVERIFY(!binsByWidth(20, 10, 1));
        QVERIFY(!binsByWidth(-infinite, 10, 1));
    }

    void randomValuesAgreeWithASecondReckoning()
    {
        std::mt19937 random(16);
        std::normal_distribution<double> room(25.0, 4.0);
        std::vector<double> values(5000);
        for (double& value : values)
            value = std::round(room(random) * 10) / 10;
        const Area area = areaOf(values);
        for (const int count : {1, 2, 7, 10, 64, 200, 333}) {
            const std::optional<Bins> bins = binsByCount(15.0, 35.0, count);
            const Histogram found = histogramOf(area, *bins);
            QCOMPARE(found.counts, plainCounts(values, *bins));
            const int inside = std::accumulate(found.counts.begin(), found.counts.end(), 0);
            QCOMPARE(inside + found.below + found.above, 5000);
        }
    }

    void binsOfAnArea()
    {
        const Area area = areaOf({21.3, nothing, 29.9, 25, infinite});
        const std::optional<Bins> four = binsByCount(area, 4);
        QCOMPARE(four->from, 21.3);
        QCOMPARE(four->to, 29.9);
        QCOMPARE(four->count, 4);
        const std::optional<Bins> twos = binsByWidth(area, 2);
        QCOMPARE(twos->from, 20.0);
        QCOMPARE(twos->to, 30.0);
        QCOMPARE(twos->count, 5);
        QCOMPARE(binsByCount(areaOf({20, 20}), 5)->to, 20.001);
        QCOMPARE(binsByWidth(areaOf({20, 20}), 5)->to, 25.0);
        QVERIFY(!binsByCount(area, 0));
        QVERIFY(!binsByWidth(area, 0));
        QVERIFY(!binsByWidth(area, -1));
        QVERIFY(!binsByWidth(area, 1e-9));
        QVERIFY(!binsByCount(areaOf({nothing}), 5));
        QVERIFY(!binsByWidth({}, 5));
    }

    void suitingBins_data()
    {
        QTest::addColumn<double>("low");
        QTest::addColumn<double>("high");
        QTest::addColumn<int>("most");
        QTest::addColumn<double>("from");
        QTest::addColumn<double>("to");
        QTest::addColumn<int>("count");
        QTest::newRow("half degrees") << 19.3 << 44.8 << 60 << 19.0 << 45.0 << 52;
        QTest::newRow("fifths") << 20.05 << 22.15 << 20 << 20.0 << 22.2 << 11;
        QTest::newRow("tens, below zero") << -37.0 << 981.0 << 120 << -40.0 << 990.0 << 103;
        QTest::newRow("one temperature") << 20.25 << 20.25 << 60 << 20.25 << 20.251 << 1;
        QTest::newRow("on the edges") << 10.0 << 20.0 << 11 << 10.0 << 21.0 << 11;
        QTest::newRow("fewest") << -3.0 << 4.0 << 2 << -5.0 << 5.0 << 2;
    }
    void suitingBins()
    {
        QFETCH(double, low);
        QFETCH(double, high);
        QFETCH(int, most);
        const std::optional<Bins> bins =
            analysis::suitingBins(areaOf({low, nothing, high, infinite}), most);
        QVERIFY(bins);
        QTEST(bins->from, "from");
        QTEST(bins->to, "to");
        QTEST(bins->count, "count");
    }

    void suitingBinsHoldEveryReading()
    {
        std::mt19937 random(5);
        std::uniform_real_distribution<float> anything(-40.0F, 400.0F);
        for (int round = 0; round < 3000; ++round) {
            const double one = double(anything(random));
            const double other =
                double(round % 3 != 0 ? std::round(anything(random)) : anything(random) / 1e6F);
            const Area area = areaOf({one, other});
            const std::optional<Bins> bins = analysis::suitingBins(area, 64);
            QVERIFY(bins && bins->count <= 64);
            QVERIFY(bins->binOf(one) && bins->binOf(other));
        }
        QVERIFY(analysis::suitingBins(areaOf({-3e38, 3e38}), 2)->count == 2);
    }

    void noReadingsNoSuitingBins()
    {
        QVERIFY(!analysis::suitingBins({}, 64));
        QVERIFY(!analysis::suitingBins(areaOf({nothing, infinite}), 64));
        QVERIFY(!analysis::suitingBins(areaOf({1, 2}), 1));
    }

    void shareBetweenTwoLimits()
    {
        const Area area = areaOf({1, 2, 3, 4, nothing, 5, infinite});
        QCOMPARE(shareBetween(area, 2, 4), 0.6);
        QCOMPARE(shareBetween(area, 4, 2), 0.6);
        QCOMPARE(shareBetween(area, 3, 3), 0.2);
        QCOMPARE(shareBetween(area, 2.1, 2.9), 0.0);
        QCOMPARE(shareBetween(area, -infinite, infinite), 1.0);
        QCOMPARE(shareBetween(area, nothing, 3), 0.0);
        QCOMPARE(shareBetween({}, 0, 9), 0.0);
        // 43.9 in single precision is more than 43.9, and 20.3 is less than 20.3.
        QCOMPARE(shareBetween(areaOf({double(20.3F), double(43.9F)}), 20.3, 43.9), 1.0);
        QCOMPARE(shareBetween(areaOf({nothing}), 0, 9), 0.0);
    }
};

int main(int argc, char** argv)
{
    return testing::run<HistogramTest>(argc, argv);
}

#include "histogram_test.moc"
