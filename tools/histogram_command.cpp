// SPDX-License-Identifier: MIT
#include "analysis/photograph/details.h"
#include "analysis/photograph/histogram.h"
#include "tools/commands.h"
#include "tools/measuring_options.h"
#include "tools/photograph_run.h"
#include "tools/rows.h"

using analysis::Area;
using analysis::Bins;
using analysis::binsByCount;
using analysis::binsByWidth;
using analysis::Histogram;
using analysis::PhotographReader;

namespace tools {
namespace {

constexpr int usualCount = 100;

struct Wanted
{
    Measuring measuring;
    std::optional<Bins> range; ///< the same bins everywhere
    std::optional<int> count;
    std::optional<double> width;

    std::optional<Bins> binsOf(const Area& area) const
    {
        if (range)
            return range;
        if (width)
            return binsByWidth(area, *width);
        return count ? binsByCount(area, *count) : suitingBins(area, usualCount);
    }
};

void addOptions(CommandLine& line)
{
    addMeasuringOptions(line, QStringLiteral("What to look at; the whole picture by default. See "
                                             "thermaphoto measure --help."));
    addRowFormat(line);
    line.add({QStringLiteral("from")},
             QStringLiteral("Where the bins begin. Default: at the coldest pixel."),
             QStringLiteral("TEMPERATURE"));
    line.add({QStringLiteral("to")},
             QStringLiteral("Where the bins end. Default: at the hottest pixel."),
             QStringLiteral("TEMPERATURE"));
    line.add({QStringLiteral("bins")},
             QStringLiteral("So many bins. Default: with --from and --to %1, otherwise up to %1 of "
                            "a round width.")
                 .arg(usualCount),
             QStringLiteral("N"));
    line.add({QStringLiteral("width")}, QStringLiteral("The width of each bin."),
             QStringLiteral("DEGREES"));
}

Wanted readWanted(CommandLine& line)
{
    Wanted wanted;
    wanted.measuring = readMeasuring(line);
    const std::optional<double> from = line.real(QStringLiteral("from"));
    const std::optional<double> to = line.real(QStringLiteral("to"));
    wanted.count = line.number(QStringLiteral("bins"), 1, Bins::most);
    wanted.width = line.real(QStringLiteral("width"), 0.0);
    line.refuseUnless(!wanted.width, {QStringLiteral("bins")},
                      QStringLiteral("does not go with --width"));
    line.refuseUnless(!wanted.width || *wanted.width > 0.0, {QStringLiteral("width")},
                      QStringLiteral("is more than 0"));
    line.refuseUnless(to.has_value(), {QStringLiteral("from")}, QStringLiteral("goes with --to"));
    line.refuseUnless(from.has_value(), {QStringLiteral("to")}, QStringLiteral("goes with --from"));
    if (!from || !to)
        return wanted;
    if (*from >= *to)
        line.refuse(QStringLiteral("--from is less than --to"));
    wanted.range = wanted.width ? binsByWidth(*from, *to, *wanted.width)
                                : binsByCount(*from, *to, wanted.count.value_or(usualCount));
    if (!wanted.range)
        line.refuse(QStringLiteral("--width makes more than %1 bins").arg(Bins::most));
    return wanted;
}

/// A line for each bin; where a range was asked for, one without a beginning for what is below it
/// and one without an end for what is above.
std::vector<Row> rowsOf(const Area& area, const Bins& bins, bool isRange)
{
    const Histogram histogram = histogramOf(area, bins);
    const int pixels = int(area.readings.size()) - histogram.withoutReading;
    std::vector<Row> rows;
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

Result counted(const Entry& entry, const MeasuredPhotograph& photograph, const Wanted& wanted,
               const RowPrinter& printer)
{
    std::vector<Row> rows;
    for (const Area& area : photograph.areas(wanted.measuring)) {
        if (const std::optional<Bins> bins = wanted.binsOf(area)) {
            const std::vector<Row> more = rowsOf(area, *bins, wanted.range.has_value());
            rows.insert(rows.end(), more.begin(), more.end());
        } else if (analysis::detailsOf(area)) {
            return {{}, QStringLiteral("--width makes more than %1 bins").arg(Bins::most)};
        }
    }
    return {printer.text(entry.path, photograph.shown.unit, rows), {}};
}

} // namespace

int histogramCommand(const QStringList& arguments)
{
    CommandLine line(
        QStringLiteral("histogram"),
        QStringLiteral("Counts how many pixels have which temperature. A bin holds its "
                       "lower limit, the last one both."));
    addOptions(line);
    if (!line.parse(arguments))
        return line.status();
    const RowFormat format = readRowFormat(line);
    const Wanted wanted = readWanted(line);
    if (!line.isGood())
        return line.status();

    const RowPrinter printer(format, QStringLiteral("bins"),
                             {{QStringLiteral("name"), -7, true},
                              {QStringLiteral("from"), 11},
                              {QStringLiteral("to"), 11},
                              {QStringLiteral("pixels"), 6},
                              {QStringLiteral("share"), 8}});
    PhotographRun photographs(line);
    printer.frame(photographs);
    photographs.work = [&](const Entry& entry, PhotographReader& reader) {
        return measured(entry, reader, wanted.measuring, [&](const MeasuredPhotograph& photograph) {
            return counted(entry, photograph, wanted, printer);
        });
    };
    return run(photographs);
}

} // namespace tools
