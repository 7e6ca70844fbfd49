// SPDX-License-Identifier: MIT
#include "analysis/photograph/profile.h"
#include "tests/analysis/photograph/placed_tools.h"
#include "tests/support/test_run.h"

#include <cmath>
#include <limits>
#include <memory>
#include <random>

using analysis::profileOf;
using analysis::ProfilePoint;
using analysis::Temperatures;
using overlay::LineTool;
using testing::line;

namespace {

struct Place
{
    double distance;
    int x;
    int y;
};

/// The same line in whole numbers, pixel by pixel with an error that is carried along, the whole
/// way from its start to its end, whether inside or not.
std::vector<Place> plainly(const LineTool& tool)
{
    const int dx = std::abs(tool.x2 - tool.x1);
    const int dy = std::abs(tool.y2 - tool.y1);
    const int stepX = tool.x2 < tool.x1 ? -1 : 1;
    const int stepY = tool.y2 < tool.y1 ? -1 : 1;
    const int longer = std::max(dx, dy);
    std::vector<Place> places;
    int x = tool.x1;
    int y = tool.y1;
    int errorX = 0; // of 2 × longer
    int errorY = 0;
    for (int step = 0; step <= longer; ++step) {
        if (x >= 0 && x <= 239 && y >= 0 && y <= 319)
            places.push_back(
                {std::hypot(double(step) * dx / longer, double(step) * dy / longer), x, y});
        errorX += 2 * dx;
        if (errorX >= longer) {
            x += stepX;
            errorX -= 2 * longer;
        }
        errorY += 2 * dy;
        if (errorY >= longer) {
            y += stepY;
            errorY -= 2 * longer;
        }
    }
    return places;
}

} // namespace

class ProfileTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<Temperatures> temperatures = std::make_unique<Temperatures>();
    std::mt19937 random{161};

    int from(int first, int last)
    {
        return std::uniform_int_distribution<int>(first, last)(random);
    }

    std::vector<ProfilePoint> profile(const LineTool& tool)
    {
        return profileOf(tool, *temperatures, {});
    }

    bool agrees(const LineTool& tool)
    {
        const std::vector<Place> expected = plainly(tool);
        const std::vector<ProfilePoint> found = profile(tool);
        bool agrees = found.size() == expected.size();
        for (std::size_t i = 0; agrees && i < found.size(); ++i)
            agrees = found[i].x == expected[i].x && found[i].y == expected[i].y &&
                     std::abs(found[i].distance - expected[i].distance) < 1e-9 &&
                     found[i].value == double(found[i].x * 320 + found[i].y);
        if (!agrees)
            qWarning("%d, %d to %d, %d: %zu points", tool.x1, tool.y1, tool.x2, tool.y2,
                     found.size());
        return agrees;
    }

private slots:
    void init()
    {
        for (std::size_t i = 0; i < temperatures->size(); ++i)
            (*temperatures)[i] = float(i);
    }

    void aSlantByHand()
    {
        // Three to the right and one down: at the second of three steps nearer to the second row.
        const std::vector<ProfilePoint> found = profile(line(10, 20, 13, 21));
        QCOMPARE(found.size(), std::size_t(4));
        const std::vector<Place> expected{{0.0, 10, 20},
                                          {std::sqrt(10.0) / 3, 11, 20},
                                          {std::sqrt(10.0) * 2 / 3, 12, 21},
                                          {std::sqrt(10.0), 13, 21}};
        for (std::size_t i = 0; i < 4; ++i) {
            QCOMPARE(found[i].x, expected[i].x);
            QCOMPARE(found[i].y, expected[i].y);
            QCOMPARE(found[i].distance, expected[i].distance);
            QCOMPARE(found[i].value, double(expected[i].x * 320 + expected[i].y));
        }
        // Half way between two rows: the one further from the start, whichever way the line goes.
        QCOMPARE(profile(line(10, 20, 12, 21))[1].y, 21);
        QCOMPARE(profile(line(12, 21, 10, 20))[1].y, 20);
    }

    void bothEndsAreThere()
    {
        const std::vector<ProfilePoint> found = profile(line(239, 319, 0, 0));
        QCOMPARE(found.size(), std::size_t(320));
        QCOMPARE(found.front().x, 239);
        QCOMPARE(found.front().distance, 0.0);
        QCOMPARE(found.back().x, 0);
        QCOMPARE(found.back().y, 0);
        QCOMPARE(found.back().distance, std::hypot(239.0, 319.0));
    }

    void everyLineAgreesWithASecondReckoning()
    {
        for (int dx = -12; dx <= 12; ++dx) {
            for (int dy = -12; dy <= 12; ++dy) {
                if (dx != 0 || dy != 0)
                    QVERIFY(agrees(line(100, 100, 100 + dx, 100 + dy)));
            }
        }
        for (int round = 0; round < 300; ++round)
            QVERIFY(agrees(line(from(0, 240), from(0, 320), from(0, 240), from(0, 320))));
    }

    void whatLiesOutsideIsLeftOut()
    {
        QCOMPARE(profile(line(230, 5, 240, 5)).size(), std::size_t(10));
        QVERIFY(profile(line(240, 0, 240, 320)).empty());
        // The distance counts from the start, although that lies outside.
        const std::vector<ProfilePoint> found = profile(line(240, 320, 240 - 5, 320));
        QVERIFY(found.empty());
        QCOMPARE(profile(line(240, 319, 235, 319)).front().distance, 1.0);
        for (int round = 0; round < 300; ++round)
            QVERIFY(agrees(line(from(0, 900), from(-700, 900), from(-700, 900), from(-700, 900))));
    }

    /// As quickly as any other: nobody walks where there is no picture.
    void aLineAsLongAsNumbersGo()
    {
        const int far = std::numeric_limits<int>::max();
        const std::vector<ProfilePoint> found = profile(line(0, 7, far, 7));
        QCOMPARE(found.size(), std::size_t(240));
        QCOMPARE(found.back().distance, 239.0);
        QVERIFY(profile(line(far, -far, far - 1, far)).empty());
        QCOMPARE(profile(line(9, -far, 9, far)).size(), std::size_t(320));
        QCOMPARE(profile(line(9, -far, 9, far)).front().distance, double(far));
    }

    void aLineThatIsNotPlacedOrHasNoExtent()
    {
        QVERIFY(profile(line(-1, -1, -1, -1)).empty());
        QVERIFY(profile(line(-1, 5, 20, 5)).empty());
        QVERIFY(profile(line(9, 9, 9, 9)).empty());
    }

    void readingsAreWhatTheWindowShows()
    {
        temperatures->fill(20.7F);
        const auto found = profileOf(line(0, 0, 5, 0), *temperatures, analysis::toFahrenheit);
        QCOMPARE(found[3].value, double(shown(20.7F, analysis::toFahrenheit)));
        temperatures->fill(std::numeric_limits<float>::quiet_NaN());
        QCOMPARE(profile(line(0, 0, 5, 0)).size(), std::size_t(6));
        QVERIFY(std::isnan(profile(line(0, 0, 5, 0))[3].value));
    }
};

int main(int argc, char** argv)
{
    return testing::run<ProfileTest>(argc, argv);
}

#include "profile_test.moc"
