// SPDX-License-Identifier: MIT
#include "analysis/photograph/extremes.h"
#include "tests/support/test_run.h"

#include <cmath>
#include <limits>
#include <map>
#include <memory>
#include <random>
#include <set>

using analysis::Area;
using analysis::Extremes;
using analysis::extremesOf;
using analysis::Reading;
using analysis::Temperatures;
using analysis::wholePicture;

namespace {

using Pixel = std::pair<int, int>; ///< y, x: sorted as a page is read
using Values = std::map<Pixel, double>;

/// One letter a pixel, "." where there is none.
Area drawn(const QStringList& rows)
{
    Area area;
    for (int y = 0; y < rows.size(); ++y) {
        for (int x = 0; x < rows[y].size(); ++x) {
            if (rows[y][x] != QLatin1Char('.'))
                area.readings.push_back({x, y, double(rows[y][x].unicode())});
        }
    }
    return area;
}

/// "y,x y,x …"
QString placesOf(const std::vector<Reading>& readings)
{
    QStringList places;
    for (const Reading& reading : readings)
        places += QStringLiteral("%1,%2").arg(reading.x).arg(reading.y);
    return places.join(QLatin1Char(' '));
}

/// The patch of a pixel, pixel by pixel through a set that grows until nothing is added.
std::set<Pixel> patchOf(const Values& values, Pixel pixel)
{
    std::set<Pixel> patch{pixel};
    for (std::size_t before = 0; before != patch.size();) {
        before = patch.size();
        for (const auto& entry : values) {
            const Pixel place = entry.first;
            const bool touches = std::any_of(patch.begin(), patch.end(), [&](Pixel other) {
                return std::abs(other.first - place.first) <= 1 &&
                       std::abs(other.second - place.second) <= 1;
            });
            if (entry.second == values.at(pixel) && touches)
                patch.insert(place);
        }
    }
    return patch;
}

/// The hottest, by the sentences of the header written down once more.
std::vector<Reading> plainHottest(const Area& area, int count, double distance)
{
    Values values;
    for (const Reading& reading : area.readings)
        values[{reading.y, reading.x}] = reading.value;
    std::map<std::pair<double, Pixel>, Reading> spots; // coldest first
    std::set<Pixel> seen;
    for (const auto& [pixel, value] : values) {
        if (seen.count(pixel) > 0)
            continue;
        const std::set<Pixel> patch = patchOf(values, pixel);
        seen.insert(patch.begin(), patch.end());
        double middleX = 0;
        double middleY = 0;
        bool isHot = true;
        for (const auto& [y, x] : patch) {
            middleX += double(x) / double(patch.size());
            middleY += double(y) / double(patch.size());
            for (int i = 0; i < 9; ++i) {
                const auto neighbour = values.find({y + i / 3 - 1, x + i % 3 - 1});
                isHot = isHot && (neighbour == values.end() || neighbour->second <= value);
            }
        }
        Pixel nearest = *patch.begin();
        for (const auto& [y, x] : patch) {
            if (std::hypot(x - middleX, y - middleY) + 1e-9 <
                std::hypot(nearest.second - middleX, nearest.first - middleY))
                nearest = {y, x};
        }
        if (isHot)
            spots[{-value, nearest}] = {nearest.second, nearest.first, value};
    }
    std::vector<Reading> chosen;
    for (const auto& [order, spot] : spots) {
        bool isFar = true;
        for (const Reading& before : chosen)
            isFar = isFar && std::hypot(before.x - spot.x, before.y - spot.y) > distance;
        if (isFar && int(chosen.size()) < count)
            chosen.push_back(spot);
    }
    return chosen;
}

Area negative(Area area)
{
    for (Reading& reading : area.readings)
        reading.value = -reading.value;
    return area;
}

} // namespace

class ExtremesTest : public QObject
{
    Q_OBJECT

private slots:
    void twoHillsAndAHollow()
    {
        const Area area = drawn({QStringLiteral("aaaaaaaa"), QStringLiteral("abbbaaaa"),
                                 QStringLiteral("abdbaaca"), QStringLiteral("abbbaaaa"),
                                 QStringLiteral("aaaaaAaa"), QStringLiteral("aaaaaaaa")});
        const Extremes found = extremesOf(area, 9, 0);
        QCOMPARE(placesOf(found.hottest), QStringLiteral("2,2 6,2"));
        QCOMPARE(placesOf(found.coldest), QStringLiteral("5,4"));
        QCOMPARE(found.hottest.front().value, double('d'));
        QCOMPARE(placesOf(extremesOf(area, 1, 0).hottest), QStringLiteral("2,2"));
        QCOMPARE(placesOf(extremesOf(area, 0, 0).hottest), QString());
        QCOMPARE(placesOf(extremesOf(area, -3, 0).coldest), QString());
    }

    void theDistanceMustBeMoreThanTheLeast()
    {
        const Area area = drawn({QStringLiteral("daaacaab")});
        QCOMPARE(placesOf(extremesOf(area, 9, 2.9).hottest), QStringLiteral("0,0 4,0 7,0"));
        QCOMPARE(placesOf(extremesOf(area, 9, 3.0).hottest), QStringLiteral("0,0 4,0"));
        // Too near to the second, which itself is too near to the first.
        QCOMPARE(placesOf(extremesOf(area, 9, 4.0).hottest), QStringLiteral("0,0 7,0"));
        QCOMPARE(placesOf(extremesOf(area, 9, 7.0).hottest), QStringLiteral("0,0"));
        QCOMPARE(placesOf(extremesOf(area, 9, -1.0).hottest), QStringLiteral("0,0 4,0 7,0"));
    }

    void aPatchIsOneSpotInItsMiddle()
    {
        QCOMPARE(placesOf(extremesOf(drawn({QStringLiteral("abbba")}), 9, 0).hottest),
                 QStringLiteral("2,0"));
        QCOMPARE(placesOf(extremesOf(drawn({QStringLiteral("abbbba")}), 9, 0).hottest),
                 QStringLiteral("2,0"));
        // Bent: its middle, (1.6, 1.6), is none of it, and (2, 1) and (1, 2) are as near.
        const Area bent = drawn({QStringLiteral("aaaaa"), QStringLiteral("abbba"),
                                 QStringLiteral("abaaa"), QStringLiteral("abaaa")});
        QCOMPARE(placesOf(extremesOf(bent, 9, 0).hottest), QStringLiteral("2,1"));
    }

    /// A step in a slope is level, but goes up on one side.
    void aStepIsNoExtreme()
    {
        const Extremes found = extremesOf(drawn({QStringLiteral("abbbbc")}), 9, 0);
        QCOMPARE(placesOf(found.hottest), QStringLiteral("5,0"));
        QCOMPARE(placesOf(found.coldest), QStringLiteral("0,0"));
    }

    void oneTemperatureIsOneSpot()
    {
        const auto temperatures = std::make_unique<Temperatures>();
        temperatures->fill(21.5F);
        const Extremes found = extremesOf(wholePicture(*temperatures, {}), 5, 0);
        QCOMPARE(placesOf(found.hottest), QStringLiteral("119,159"));
        QCOMPARE(placesOf(found.coldest), QStringLiteral("119,159"));
    }

    void onlyNeighboursInTheAreaCount()
    {
        const Extremes found =
            extremesOf(drawn({QStringLiteral("ab.cb"), QStringLiteral("....a")}), 9, 0);
        QCOMPARE(placesOf(found.hottest), QStringLiteral("3,0 1,0"));
        QCOMPARE(placesOf(found.coldest), QStringLiteral("0,0 4,1"));
    }

    void whatIsNoReadingIsNoNeighbour()
    {
        Area area = drawn({QStringLiteral("abzab")});
        area.readings[2].value = std::numeric_limits<double>::quiet_NaN();
        QCOMPARE(placesOf(extremesOf(area, 9, 0).hottest), QStringLiteral("1,0 4,0"));
        area.readings[2].value = std::numeric_limits<double>::infinity();
        QCOMPARE(placesOf(extremesOf(area, 9, 0).hottest), QStringLiteral("1,0 4,0"));
        QVERIFY(extremesOf({}, 9, 0).hottest.empty());
    }

    void equallyHotOnesComeInReadingOrder()
    {
        const Area area = drawn({QStringLiteral("aaaca"), QStringLiteral("aaaaa"),
                                 QStringLiteral("acaaa"), QStringLiteral("aaaca")});
        QCOMPARE(placesOf(extremesOf(area, 9, 0).hottest), QStringLiteral("3,0 1,2 3,3"));
    }

    void thePicturesOwnEdges()
    {
        const auto temperatures = std::make_unique<Temperatures>();
        temperatures->fill(20.0F);
        for (const auto& [x, y] : {Pixel(0, 0), Pixel(239, 0), Pixel(0, 319), Pixel(239, 319)})
            (*temperatures)[std::size_t(x * 320 + y)] = float(30 + x + y);
        const Extremes found = extremesOf(wholePicture(*temperatures, {}), 9, 10);
        QCOMPARE(placesOf(found.hottest), QStringLiteral("239,319 0,319 239,0 0,0"));
    }

    void randomAreasAgreeWithASecondReckoning()
    {
        std::mt19937 random(61);
        for (int round = 0; round < 60; ++round) {
            std::uniform_int_distribution<int> value(0, 2 + round % 5);
            Area area;
            for (int x = 50; x < 62; ++x) {
                for (int y = 80; y < 90; ++y) {
                    if (value(random) > 0)
                        area.readings.push_back({x, y, double(value(random))});
                }
            }
            const int count = 1 + round % 7;
            const double distance = round % 4;
            const Extremes found = extremesOf(area, count, distance);
            QCOMPARE(placesOf(found.hottest), placesOf(plainHottest(area, count, distance)));
            QCOMPARE(placesOf(found.coldest),
                     placesOf(plainHottest(negative(area), count, distance)));
        }
    }
};

int main(int argc, char** argv)
{
    return testing::run<ExtremesTest>(argc, argv);
}

#include "extremes_test.moc"
