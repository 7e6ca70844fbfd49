#include "tools/measuring_options.h"

using analysis::UnitChoice;

namespace tools {

void addMeasuringOptions(CommandLine& line, const QString& toolsDescription)
{
    line.add({QStringLiteral("tools")}, toolsDescription, QStringLiteral("FILE.json"));
    line.add({QStringLiteral("unit")},
             QStringLiteral("Unit of the temperatures. Default: the photograph's own."),
             QStringLiteral("C|F"));
}

UnitChoice readUnit(CommandLine& line)
{
    if (!line.isSet(QStringLiteral("unit")))
        return UnitChoice::AsStored;
    return line.choice<UnitChoice>(QStringLiteral("unit"),
                                   {{"C", UnitChoice::Celsius}, {"F", UnitChoice::Fahrenheit}});
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

} // namespace tools
