// SPDX-License-Identifier: MIT
#include "analysis/photograph/neighbourhood.h"
#include "tests/support/test_run.h"

#include <limits>

using namespace analysis;

/// The square of pixels that a magnifier shows.
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
};

int main(int argc, char** argv)
{
    return testing::run<NeighbourhoodTest>(argc, argv);
}

#include "neighbourhood_test.moc"
