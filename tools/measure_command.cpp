// SPDX-License-Identifier: MIT
#include "analysis/photograph/photograph_reader.h"
#include "analysis/photograph/tool_statistics.h"
#include "platform/console.h"
#include "tools/commands.h"
#include "tools/measuring_options.h"
#include "tools/messages.h"
#include "tools/photograph_run.h"
#include "tools/texts.h"

#include <QJsonArray>
#include <QJsonObject>

#include <cmath>

using analysis::PhotographReader;
using analysis::ToolRow;
using analysis::Unit;
using files::Outcome;

namespace tools {
namespace {

/// The tool table of one photograph.
struct Measured
{
    QString file;
    QString unit; ///< "C" or "F"
    std::vector<ToolRow> rows;
};

QString typeOf(const ToolRow& row)
{
    return QLatin1String(overlay::rowOf(row.kind).name);
}

/// The number that a cell shows; null for what JSON has no number for.
QJsonValue number(const QString& cell)
{
    const double value = cell.toDouble();
    return std::isfinite(value) ? QJsonValue(value) : QJsonValue();
}

QByteArray json(const Measured& measured)
{
    QJsonArray tools;
    for (const ToolRow& row : measured.rows)
        tools.append(QJsonObject{{QStringLiteral("name"), row.name},
                                 {QStringLiteral("type"), typeOf(row)},
                                 {QStringLiteral("high"), number(row.high)},
                                 {QStringLiteral("low"), number(row.low)},
                                 {QStringLiteral("average"), number(row.average)}});
    const QJsonObject object{{QStringLiteral("file"), measured.file},
                             {QStringLiteral("unit"), measured.unit},
                             {QStringLiteral("tools"), tools}};
    return jsonLine(object);
}

/// A field as spreadsheets take it: quoted where it must be.
QString csvField(QString text)
{
    constexpr const char* special = ",\"\r\n";
    const bool isPlain = std::none_of(text.begin(), text.end(), [](QChar character) {
        return QLatin1String(special).contains(character);
    });
    if (isPlain)
        return text;
    return QLatin1Char('"') + text.replace(QLatin1Char('"'), QLatin1String("\"\"")) +
           QLatin1Char('"');
}

QByteArray csv(const Measured& measured)
{
    const QString file = csvField(measured.file);
    QString lines;
    for (const ToolRow& row : measured.rows) {
        const QStringList fields{file,     measured.unit, row.name,   typeOf(row),
                                 row.high, row.low,       row.average};
        lines += fields.join(QLatin1Char(',')) + QLatin1Char('\n');
    }
    return lines.toUtf8();
}

QByteArray table(const Measured& measured)
{
    QString lines = QStringLiteral("%1 (°%2)\n").arg(measured.file, measured.unit);
    const auto line = [&lines](const QString& name, const QString& type, const QString& high,
                               const QString& low, const QString& average) {
        lines += QStringLiteral("%1 %2 %3 %4 %5\n")
                     .arg(name, -5)
                     .arg(type, -9)
                     .arg(high, 8)
                     .arg(low, 8)
                     .arg(average, 8);
    };
    line(QStringLiteral("name"), QStringLiteral("type"), QStringLiteral("high"),
         QStringLiteral("low"), QStringLiteral("average"));
    for (const ToolRow& row : measured.rows)
        line(row.name, typeOf(row), row.high, row.low, row.average);
    return lines.toUtf8();
}

using Writer = QByteArray (*)(const Measured&);

} // namespace

int measureCommand(const QStringList& arguments)
{
    CommandLine line(QStringLiteral("measure"),
                     QStringLiteral("Measures photographs, all with the same tools."));
    addMeasuringOptions(
        line,
        QStringLiteral("The tools: {\"points\": [[x, y], …], \"lines\": [[x1, y1, x2, y2], …], "
                       "\"rectangles\": [[x1, y1, x2, y2], …], \"circles\": [[cx, cy, r], "
                       "…]}."));
    line.add({QStringLiteral("format")}, QStringLiteral("How to print the tables. Default: table."),
             QStringLiteral("csv|json|table"), QStringLiteral("table"));
    if (!line.parse(arguments))
        return line.status();

    const std::optional<int> modelIndex = line.modelIndex();
    const std::optional<Unit> unit = readUnit(line);
    const auto write = line.choice<Writer>(QStringLiteral("format"),
                                           {{"csv", csv}, {"json", json}, {"table", table}});
    line.require(QStringLiteral("tools"));
    const overlay::Tools tools = readTools(line);
    if (!line.isGood())
        return line.status();

    // For eyes; a program gets the names as they are.
    const bool isShown = write == table || (write == csv && platform::isTerminal(stdout));
    PhotographRun photographs(line);
    photographs.work = [&](const Entry& entry, PhotographReader& reader) -> Result {
        const Outcome outcome = reader.read(entry.path, modelIndex);
        if (!outcome.isGood())
            return {{}, reason(outcome)};
        const analysis::Photograph& photograph = reader.photograph();
        const analysis::ShownUnit shown =
            shownUnit(unit, photograph.parameters.unit, reader.isRaw());
        return {write({isShown ? printable(entry.path) : entry.path, letterOf(shown.unit),
                       toolRows(tools, photograph.temperatures, shown.conversion)}),
                {}};
    };
    if (write == json) {
        photographs.before = "[";
        photographs.between = ",\n ";
        photographs.after = "]\n";
    } else if (write == csv)
        photographs.before = "file,unit,name,type,high,low,average\n";
    else
        photographs.between = "\n";
    return run(photographs);
}

} // namespace tools
