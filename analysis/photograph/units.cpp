// SPDX-License-Identifier: MIT
#include "analysis/photograph/units.h"

namespace analysis {

QString letterOf(Unit unit)
{
    return QString::fromUtf8(units[std::size_t(unit)].letter);
}

QString signOf(Unit unit)
{
    return QString::fromUtf8(units[std::size_t(unit)].sign);
}

Conversion conversionFor(int index, int displayState, int fileUnit, bool raw, Conversion current)
{
    if (index != 0 && index != 1)
        return current;
    const bool storedInCelsius = raw || displayState == 1 || (displayState == 0 && fileUnit == 0);
    if (storedInCelsius)
        return index == 0 ? unchanged : toFahrenheit;
    if (displayState == 0 && fileUnit == 1)
        return index == 0 ? toCelsius : unchanged;
    return current;
}

QString oneDecimal(double value)
{
    return QString::number(value, 'f', 1);
}

QString threeDecimals(double value)
{
    return QString::number(value, 'f', 3);
}

} // namespace analysis
