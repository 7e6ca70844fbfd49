// SPDX-License-Identifier: MIT
#include "overlay/colour_bar_scale.h"
#include "tests/support/test_run.h"

#include <cmath>
#include <limits>

class ColourBarScaleTest : public QObject
{
    Q_OBJECT

private slots:
    void theTravelEndsTenPixelsFromEitherEnd()
    {
        for (const int height : {21, 100, 275, 276, 640, 2000}) {
            QCOMPARE(overlay::valueAt(10, height).value(), 0);
            QCOMPARE(overlay::valueAt(height - 10, height).value(), 255);
            QCOMPARE(overlay::markerY(0, height), 10);
            QCOMPARE(overlay::markerY(255, height), height - 10);
        }
    }

    /// round((y − 10) × 255 / D) in integers.
    void valuesOfAllPositions()
    {
        for (const int height : {30, 99, 275, 333, 640, 1000}) {
            const int travel = height - 20;
            for (int y = 10; y <= height - 10; ++y)
                QCOMPARE(overlay::valueAt(y, height).value(),
                         (2 * (y - 10) * 255 + travel) / (2 * travel));
            for (int value = 0; value <= 255; ++value)
                QCOMPARE(overlay::markerY(value, height), 10 + (2 * value * travel + 255) / 510);
        }
    }

    void aBarOfFullTravelLosesNothing()
    {
        for (int value = 0; value <= 255; ++value)
            QCOMPARE(overlay::valueAt(overlay::markerY(value, 275), 275).value(), value);
        int lost = 0;
        for (int value = 0; value <= 255; ++value)
            lost += overlay::valueAt(overlay::markerY(value, 200), 200).value() != value;
        QVERIFY(lost > 0);
    }

    void aBarWithoutTravelHasNoValues()
    {
        for (const int height : {-5, 0, 1, 10, 19, 20}) {
            QVERIFY(!overlay::valueAt(10, height));
            overlay::markerY(255, height); // defined, wherever it is
        }
    }

    void positionsOutsideTheTravelGiveValuesOutside()
    {
        QCOMPARE(overlay::valueAt(9, 30).value(), -25); // −25.5 + 0.5, toward zero
        QCOMPARE(overlay::valueAt(9, 276).value(), 0);  // −0.996 + 0.5, toward zero
        QCOMPARE(overlay::valueAt(8, 276).value(), -1); // −1.992 + 0.5
        QVERIFY(overlay::valueAt(30, 30).value() > 255);
        QCOMPARE(overlay::paletteStep(-25), 0);
        QCOMPARE(overlay::paletteStep(0), 0);
        QCOMPARE(overlay::paletteStep(255), 255);
        QCOMPARE(overlay::paletteStep(510), 255);
    }

    void temperaturesFromTopToBottom()
    {
        const auto temperatures = overlay::scaleTemperatures(50.0F, 20.0F);
        for (int k = 0; k <= 10; ++k)
            QCOMPARE(temperatures[std::size_t(k)], 50.0F - 3.0F * float(k));
    }

    /// Ten steps of a tenth each do not add up in single precision; the bottom is the bottom.
    void theLastTemperatureIsTheBottomItself()
    {
        const auto temperatures = overlay::scaleTemperatures(0.1F, -1000.3F);
        QCOMPARE(temperatures[0], 0.1F);
        QVERIFY(temperatures[10] == -1000.3F);
        const float infinity = std::numeric_limits<float>::infinity();
        QVERIFY(std::isnan(overlay::scaleTemperatures(infinity, infinity)[3]));
    }
};

int main(int argc, char** argv)
{
    return testing::run<ColourBarScaleTest>(argc, argv);
}

#include "colour_bar_scale_test.moc"
