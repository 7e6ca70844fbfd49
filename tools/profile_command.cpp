// SPDX-License-Identifier: MIT
#include "analysis/export/profile_plot.h"
#include "tools/commands.h"
#include "tools/measuring_options.h"
#include "tools/photograph_run.h"
#include "tools/rows.h"

using analysis::PhotographReader;

namespace tools {
namespace {

std::vector<Row> rowsOf(const MeasuredPhotograph& photograph, const overlay::Tools& tools)
{
    std::vector<Row> rows;
    for (const overlay::LineTool& line : tools.lineList) {
        const std::vector<Row> more = analysis::profileRows(
            line.name, profileOf(line, photograph.temperatures, photograph.shown.conversion));
        rows.insert(rows.end(), more.begin(), more.end());
    }
    return rows;
}

} // namespace

int profileCommand(const QStringList& arguments)
{
    CommandLine line(
        QStringLiteral("profile"),
        QStringLiteral("Prints the temperatures along lines, pixel by pixel from start "
                       "to end, with the distance from the start in pixels."));
    addMeasuringOptions(line, QStringLiteral("The lines, as measure takes them; other tools are "
                                             "passed over."));
    addCorrectionOptions(line);
    addRowFormat(line);
    if (!line.parse(arguments))
        return line.status();
    const RowFormat format = readRowFormat(line);
    line.require(QStringLiteral("tools"));
    const Measuring measuring = readMeasuring(line);
    if (measuring.tools.lineList.isEmpty())
        line.refuse(QStringLiteral("--tools has no line"));
    if (!line.isGood())
        return line.status();

    const RowPrinter printer(format, QStringLiteral("pixels"),
                             columnsFor(measuring, {{QStringLiteral("name"), -5, true},
                                                    {QStringLiteral("distance"), 8},
                                                    {QStringLiteral("x"), 4},
                                                    {QStringLiteral("y"), 4},
                                                    {QStringLiteral("temperature"), 11}}));
    PhotographRun photographs(line);
    printer.frame(photographs);
    photographs.work = [&](const Entry& entry, PhotographReader& reader) {
        return measured(entry, reader, measuring, [&](const MeasuredPhotograph& photograph) {
            return Result{
                photograph.printed(printer, entry.path, rowsOf(photograph, measuring.tools)), {}};
        });
    };
    return run(photographs);
}

} // namespace tools
