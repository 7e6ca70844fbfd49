// SPDX-License-Identifier: MIT
#include "analysis/photograph/extremes.h"
#include "tools/commands.h"
#include "tools/measuring_options.h"
#include "tools/photograph_run.h"
#include "tools/rows.h"

using analysis::Area;
using analysis::Extremes;
using analysis::PhotographReader;
using analysis::Reading;

namespace tools {
namespace {

struct Wanted
{
    Measuring measuring;
    int count = analysis::usualExtremes;
    double distance = analysis::usualDistance;
};

void addOptions(CommandLine& line)
{
    addMeasuringOptions(line, QStringLiteral("Where to look; the whole picture by default. See "
                                             "thermaphoto measure --help."));
    addCorrectionOptions(line);
    addRowFormat(line);
    line.add({QStringLiteral("count")},
             QStringLiteral("So many hot and so many cold ones at most. Default: %1.")
                 .arg(analysis::usualExtremes),
             QStringLiteral("N"));
    line.add({QStringLiteral("distance")},
             QStringLiteral("Further than so many pixels from each other. Default: %1.")
                 .arg(analysis::usualDistance),
             QStringLiteral("PIXELS"));
}

Wanted readWanted(CommandLine& line)
{
    constexpr int most = 10000;
    Wanted wanted;
    wanted.measuring = readMeasuring(line);
    wanted.count = line.number(QStringLiteral("count"), 1, most).value_or(analysis::usualExtremes);
    wanted.distance = line.real(QStringLiteral("distance"), 0.0).value_or(analysis::usualDistance);
    return wanted;
}

std::vector<Row> rowsOf(const MeasuredPhotograph& photograph, const Wanted& wanted)
{
    std::vector<Row> rows;
    for (const Area& area : photograph.areas(wanted.measuring)) {
        const Extremes extremes = extremesOf(area, wanted.count, wanted.distance);
        const auto add = [&](const char* type, const std::vector<Reading>& spots) {
            for (const Reading& spot : spots)
                rows.push_back({area.name, QLatin1String(type), QString::number(spot.x),
                                QString::number(spot.y), analysis::threeDecimals(spot.value)});
        };
        add("hot", extremes.hottest);
        add("cold", extremes.coldest);
    }
    return rows;
}

} // namespace

int spotsCommand(const QStringList& arguments)
{
    CommandLine line(QStringLiteral("spots"),
                     QStringLiteral("Prints the hottest and coldest spots, which are hotter or "
                                    "colder than all around."));
    addOptions(line);
    if (!line.parse(arguments))
        return line.status();
    const RowFormat format = readRowFormat(line);
    const Wanted wanted = readWanted(line);
    if (!line.isGood())
        return line.status();

    const RowPrinter printer(format, QStringLiteral("spots"),
                             columnsFor(wanted.measuring, {{QStringLiteral("name"), -7, true},
                                                           {QStringLiteral("type"), -4, true},
                                                           {QStringLiteral("x"), 4},
                                                           {QStringLiteral("y"), 4},
                                                           {QStringLiteral("temperature"), 11}}));
    PhotographRun photographs(line);
    printer.frame(photographs);
    photographs.work = [&](const Entry& entry, PhotographReader& reader) {
        return measured(entry, reader, wanted.measuring, [&](const MeasuredPhotograph& photograph) {
            return Result{photograph.printed(printer, entry.path, rowsOf(photograph, wanted)), {}};
        });
    };
    return run(photographs);
}

} // namespace tools
