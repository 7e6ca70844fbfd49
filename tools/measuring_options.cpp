// SPDX-License-Identifier: MIT
#include "tools/measuring_options.h"

#include "tools/messages.h"
#include "tools/tool_files.h"

using analysis::Unit;

namespace tools {

void addMeasuringOptions(CommandLine& line, const QString& toolsDescription)
{
    line.add({QStringLiteral("tools")}, toolsDescription, QStringLiteral("FILE.json"));
    line.add({QStringLiteral("unit")},
             QStringLiteral("Unit of the temperatures. Default: the photograph's own."),
             QStringLiteral("C|F"));
}

std::optional<Unit> readUnit(CommandLine& line)
{
    if (!line.isSet(QStringLiteral("unit")))
        return std::nullopt;
    return line.choice(QStringLiteral("unit"), unitNames());
}

std::vector<std::pair<const char*, std::optional<Unit>>> unitNames()
{
    std::vector<std::pair<const char*, std::optional<Unit>>> names;
    names.reserve(analysis::units.size());
    for (const analysis::UnitRow& row : analysis::units)
        names.emplace_back(row.letter, row.unit);
    return names;
}

overlay::Tools readTools(CommandLine& line)
{
    overlay::Tools tools;
    const QString file = line.value(QStringLiteral("tools"));
    if (!line.isSet(QStringLiteral("tools")))
        return tools;
    const QString wrong = readToolFile(file, tools);
    if (!wrong.isEmpty())
        line.refuse(file + QStringLiteral(": ") + wrong);
    return tools;
}

Measuring readMeasuring(CommandLine& line)
{
    Measuring measuring;
    measuring.modelIndex = line.modelIndex();
    measuring.unit = readUnit(line);
    measuring.tools = readTools(line);
    measuring.correction = readCorrection(line);
    measuring.isWhole = !line.isSet(QStringLiteral("tools"));
    return measuring;
}

std::vector<analysis::Area> MeasuredPhotograph::areas(const Measuring& measuring) const
{
    if (!measuring.isWhole)
        return areasOf(measuring.tools, temperatures, shown.conversion);
    analysis::Area picture = wholePicture(temperatures, shown.conversion);
    picture.name = QLatin1String(analysis::pictureInFiles);
    return {picture};
}

QByteArray MeasuredPhotograph::printed(const RowPrinter& printer, const QString& file,
                                       std::vector<Row> rows) const
{
    if (correction) {
        for (Row& row : rows)
            row += correctionCells(*correction, shown.unit);
    }
    return printer.text(file, shown.unit, rows);
}

std::vector<Column> columnsFor(const Measuring& measuring, std::vector<Column> columns)
{
    if (measuring.correction) {
        const std::vector<Column> more = correctionColumns();
        columns.insert(columns.end(), more.begin(), more.end());
    }
    return columns;
}

Result measured(const Entry& entry, analysis::PhotographReader& reader, const Measuring& measuring,
                const std::function<Result(const MeasuredPhotograph&)>& measure)
{
    const files::Outcome outcome = reader.read(entry.path, measuring.modelIndex);
    if (!outcome.isGood())
        return {{}, reason(outcome)};
    const analysis::Photograph& photograph = reader.photograph();
    const analysis::ShownUnit shown =
        shownUnit(measuring.unit, photograph.parameters.unit, reader.isRaw());
    if (!measuring.correction)
        return measure({photograph.temperatures, shown, {}});

    const analysis::Correction correction = measuring.correction->of(photograph, shown.unit);
    const std::optional<Unit> scale =
        analysis::storedUnit(photograph.parameters.unit, reader.isRaw());
    const QString against = reasonAgainst(correction, scale);
    if (!against.isEmpty())
        return {{}, against};
    const analysis::CorrectedTemperatures corrected =
        correctedTemperatures(photograph.temperatures, *scale, correction);
    return measure({*corrected.temperatures, shown, correction});
}

} // namespace tools
