// SPDX-License-Identifier: MIT
#include "plots/plot_limits.h"
#include "tests/support/test_run.h"

#include <qwt_plot.h>
#include <qwt_scale_map.h>

using plots::Limit;
using plots::Limits;

class PlotLimitsTest : public QObject
{
    Q_OBJECT

private slots:
    /// 6 pixels to each side; the nearer of two; the side where both lie upon each other.
    void aLineIsWithinReachOfItsPlaceOnTheCanvas()
    {
        QwtPlot plot;
        plot.setAutoDelete(false);
        plot.resize(600, 400);
        plot.setAxisScale(QwtPlot::xBottom, 0, 100);
        plot.grab(); // lays it out
        plots::LimitLines lines(plot);
        const auto pixel = [&](double value) {
            return qRound(plot.canvasMap(QwtPlot::xBottom).transform(value));
        };
        QVERIFY(!lines.at(pixel(20)));
        lines.show(Limits{20, 40, 1});
        QCOMPARE(int(*lines.at(pixel(20) - 5)), int(Limit::Lower));
        QCOMPARE(int(*lines.at(pixel(40) + 5)), int(Limit::Upper));
        QVERIFY(!lines.at(pixel(20) - 8));
        QVERIFY(!lines.at(pixel(30)));
        lines.show(Limits{30, 30.5, 1});
        QCOMPARE(int(*lines.at(pixel(30) - 1)), int(Limit::Lower));
        QCOMPARE(int(*lines.at(pixel(30.5) + 2)), int(Limit::Upper));
        lines.show(Limits{30, 30, 1});
        QCOMPARE(int(*lines.at(pixel(30) - 3)), int(Limit::Lower));
        QCOMPARE(int(*lines.at(pixel(30) + 3)), int(Limit::Upper));
        lines.show({});
        QVERIFY(!lines.at(pixel(30)));
    }
};

int main(int argc, char** argv)
{
    return testing::run<PlotLimitsTest>(argc, argv);
}

#include "plot_limits_test.moc"
