// SPDX-License-Identifier: MIT
#include "plots/chart.h"
#include "tests/plots/sample_plots.h"
#include "tests/support/test_run.h"

#include <QLabel>
#include <qwt_legend.h>
#include <qwt_scale_draw.h>
#include <qwt_text_label.h>

#include <limits>
#include <memory>

using namespace plots;

/// What is drawn where; also with digits of another language.
class ChartTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<Chart> chart;

    void show(const Plot& plot)
    {
        chart->setPlot(plot);
        chart->grab(); // lays it out
    }
    QColor shown(const QPointF& value) const
    {
        const QPoint at = chart->canvas()->mapTo(chart.get(), chart->toCanvas(value).toPoint());
        return chart->grab().toImage().pixelColor(at);
    }
    /// Lines have soft edges.
    bool shows(const QPointF& value, const QColor& colour) const
    {
        const QColor is = shown(value);
        return std::abs(is.red() - colour.red()) + std::abs(is.green() - colour.green()) +
                   std::abs(is.blue() - colour.blue()) <
               100;
    }

private slots:
    void init()
    {
        chart = std::make_unique<Chart>();
        chart->resize(640, 400);
    }
    void cleanup() { chart.reset(); }

    void curvesRunThroughTheirPointsInTheirColours()
    {
        show(testing::twoCurves());
        QVERIFY(shows({2, 24}, colourOf(0)));
        QVERIFY(shows({8, 36}, colourOf(0)));
        QVERIFY(shows({2, 36}, colourOf(1)));
        QCOMPARE(shown({4.7, 22.9}), QColor(Qt::white));
    }

    void axesHaveWordsWithUnitsAndTheWholeOfTheNumbers()
    {
        show(testing::twoCurves());
        QCOMPARE(chart->axisTitle(QwtPlot::xBottom).text(), QStringLiteral("距离 (px)"));
        QCOMPARE(chart->axisTitle(QwtPlot::yLeft).text(), QStringLiteral("温度 (°C)"));
        QCOMPARE(chart->title().text(), QStringLiteral("IMG001.bmp"));
        QCOMPARE(chart->range(), QRectF(QPointF(0, 20), QPointF(10, 40)));
        QCOMPARE(chart->axisScaleDraw(QwtPlot::yLeft)->label(25).text(), QStringLiteral("25"));
    }

    /// Names of photographs have underscores.
    void aTitleIsWhole()
    {
        Plot plot = testing::twoCurves();
        plot.title = QStringLiteral("____");
        show(plot);
        const QImage title = chart->titleLabel()->grab().toImage();
        int dark = 0;
        for (int pixel = 0; pixel < title.width() * title.height(); ++pixel) {
            const QColor colour = title.pixelColor(pixel % title.width(), pixel / title.width());
            dark += colour.lightness() < 128 ? 1 : 0;
        }
        QVERIFY(dark > 20);
    }

    void severalCurvesHaveALegendOneHasNone()
    {
        Plot plot = testing::twoCurves();
        plot.curves[1].name = QStringLiteral("<b>L1</b>"); // shown as it is
        show(plot);
        const auto* legend = qobject_cast<QwtLegend*>(chart->legend());
        QVERIFY(legend);
        const QwtText name = chart->itemList(QwtPlotItem::Rtti_PlotCurve).at(1)->title();
        QCOMPARE(name.textSize(), QwtText(name.text(), QwtText::PlainText).textSize());
        plot.curves.pop_back();
        show(plot);
        QVERIFY(!chart->legend());
        show(testing::twoCurves());
        QVERIFY(chart->legend());
    }

    void theDesktopsColoursAreNotThePaper()
    {
        QPalette dark(Qt::black);
        dark.setColor(QPalette::WindowText, Qt::white);
        QApplication::setPalette(dark);
        Chart onDark;
        onDark.resize(640, 400);
        onDark.setPlot(testing::twoCurves());
        const QImage picture = onDark.grab().toImage();
        QApplication::setPalette(QPalette());
        QCOMPARE(picture.pixel(1, 1), QColor(Qt::white).rgb());
        QCOMPARE(picture.pixel(638, 398), QColor(Qt::white).rgb());
        int white = 0;
        for (int pixel = 0; pixel < 640 * 400; ++pixel)
            white += picture.pixelColor(pixel % 640, pixel / 640) == QColor(Qt::white) ? 1 : 0;
        QVERIFY(white > 640 * 400 * 8 / 10);
    }

    void pointsThatAreNoNumbersAreLeftOut()
    {
        Plot plot = testing::twoCurves();
        plot.curves.resize(1);
        plot.curves[0].points[3].setY(std::numeric_limits<double>::quiet_NaN());
        plot.curves[0].points[4].setY(std::numeric_limits<double>::infinity());
        show(plot);
        QCOMPARE(chart->range(), QRectF(QPointF(0, 20), QPointF(10, 40)));
        // Numbers of points are those of the curve.
        const auto near = chart->nearest(chart->toCanvas({5.1, 30}).toPoint());
        QVERIFY((near == Place{0, 5}));
        chart->setCursor(Place{0, 3});
        QVERIFY(!chart->cursor());
    }

    void nothingToPlotIsAnEmptyChart()
    {
        show({});
        QVERIFY(!chart->nearest({100, 100}));
        QCOMPARE(chart->countOf(0), 0);
        QCOMPARE(chart->cursorText(), QString());
        Plot plot = testing::twoCurves();
        plot.curves[0].points.clear();
        plot.curves[1].points.resize(1);
        show(plot);
        QVERIFY((chart->nearest({100, 100}) == Place{1, 0}));
    }

    void aConstantHasARange()
    {
        Plot plot = testing::twoCurves();
        plot.curves.resize(1);
        for (QPointF& point : plot.curves[0].points)
            point.setY(30);
        show(plot);
        QVERIFY(chart->range().top() < 30 && chart->range().bottom() > 30);
        QVERIFY(shows({5, 30}, colourOf(0)));
    }

    void theNearestPointOfTheNearestCurve()
    {
        show(testing::twoCurves());
        const auto near = [&](const QPointF& value) {
            return chart->nearest(chart->toCanvas(value).toPoint());
        };
        QVERIFY((near({2.2, 24}) == Place{0, 2}));
        QVERIFY((near({2.2, 37}) == Place{1, 2}));
        QVERIFY((near({9.8, 20.1}) == Place{1, 10}));
    }

    void theCursorTellsItsValues()
    {
        show(testing::twoCurves());
        chart->setCursor(Place{1, 3});
        QCOMPARE(chart->cursorText(), QStringLiteral("L1: 3.0 px, 34.0 °C"));
        chart->setCursor(Place{1, 11});
        QVERIFY(!chart->cursor());
        chart->setCursor(Place{2, 0});
        QVERIFY(!chart->cursor());
        chart->setCursor(Place{-1, 0});
        QVERIFY(!chart->cursor());
    }

    void barsStandOnNothing()
    {
        show(testing::tenBars());
        QCOMPARE(chart->range().left(), 20.0);
        QCOMPARE(chart->range().right(), 40.0);
        QCOMPARE(chart->range().top(), 0.0);
        QVERIFY(shows({27, 900}, colourOf(0)));
        QVERIFY(!shows({25, 900}, colourOf(0)));
        QVERIFY(shows({25, 50}, colourOf(0)));
        QVERIFY((chart->nearest(chart->toCanvas({25.5, 900}).toPoint()) == Place{0, 2}));
        chart->setCursor(Place{0, 2});
        QCOMPARE(chart->cursorText(), QStringLiteral("R0: 24.0 … 26.0 °C, 100"));
    }

    /// Each ten times as much is as high again, and 1 is seen.
    void aLogarithmicAxisShowsSmallCountsToo()
    {
        Plot plot = testing::tenBars();
        plot.y.isLogarithmic = true;
        show(plot);
        const double one = chart->toCanvas({21, 1}).y();
        const double ten = chart->toCanvas({23, 10}).y();
        const double hundred = chart->toCanvas({25, 100}).y();
        QVERIFY(std::abs((one - ten) - (ten - hundred)) < 0.01);
        QVERIFY(shows({21, 0.8}, colourOf(0)));
        QVERIFY(shows({25, 50}, colourOf(0)));
        QVERIFY(!shows({29, 0.8}, colourOf(0)));
        chart->setRange(QRectF(22, 5, 4, 10));
        plot.y.isLogarithmic = false;
        show(plot);
        QVERIFY(!chart->isZoomed());
        QCOMPARE(chart->range().top(), 0.0);
    }

    void anOutlineLetsOtherBarsShow()
    {
        Plot plot = testing::tenBars();
        plot.bars.push_back({QStringLiteral("R0*"), colourOf(1), plot.bars[0].bars, true});
        plot.bars[1].bars[2].height = 500;
        show(plot);
        QVERIFY(shows({25, 50}, colourOf(0)));
        QVERIFY(shows({25, 500}, colourOf(1)));
        // Both have their colour in the legend.
        QVERIFY(chart->legend());
        const QImage legend = chart->legend()->grab().toImage();
        int filled = 0;
        int outlined = 0;
        for (int pixel = 0; pixel < legend.width() * legend.height(); ++pixel) {
            const QColor colour = legend.pixelColor(pixel % legend.width(), pixel / legend.width());
            filled += colour == colourOf(0) ? 1 : 0;
            outlined += colour == colourOf(1) ? 1 : 0;
        }
        QVERIFY(filled > 20);
        QVERIFY(outlined > 20);
    }

    void aRangeStaysWhileTheNumbersChange()
    {
        show(testing::twoCurves());
        chart->setRange(QRectF(2, 22, 4, 10));
        Plot other = testing::twoCurves();
        other.curves[0].points[10].setY(80);
        show(other);
        QCOMPARE(chart->range(), QRectF(2, 22, 4, 10));
        QCOMPARE(chart->wholeRange().bottom(), 80.0);
        QVERIFY(shows({3, 26}, colourOf(0)));
        chart->setRange({});
        QCOMPARE(chart->range(), chart->wholeRange());
    }
};

int main(int argc, char** argv)
{
    return testing::run<ChartTest>(argc, argv);
}

#include "chart_test.moc"
