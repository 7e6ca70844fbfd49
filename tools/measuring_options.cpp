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
    measuring.isWhole = !line.isSet(QStringLiteral("tools"));
    return measuring;
}

std::vector<analysis::Area> MeasuredPhotograph::areas(const Measuring& measuring) const
{
    if (!measuring.isWhole)
        return areasOf(measuring.tools, temperatures, shown.conversion);
    analysis::Area picture = wholePicture(temperatures, shown.conversion);
    picture.name = QStringLiteral("picture");
    return {picture};
}

Result measured(const Entry& entry, analysis::PhotographReader& reader, const Measuring& measuring,
                const std::function<Result(const MeasuredPhotograph&)>& measure)
{
    const files::Outcome outcome = reader.read(entry.path, measuring.modelIndex);
    if (!outcome.isGood())
        return {{}, reason(outcome)};
    const analysis::Photograph& photograph = reader.photograph();
    return measure({photograph.temperatures,
                    shownUnit(measuring.unit, photograph.parameters.unit, reader.isRaw())});
}

} // namespace tools
