// SPDX-License-Identifier: MIT
#include "analysis/export/histogram_plot.h"

#include <QCoreApplication>

namespace analysis {
namespace {

struct HistogramTexts
{
    Q_DECLARE_TR_FUNCTIONS(HistogramTexts)
};

constexpr int pixelsColumn = 3;

plots::Bars barsOf(const QString& name, const Area& area, const Bins& bins)
{
    plots::Bars bars{name, plots::colourOf(0), {}};
    const Histogram histogram = histogramOf(area, bins);
    for (int bin = 0; bin < bins.count; ++bin)
        bars.bars.push_back(
            {bins.edge(bin), bins.edge(bin + 1), double(histogram.counts[std::size_t(bin)])});
    return bars;
}

} // namespace

std::vector<QStringList> histogramRows(const Area& area, const Bins& bins, bool isRange)
{
    const Histogram histogram = histogramOf(area, bins);
    const int pixels = int(area.readings.size()) - histogram.withoutReading;
    std::vector<QStringList> rows;
    const auto add = [&](const QString& from, const QString& to, int count) {
        const double share = pixels > 0 ? double(count) / pixels : 0.0;
        rows.push_back(
            {area.name, from, to, QString::number(count), QString::number(share, 'f', 6)});
    };
    const auto edge = [&bins](int bin) {
        constexpr int digits = 10; // what is beyond is the rounding of the edges
        return QString::number(bins.edge(bin), 'g', digits);
    };
    if (isRange)
        add({}, edge(0), histogram.below);
    for (int bin = 0; bin < bins.count; ++bin)
        add(edge(bin), edge(bin + 1), histogram.counts[std::size_t(bin)]);
    if (isRange)
        add(edge(bins.count), {}, histogram.above);
    return rows;
}

plots::Plot histogramPlot(const PlottedHistogram& histogram, const PlottedReadings& readings)
{
    plots::Plot plot;
    const QString name =
        histogram.stored.name.isEmpty() ? HistogramTexts::tr("整幅图像") : histogram.stored.name;
    plot.title = QStringLiteral("%1 - %2").arg(readings.file, name);
    plot.x = {HistogramTexts::tr("温度"), signOf(readings.unit.unit), 2};
    plot.y = {HistogramTexts::tr("像素数"), {}, 0, histogram.isLogarithmic};
    plot.bars.push_back(barsOf(name, histogram.stored, histogram.bins));
    std::vector<QStringList> corrected;
    if (histogram.corrected) {
        plot.bars.push_back(barsOf(QStringLiteral("%1 - %2").arg(name, readings.correctionName),
                                   *histogram.corrected, histogram.bins));
        plot.bars.back().colour = plots::colourOf(1);
        plot.bars.back().isOutline = true;
        corrected = histogramRows(*histogram.corrected, histogram.bins, histogram.isRange);
    }
    plot.table.captions =
        QStringLiteral("file,unit,name,from,to,pixels,share").split(QLatin1Char(','));
    if (histogram.corrected)
        plot.table.captions.append(QStringLiteral("corrected"));
    const std::vector<QStringList> rows =
        histogramRows(histogram.stored, histogram.bins, histogram.isRange);
    for (std::size_t number = 0; number < rows.size(); ++number) {
        plot.table.rows.push_back(QStringList{readings.file, letterOf(readings.unit.unit)} +
                                  rows[number]);
        if (histogram.corrected)
            plot.table.rows.back().append(corrected[number][pixelsColumn]);
    }
    return plot;
}

} // namespace analysis
