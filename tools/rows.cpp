// SPDX-License-Identifier: MIT
#include "tools/rows.h"

#include "files/table_text.h"
#include "platform/console.h"
#include "tools/command_line.h"
#include "tools/photograph_run.h"
#include "tools/texts.h"

#include <QJsonArray>
#include <QJsonObject>

#include <cmath>

namespace tools {
namespace {

/// The number that a cell shows; null for what JSON has no number for.
QJsonValue number(const QString& cell)
{
    const double value = cell.toDouble();
    return std::isfinite(value) ? QJsonValue(value) : QJsonValue();
}

QStringList namesOf(const std::vector<Column>& columns)
{
    QStringList names;
    for (const Column& column : columns)
        names += column.name;
    return names;
}

} // namespace

void addRowFormat(CommandLine& line)
{
    line.add({QStringLiteral("format")},
             QStringLiteral("How to print. ndjson: an object on each line. Default: table."),
             QStringLiteral("csv|json|ndjson|table"), QStringLiteral("table"));
}

RowFormat readRowFormat(CommandLine& line)
{
    return line.choice<RowFormat>(QStringLiteral("format"), {{"csv", RowFormat::Csv},
                                                             {"json", RowFormat::Json},
                                                             {"ndjson", RowFormat::Ndjson},
                                                             {"table", RowFormat::Table}});
}

RowPrinter::RowPrinter(RowFormat format, const QString& key, std::vector<Column> columns)
    : m_format(format), m_key(key), m_columns(std::move(columns)),
      m_isForEyes(format == RowFormat::Table ||
                  (format == RowFormat::Csv && platform::isTerminal(stdout)))
{
}

void RowPrinter::frame(PhotographRun& photographs) const
{
    switch (m_format) {
    case RowFormat::Json:
        photographs.before = "[";
        photographs.between = ",\n ";
        photographs.after = "]\n";
        break;
    case RowFormat::Csv:
        photographs.before =
            "file,unit," + namesOf(m_columns).join(QLatin1Char(',')).toUtf8() + '\n';
        break;
    case RowFormat::Table:
        photographs.between = "\n";
        break;
    case RowFormat::Ndjson:
        break;
    }
}

QByteArray RowPrinter::text(const QString& file, analysis::Unit unit,
                            const std::vector<Row>& rows) const
{
    const QString name = m_isForEyes ? printable(file) : file;
    const QString letter = letterOf(unit);
    switch (m_format) {
    case RowFormat::Json:
        return json(name, letter, rows);
    case RowFormat::Ndjson:
        return json(name, letter, rows) + '\n';
    case RowFormat::Csv:
        return csv(name, letter, rows);
    case RowFormat::Table:
        break;
    }
    return table(name, letter, rows);
}

QByteArray RowPrinter::json(const QString& file, const QString& unit,
                            const std::vector<Row>& rows) const
{
    QJsonArray array;
    for (const Row& row : rows) {
        QJsonObject object;
        for (std::size_t i = 0; i < m_columns.size(); ++i) {
            const QString& cell = row[int(i)];
            if (!cell.isEmpty())
                object.insert(m_columns[i].name,
                              m_columns[i].isText ? QJsonValue(cell) : number(cell));
        }
        array.append(object);
    }
    return jsonLine(
        {{QStringLiteral("file"), file}, {QStringLiteral("unit"), unit}, {m_key, array}});
}

QByteArray RowPrinter::csv(const QString& file, const QString& unit,
                           const std::vector<Row>& rows) const
{
    const QString begin = files::csvField(file) + QLatin1Char(',') + unit + QLatin1Char(',');
    QString lines;
    for (const Row& row : rows)
        lines += begin + row.join(QLatin1Char(',')) + QLatin1Char('\n');
    return lines.toUtf8();
}

QByteArray RowPrinter::table(const QString& file, const QString& unit,
                             const std::vector<Row>& rows) const
{
    QString lines = QStringLiteral("%1 (°%2)\n").arg(file, unit);
    const auto line = [&](const Row& row) {
        QStringList cells;
        for (std::size_t i = 0; i < m_columns.size(); ++i)
            cells += QStringLiteral("%1").arg(row[int(i)], m_columns[i].width);
        lines += cells.join(QLatin1Char(' ')) + QLatin1Char('\n');
    };
    line(namesOf(m_columns));
    for (const Row& row : rows)
        line(row);
    return lines.toUtf8();
}

} // namespace tools
