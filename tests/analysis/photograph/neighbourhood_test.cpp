// SPDX-License-Identifier: MIT
#include "analysis/photograph/neighbourhood.h"
#include "tests/support/test_run.h"

#include <limits>
#include <memory>

using namespace analysis;

/// The square of pixels that a magnifier shows, and its texts.
class NeighbourhoodTest : public QObject
{
    Q_OBJECT

private slots:
    void startsInTheMiddle()
    {
        const Neighbourhood part;
        QCOMPARE(part.centre(), QPoint(120, 160));
        QCOMPARE(part.size(), 11);
        QCOMPARE(part.pixels(), QRect(QPoint(115, 155), QPoint(125, 165)));
        QCOMPARE(part.pixelsInside(), part.pixels());
    }

    void growsByTwoBetweenItsLimits()
    {
        Neighbourhood part;
        part.growBy(1);
        QCOMPARE(part.size(), 13);
        part.growBy(-3);
        QCOMPARE(part.size(), 7);
        for (const int steps : {-2, -1, std::numeric_limits<int>::min()}) {
            part.growBy(steps);
            QCOMPARE(part.size(), 5);
        }
        for (const int steps : {18, 1, std::numeric_limits<int>::max()}) {
            part.growBy(steps);
            QCOMPARE(part.size(), 41);
        }
        QCOMPARE(part.pixels(), QRect(QPoint(100, 140), QPoint(140, 180)));
    }

    void reachesOutOfThePictureButItsMiddle()
    {
        Neighbourhood part;
        part.moveTo({0, 0});
        QCOMPARE(part.pixels().topLeft(), QPoint(-5, -5));
        QCOMPARE(part.pixelsInside(), QRect(0, 0, 6, 6));
        part.moveTo({500, 319});
        QCOMPARE(part.centre(), QPoint(239, 319));
        QCOMPARE(part.pixelsInside(), QRect(QPoint(234, 314), QPoint(239, 319)));
        part.moveTo({-1, 400});
        QCOMPARE(part.centre(), QPoint(0, 319));
    }

    void writesAMatrix()
    {
        const auto temperatures = std::make_unique<Temperatures>();
        for (int x = 0; x < 240; ++x) {
            for (int y = 0; y < 320; ++y)
                (*temperatures)[std::size_t(x * 320 + y)] = float(x) + float(y) / 10;
        }
        Neighbourhood part;
        part.growBy(-3);
        part.moveTo({20, 3});
        QCOMPARE(readingMatrix(part, *temperatures, {}), //
                 QStringLiteral("y \\ x (°C)\t18\t19\t20\t21\t22\n"
                                "1\t18.1\t19.1\t20.1\t21.1\t22.1\n"
                                "2\t18.2\t19.2\t20.2\t21.2\t22.2\n"
                                "3\t18.3\t19.3\t20.3\t21.3\t22.3\n"
                                "4\t18.4\t19.4\t20.4\t21.4\t22.4\n"
                                "5\t18.5\t19.5\t20.5\t21.5\t22.5\n"));
        // 1.8 × 238 + 32 is 460.4, and so on: what lies outside is left out.
        part.moveTo({239, 0});
        QCOMPARE(readingMatrix(part, *temperatures, {Unit::Fahrenheit, {10.0F / 1.8F, 32.0F}}),
                 QStringLiteral("y \\ x (°F)\t237\t238\t239\n"
                                "0\t458.6\t460.4\t462.2\n"
                                "1\t458.8\t460.6\t462.4\n"
                                "2\t459.0\t460.8\t462.6\n"));
    }

    void readsOut()
    {
        const auto temperatures = std::make_unique<Temperatures>();
        (*temperatures)[7 * 320 + 9] = -0.04F;
        (*temperatures)[7 * 320 + 10] = std::numeric_limits<float>::quiet_NaN();
        QCOMPARE(readOutText(*temperatures, {}, {7, 9}), QStringLiteral("X: 7  Y: 9  -0.0°C"));
        QCOMPARE(readingText(*temperatures, {}, 7, 10), QStringLiteral("nan"));
        QCOMPARE(readingText(*temperatures, {5.0F, 1.0F}, 7, 9), QStringLiteral("0.9"));
    }
};

int main(int argc, char** argv)
{
    return testing::run<NeighbourhoodTest>(argc, argv);
}

#include "neighbourhood_test.moc"
