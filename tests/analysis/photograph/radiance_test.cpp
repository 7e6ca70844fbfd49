// SPDX-License-Identifier: MIT
#include "analysis/photograph/radiance.h"
#include "tests/analysis/photograph/band_emission.h"
#include "tests/support/test_run.h"

#include <cmath>

namespace radiance = analysis::radiance;

namespace {

/// What a degree more adds, by which errors of radiances become errors of temperatures.
double perDegree(double celsius)
{
    return (testing::bandEmission(celsius + 0.5) - testing::bandEmission(celsius - 0.5));
}

} // namespace

class RadianceTest : public QObject
{
    Q_OBJECT

private slots:
    // What textbooks' tables of band emission hold, by wavelength times temperature; they were
    // worked out with a constant of their time.
    void theSeriesOfTheTestsIsThatOfTheTextbooks_data()
    {
        QTest::addColumn<double>("micrometreKelvins");
        QTest::addColumn<double>("part");
        QTest::newRow("1000") << 1000.0 << 0.000321;
        QTest::newRow("2000") << 2000.0 << 0.066728;
        QTest::newRow("2400") << 2400.0 << 0.140256;
        QTest::newRow("2898, the peak") << 2898.0 << 0.250108;
        QTest::newRow("4000") << 4000.0 << 0.480877;
        QTest::newRow("4200") << 4200.0 << 0.516014;
        QTest::newRow("6000") << 6000.0 << 0.737818;
        QTest::newRow("10000") << 10000.0 << 0.914199;
    }
    void theSeriesOfTheTestsIsThatOfTheTextbooks()
    {
        QFETCH(double, micrometreKelvins);
        QFETCH(double, part);
        const double found = testing::partBelow(10e-6, micrometreKelvins / 10);
        QVERIFY2(std::abs(found - part) < 5e-5, qPrintable(QString::number(found, 'f', 6)));
    }

    // 300 K: 0.516014 − 0.140256 of 459.30 W/m², over π.
    void aRoomSendsWhatTextbooksSay()
    {
        QVERIFY(std::abs(radiance::integrated(26.85) - 54.936) < 0.005);
        QVERIFY(std::abs(radiance::of(26.85) - 54.936) < 0.005);
    }

    void theIntegralIsThatOfTheSeries()
    {
        for (const double celsius : testing::steps(-150, 1000, 2.5)) {
            const double error = (radiance::integrated(celsius) - testing::bandEmission(celsius)) /
                                 perDegree(celsius);
            QVERIFY2(std::abs(error) < 0.0003, qPrintable(QString::number(celsius)));
        }
    }

    // Between two of its entries, where lines are farthest from the curve.
    void theTableIsCloseToTheCurve()
    {
        for (const double celsius : testing::steps(radiance::lowest + radiance::step / 2,
                                                   radiance::highest, 7 * radiance::step)) {
            const double error =
                (radiance::of(celsius) - testing::bandEmission(celsius)) / perDegree(celsius);
            QVERIFY2(std::abs(error) < (celsius <= 1000 ? 0.0005 : 0.003),
                     qPrintable(QString::number(celsius)));
        }
    }

    void thereAndBack()
    {
        for (const double celsius : testing::steps(radiance::lowest, radiance::highest, 0.1))
            QVERIFY(std::abs(radiance::temperatureOf(radiance::of(celsius)) - celsius) < 1e-9);
        QCOMPARE(radiance::temperatureOf(radiance::of(radiance::highest)), radiance::highest);
        QCOMPARE(radiance::temperatureOf(radiance::of(radiance::lowest)), radiance::lowest);
    }

    void moreRadianceIsHotter()
    {
        double before = radiance::lowest;
        for (const double step : testing::steps(0, 11.2, 0.0001)) {
            const double now = radiance::temperatureOf(0.2 * std::exp(step));
            QVERIFY(now > before);
            before = now;
        }
    }

    void beyondTheTableIsNothing()
    {
        for (const double celsius :
             {-150.01, 4000.01, -1e30, 1e30, -HUGE_VAL, HUGE_VAL, std::nan("")})
            QVERIFY(std::isnan(radiance::of(celsius)));
        const double most = radiance::of(radiance::highest);
        const double least = radiance::of(radiance::lowest);
        for (const double value :
             {most * 1.000001, least * 0.999999, 0.0, -1.0, -HUGE_VAL, HUGE_VAL, std::nan("")})
            QVERIFY(std::isnan(radiance::temperatureOf(value)));
    }
};

int main(int argc, char** argv)
{
    return testing::run<RadianceTest>(argc, argv);
}

#include "radiance_test.moc"
