// SPDX-License-Identifier: MIT
#include "analysis/export/histogram_plot.h"
#include "tests/support/test_run.h"

#include <limits>
#include <memory>

using namespace analysis;

/// An area of ten pixels: 20, 20.5, 21, 21, 21, 22, 23, 24, one of them without a reading, one far
/// off.
class HistogramPlotTest : public QObject
{
    Q_OBJECT

    Area stored;
    std::optional<Area> corrected;
    std::unique_ptr<Temperatures> temperatures;

    PlottedReadings readings() const
    {
        return {QStringLiteral("IMG001.bmp"), {}, *temperatures, nullptr, QStringLiteral("ε 0.95")};
    }
    plots::Plot plotOf(bool isRange = false, bool isLogarithmic = false) const
    {
        return histogramPlot({stored, corrected, {20, 24, 4}, isRange, isLogarithmic}, readings());
    }

private slots:
    void init()
    {
        temperatures = std::make_unique<Temperatures>();
        stored = {QStringLiteral("R0"), {}};
        corrected.reset();
        for (const double value : {20.0, 20.5, 21.0, 21.0, 21.0, 22.0, 23.0, 24.0,
                                   std::numeric_limits<double>::quiet_NaN(), 90.0})
            stored.readings.push_back({int(stored.readings.size()), 7, value});
    }

    void barsOfEqualWidth()
    {
        const plots::Plot plot = plotOf();
        QCOMPARE(plot.title, QStringLiteral("IMG001.bmp - R0"));
        QCOMPARE(plot.x.unit, QStringLiteral("°C"));
        QCOMPARE(plot.bars.size(), std::size_t(1));
        QCOMPARE(plot.bars[0].name, QStringLiteral("R0"));
        const std::vector<plots::Bar>& bars = plot.bars[0].bars;
        QCOMPARE(bars.size(), std::size_t(4));
        QCOMPARE(bars[0].from, 20.0);
        QCOMPARE(bars[3].to, 24.0);
        QCOMPARE(bars[0].height, 2.0);
        QCOMPARE(bars[1].height, 3.0);
        QCOMPARE(bars[2].height, 1.0);
        QCOMPARE(bars[3].height, 2.0); // 24, too
    }

    void theTableHasThermaphotosColumns()
    {
        QCOMPARE(plots::csvOf(plotOf().table), QByteArray("file,unit,name,from,to,pixels,share\n"
                                                          "IMG001.bmp,C,R0,20,21,2,0.222222\n"
                                                          "IMG001.bmp,C,R0,21,22,3,0.333333\n"
                                                          "IMG001.bmp,C,R0,22,23,1,0.111111\n"
                                                          "IMG001.bmp,C,R0,23,24,2,0.222222\n"));
    }

    void aChosenRangeTellsWhatLiesOutside()
    {
        const QByteArray csv = plots::csvOf(plotOf(true).table);
        QVERIFY(csv.contains("share\nIMG001.bmp,C,R0,,20,0,0.000000\n"));
        QVERIFY(csv.endsWith("IMG001.bmp,C,R0,24,,1,0.111111\n"));
    }

    void correctedReadingsAreAnOutlineUnderTheirName()
    {
        corrected = stored;
        for (Reading& reading : corrected->readings)
            reading.value += 1;
        const plots::Plot plot = plotOf();
        QCOMPARE(plot.bars.size(), std::size_t(2));
        QVERIFY(plot.bars[1].isOutline && !plot.bars[0].isOutline);
        QCOMPARE(plot.bars[1].name, QStringLiteral("R0 - ε 0.95"));
        QVERIFY(plot.bars[1].colour != plot.bars[0].colour);
        QCOMPARE(plot.bars[1].bars[0].height, 0.0);
        QCOMPARE(plot.bars[1].bars[1].height, 2.0);
        QVERIFY(plots::csvOf(plot.table)
                    .startsWith("file,unit,name,from,to,pixels,share,corrected\nIMG001.bmp,C,R0,20,"
                                "21,2,0.222222,0\n"
                                "IMG001.bmp,C,R0,21,22,3,0.333333,2\n"));
    }

    void theWholePictureAndTheAxisAreNamed()
    {
        stored.name.clear();
        const plots::Plot plot = plotOf(false, true);
        QCOMPARE(plot.bars[0].name, QStringLiteral("整幅图像"));
        QCOMPARE(plot.table.rows[0].at(2), QString()); // as thermaphoto has it
        QVERIFY(plot.y.isLogarithmic);
        QVERIFY(!plotOf().y.isLogarithmic);
    }

    void edgesAreWrittenWithoutTheRoundingOfTheirSteps()
    {
        const std::vector<QStringList> rows = histogramRows(stored, {20, 20.7, 7}, false);
        QCOMPARE(rows[2].at(2), QStringLiteral("20.3"));
        QCOMPARE(rows[6].at(2), QStringLiteral("20.7"));
    }

    void anAreaWithoutAReadingHasNoShares()
    {
        stored.readings.resize(1);
        stored.readings[0].value = std::numeric_limits<double>::infinity();
        QCOMPARE(histogramRows(stored, {20, 24, 1}, false)[0].at(4), QStringLiteral("0.000000"));
    }
};

int main(int argc, char** argv)
{
    return testing::run<HistogramPlotTest>(argc, argv);
}

#include "histogram_plot_test.moc"
