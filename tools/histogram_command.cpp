// SPDX-License-Identifier: MIT
#include "analysis/export/histogram_plot.h"
#include "analysis/photograph/details.h"
#include "tools/commands.h"
#include "tools/measuring_options.h"
#include "tools/photograph_run.h"
#include "tools/rows.h"

using analysis::Area;
using analysis::Bins;
using analysis::binsByCount;
using analysis::binsByWidth;
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
    addCorrectionOptions(line);
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

Result counted(const Entry& entry, const MeasuredPhotograph& photograph, const Wanted& wanted,
               const RowPrinter& printer)
{
    std::vector<Row> rows;
    for (const Area& area : photograph.areas(wanted.measuring)) {
        if (const std::optional<Bins> bins = wanted.binsOf(area)) {
            const std::vector<Row> more = histogramRows(area, *bins, wanted.range.has_value());
            rows.insert(rows.end(), more.begin(), more.end());
        } else if (analysis::detailsOf(area)) {
            return {{}, QStringLiteral("--width makes more than %1 bins").arg(Bins::most)};
        }
    }
    return {photograph.printed(printer, entry.path, rows), {}};
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
                             columnsFor(wanted.measuring, {{QStringLiteral("name"), -7, true},
                                                           {QStringLiteral("from"), 11},
                                                           {QStringLiteral("to"), 11},
                                                           {QStringLiteral("pixels"), 6},
                                                           {QStringLiteral("share"), 8}}));
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
