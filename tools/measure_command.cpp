// SPDX-License-Identifier: MIT
#include "analysis/photograph/tool_statistics.h"
#include "tools/commands.h"
#include "tools/comparisons.h"
#include "tools/measuring_options.h"
#include "tools/photograph_run.h"
#include "tools/rows.h"

using analysis::Area;
using analysis::Details;
using analysis::oneDecimal;
using analysis::PhotographReader;
using analysis::threeDecimals;
using analysis::ToolRow;

namespace tools {
namespace {

/// What is told of each photograph.
struct Wanted
{
    Measuring measuring;
    bool more = false;
    std::vector<Delta> deltas;
    std::vector<Limit> limits;
};

std::vector<Column> columnsOf(const Wanted& wanted)
{
    int widest = 5;
    for (const Delta& delta : wanted.deltas)
        widest = std::max(widest, delta.text.size());
    std::vector<Column> columns{{QStringLiteral("name"), -widest, true},
                                {QStringLiteral("type"), -9, true}};
    const auto addNumbers = [&columns](const QStringList& names) {
        for (const QString& name : names)
            columns.push_back({name, std::max(name.size(), 8)});
    };
    addNumbers({QStringLiteral("high"), QStringLiteral("low"), QStringLiteral("average")});
    if (wanted.more)
        addNumbers({QStringLiteral("high_x"), QStringLiteral("high_y"), QStringLiteral("low_x"),
                    QStringLiteral("low_y"), QStringLiteral("deviation"), QStringLiteral("median"),
                    QStringLiteral("pixels")});
    if (!wanted.deltas.empty())
        addNumbers({QStringLiteral("delta")});
    return columns;
}

QStringList moreCells(const std::optional<Details>& details)
{
    const QString none = QStringLiteral("nan");
    if (!details)
        return {none, none, none, none, none, none, QStringLiteral("0")};
    return {QString::number(details->high.x),  QString::number(details->high.y),
            QString::number(details->low.x),   QString::number(details->low.y),
            threeDecimals(details->deviation), threeDecimals(details->median),
            QString::number(details->pixels)};
}

/// What a row says first, and what it says last; in between there is nothing.
Row filled(Row row, const QStringList& last, std::size_t columns)
{
    while (row.size() + last.size() < int(columns))
        row.append(QString());
    return row + last;
}

/// Corrected readings have nothing to do with the tool table, nor with what it begins from.
Row correctedCells(const std::optional<Details>& details)
{
    if (!details)
        return {QStringLiteral("nan"), QStringLiteral("nan"), QStringLiteral("nan")};
    return {oneDecimal(details->high.value), oneDecimal(details->low.value),
            oneDecimal(details->mean)};
}

std::vector<Row> rowsOf(const MeasuredPhotograph& photograph, const Wanted& wanted,
                        const DetailsOfTools& details)
{
    const std::size_t columns = columnsOf(wanted).size();
    std::vector<Row> rows;
    for (const ToolRow& tool :
         toolRows(wanted.measuring.tools, photograph.temperatures, photograph.shown.conversion)) {
        const Row numbers = photograph.correction ? correctedCells(details.value(tool.name))
                                                  : Row{tool.high, tool.low, tool.average};
        const Row row = Row{tool.name, QLatin1String(overlay::rowOf(tool.kind).name)} + numbers;
        const Row more = wanted.more ? moreCells(details.value(tool.name)) : Row();
        rows.push_back(filled(row + more, {}, columns));
    }
    for (const Delta& delta : wanted.deltas) {
        const std::optional<double> value = delta.comparison.value(details);
        rows.push_back(filled({delta.text, QStringLiteral("delta")},
                              {value ? threeDecimals(*value) : QStringLiteral("nan")}, columns));
    }
    return rows;
}

void judge(const std::vector<Limit>& limits, const DetailsOfTools& details, const QString& sign,
           Result& result)
{
    QStringList unknown;
    for (const Limit& limit : limits) {
        const std::optional<double> value = limit.comparison.value(details);
        if (!value)
            unknown += limit.text;
        else if (limit.isPassed(threeDecimals(*value).toDouble(), limit.value))
            result.findings += QStringLiteral("passes the limit %1: %2 %3")
                                   .arg(limit.text, threeDecimals(*value), sign);
    }
    result.isFound = !result.findings.isEmpty();
    if (!unknown.isEmpty())
        result.failure = QStringLiteral("has no readings to judge %1 by")
                             .arg(unknown.join(QStringLiteral(", ")));
}

Wanted readWanted(CommandLine& line)
{
    Wanted wanted;
    line.require(QStringLiteral("tools"));
    wanted.measuring = readMeasuring(line);
    wanted.more = line.isSet(QStringLiteral("more"));
    wanted.deltas = readDeltas(line, wanted.measuring.tools);
    wanted.limits = readLimits(line, wanted.measuring.tools);
    return wanted;
}

void addOptions(CommandLine& line)
{
    addMeasuringOptions(
        line,
        QStringLiteral("The tools: {\"points\": [[x, y], …], \"lines\": [[x1, y1, x2, y2], …], "
                       "\"rectangles\": [[x1, y1, x2, y2], …], \"circles\": [[cx, cy, r], "
                       "…]}."));
    addCorrectionOptions(line);
    addRowFormat(line);
    line.add({QStringLiteral("more")},
             QStringLiteral("Also where the hottest and the coldest pixel lie, standard deviation, "
                            "median and number of pixels."));
    line.add({QStringLiteral("delta")},
             QStringLiteral("Also how much hotter one tool is than another, or than a number: "
                            "R0-R1, R0.high-R1.average, R0-20. May be given several times."),
             QStringLiteral("DIFFERENCE"));
    line.add({QStringLiteral("limit")},
             QStringLiteral("Tell the photographs that pass it, and end with 3 if one does: "
                            "\"R0.high>70\", \"R0-R1>=10\". May be given several times."),
             QStringLiteral("LIMIT"));
}

} // namespace

int measureCommand(const QStringList& arguments)
{
    CommandLine line(QStringLiteral("measure"),
                     QStringLiteral("Measures photographs, all with the same tools."));
    addOptions(line);
    if (!line.parse(arguments))
        return line.status();
    const RowFormat format = readRowFormat(line);
    const Wanted wanted = readWanted(line);
    if (!line.isGood())
        return line.status();

    const RowPrinter printer(format, QStringLiteral("tools"),
                             columnsFor(wanted.measuring, columnsOf(wanted)));
    const bool needsDetails = wanted.more || !wanted.deltas.empty() || !wanted.limits.empty() ||
                              wanted.measuring.correction;
    PhotographRun photographs(line);
    printer.frame(photographs);
    photographs.status = [](bool someFailed, bool someFound) {
        if (someFound)
            return status::limitPassed;
        return someFailed ? status::someFailed : status::good;
    };
    photographs.work = [&](const Entry& entry, PhotographReader& reader) {
        return measured(entry, reader, wanted.measuring, [&](const MeasuredPhotograph& photograph) {
            DetailsOfTools details;
            if (needsDetails) {
                for (const Area& area : photograph.areas(wanted.measuring))
                    details.insert(area.name, detailsOf(area));
            }
            Result result;
            result.output =
                photograph.printed(printer, entry.path, rowsOf(photograph, wanted, details));
            judge(wanted.limits, details, signOf(photograph.shown.unit), result);
            return result;
        });
    };
    return run(photographs);
}

} // namespace tools
