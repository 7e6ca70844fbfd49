// SPDX-License-Identifier: MIT
#include "analysis/windows/temperature_box.h"
#include "tests/analysis/windows/plots_test.h"
#include "tests/overlay/mouse.h"

#include <QCheckBox>
#include <QLabel>

#include <cmath>

using analysis::HistogramWindow;
using analysis::TemperatureBox;

/// Histograms, as somebody at the window asks for them.
class HistogramWindowTest : public testing::PlotsTest
{
    Q_OBJECT

    template<typename Part>
    Part& part(const char* name) const
    {
        return *testing::part<Part>(shownWindow<HistogramWindow>(), name);
    }
    plots::PlotView& plot() const { return view<HistogramWindow>(); }
    const std::vector<plots::Bar>& bars() const { return plot().plot().bars.front().bars; }
    double pixels() const
    {
        double sum = 0;
        for (const plots::Bar& bar : bars())
            sum += bar.height;
        return sum;
    }
    QString share() const { return part<QLabel>("share").text(); }
    /// Columns 20 … 39 of rows 100 … 109: 200 pixels, ten of each of 20 … 39 °C.
    void openOnRectangle()
    {
        beginOn(ramp());
        draw("pushButton_6", at(20, 100), at(39, 109));
        open<HistogramWindow>("直方图...", 0);
    }
    void type(const char* box, double value) const { part<QDoubleSpinBox>(box).setValue(value); }

private slots:
    void showsTheSelectedToolOrTheWholePicture()
    {
        openOnRectangle();
        QCOMPARE(shownWindow<HistogramWindow>()->windowTitle(),
                 QStringLiteral("直方图 - shot.bmp"));
        QCOMPARE(plot().plot().bars.front().name, QStringLiteral("R0"));
        QCOMPARE(pixels(), 200.0);
        part<QComboBox>("area").setCurrentIndex(1);
        QCOMPARE(pixels(), 76800.0);
        part<QComboBox>("area").setCurrentText(QStringLiteral("R0"));
        QCOMPARE(pixels(), 200.0);
        QTest::mouseClick(&label(), Qt::LeftButton, {}, at(200, 250)); // nothing is selected
        QTest::qWait(0);
        QCOMPARE(pixels(), 200.0);
        part<QComboBox>("area").setCurrentIndex(0);
        QCOMPARE(pixels(), 76800.0);
    }

    void automaticBinsAreRoundAndHoldEverything()
    {
        openOnRectangle();
        QVERIFY(part<QCheckBox>("automatic").isChecked());
        QVERIFY(!part<TemperatureBox>("from").isEnabled());
        QVERIFY(bars().size() <= 100);
        QCOMPARE(part<TemperatureBox>("from").value(), bars().front().from);
        QCOMPARE(part<TemperatureBox>("to").value(), std::round(bars().back().to * 100) / 100);
        QVERIFY(bars().front().from <= 20 && bars().back().to >= 39);
    }

    void binsAreChosenByRangeAndWidth()
    {
        openOnRectangle();
        part<QCheckBox>("automatic").setChecked(false);
        QVERIFY(part<TemperatureBox>("from").isEnabled());
        type("from", 24.75);
        type("to", 34.75);
        type("width", 2.5);
        QCOMPARE(bars().size(), std::size_t(4));
        QCOMPARE(bars()[0].height, 30.0); // 25, 26, 27
        QCOMPARE(bars()[1].height, 20.0); // 28, 29
        QCOMPARE(bars()[2].height, 30.0); // 30, 31, 32
        QCOMPARE(bars()[3].height, 20.0); // 33, 34
        const std::vector<QStringList>& rows = plot().plot().table.rows;
        QCOMPARE(rows.front().at(5), QStringLiteral("50")); // below 25
        QCOMPARE(rows.back().at(5), QStringLiteral("50"));  // above 34
    }

    void whatMakesNoBinsIsTold()
    {
        openOnRectangle();
        part<QCheckBox>("automatic").setChecked(false);
        type("to", 10);
        QVERIFY(plot().plot().bars.empty());
        QVERIFY(plot().plot().title.contains(QStringLiteral("请检查")));
        QVERIFY(!plot().limits());
        part<QCheckBox>("automatic").setChecked(true);
        QCOMPARE(pixels(), 200.0);
        QVERIFY(plot().limits());
    }

    /// 25 … 29: five of twenty columns.
    void theShareBetweenTypedLimits()
    {
        openOnRectangle();
        type("lower", 24.5);
        type("upper", 29.5);
        QCOMPARE(share(), QStringLiteral("其间: 25.0 %"));
        QVERIFY((plot().limits()->lower == 24.5 && plot().limits()->upper == 29.5));
        type("lower", 39.5);
        type("upper", 19.5); // in either order
        QCOMPARE(share(), QStringLiteral("其间: 100.0 %"));
        QCOMPARE(plot().limits()->lower, 19.5);
    }

    void draggedLimitsAreShownAsNumbers()
    {
        openOnRectangle();
        type("lower", 25);
        type("upper", 35.5);
        const double y = plot().range().center().y();
        testing::Mouse(plot()).drag(plot().pixelOf({25, y}), plot().pixelOf({30.5, y}));
        QVERIFY(std::abs(part<TemperatureBox>("lower").value() - 30.5) < 0.1);
        QCOMPARE(part<TemperatureBox>("upper").value(), 35.5);
        QCOMPARE(share(), QStringLiteral("其间: 25.0 %")); // 31 … 35
        QTest::keyClick(&plot(), Qt::Key_Right, Qt::ShiftModifier);
        QVERIFY(part<TemperatureBox>("upper").value() > 35.5);
    }

    void limitsAndRangeStayTheSameTemperaturesInAnotherUnit()
    {
        openOnRectangle();
        type("lower", 25);
        type("upper", 29);
        part<QCheckBox>("automatic").setChecked(false);
        type("from", 20);
        type("to", 40);
        type("width", 5);
        unit().setCurrentIndex(1);
        QTRY_COMPARE(plot().plot().x.unit, QStringLiteral("°F"));
        QCOMPARE(part<TemperatureBox>("lower").value(), 77.0);
        QCOMPARE(plot().limits()->upper, 84.2);
        QCOMPARE(part<TemperatureBox>("from").value(), 68.0);
        QCOMPARE(part<QDoubleSpinBox>("width").value(), 9.0);
        QCOMPARE(bars().size(), std::size_t(4));
        unit().setCurrentIndex(0);
        QTRY_COMPARE(part<QDoubleSpinBox>("width").value(), 5.0);
        QCOMPARE(part<TemperatureBox>("lower").value(), 25.0);
    }

    void aLogarithmicAxis()
    {
        openOnRectangle();
        part<QCheckBox>("logarithmic").setChecked(true);
        QVERIFY(plot().plot().y.isLogarithmic);
        QVERIFY(plot().range().top() > 0);
        part<QCheckBox>("logarithmic").setChecked(false);
        QCOMPARE(plot().range().top(), 0.0);
    }

    void followsTheToolThatMoves()
    {
        openOnRectangle();
        QApplication::setActiveWindow(window.get());
        label().setFocus();
        key(Qt::Key_Right, Qt::ShiftModifier);
        QTRY_VERIFY(bars().front().from > 25);
        QCOMPARE(pixels(), 200.0);
    }

    void correctedReadingsStandBesideTheStoredOnes()
    {
        openOnRectangle();
        type("lower", 19.5);
        type("upper", 39.5);
        window->commands().viewed().setCorrection(analysis::Correction{0.95, 0.5, 10});
        QTRY_COMPARE(plot().plot().bars.size(), std::size_t(2));
        QVERIFY(plot().plot().bars[1].isOutline);
        double sum = 0;
        for (const plots::Bar& bar : plot().plot().bars[1].bars)
            sum += bar.height;
        QCOMPARE(sum, 200.0); // the bins hold both
        QVERIFY(share().startsWith(QStringLiteral("其间: 100.0 % - ")));
        QVERIFY(share().contains(window->commands().viewed().correctionName()));
        QVERIFY(!share().endsWith(QStringLiteral("100.0 %")));
        window->commands().viewed().setCorrection({});
        QTRY_COMPARE(plot().plot().bars.size(), std::size_t(1));
    }

    void anIdleSecondPaintsNothing()
    {
        openOnRectangle();
        plot().setFocus();
        testing::PaintCounter paints(*shownWindow<HistogramWindow>(),
                                     testing::PaintCounter::Of::WidgetAndParts);
        QVERIFY(testing::comeToRest(paints));
        paints.count = 0;
        QTest::qWait(1000);
        QCOMPARE(paints.count, 0);
    }
};

int main(int argc, char** argv)
{
    return testing::run<HistogramWindowTest>(argc, argv);
}

#include "histogram_window_test.moc"
