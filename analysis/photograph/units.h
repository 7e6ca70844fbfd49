// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <array>
#include <optional>

/// The units of temperatures, and how stored temperatures become shown ones.
namespace analysis {

/// The numbers are the indices of the unit selector, and what photographs store.
enum class Unit
{
    Celsius,
    Fahrenheit
};

struct UnitRow
{
    Unit unit;
    const char* letter; ///< in files and on the command line
    const char* sign;   ///< in windows and reports, UTF-8
};

constexpr std::array<UnitRow, 2> units{{
    {Unit::Celsius, "C", "°C"},
    {Unit::Fahrenheit, "F", "°F"},
}};

/// The unit of an index of the selector, or of a photograph's unit byte; nothing for others.
constexpr std::optional<Unit> unitAt(int index)
{
    return index >= 0 && index < int(units.size()) ? std::optional(Unit(index)) : std::nullopt;
}

/// The unit of a photograph's temperatures: °C where they come from a raw image, else what its unit
/// byte says; nothing where that says nothing.
constexpr std::optional<Unit> storedUnit(int fileUnit, bool raw)
{
    return raw ? std::optional(Unit::Celsius) : unitAt(fileUnit);
}

/// Between the scales as they are defined: for reckoning, not for showing.
constexpr double celsiusOf(double temperature, Unit unit)
{
    return unit == Unit::Fahrenheit ? (temperature - 32) * 5 / 9 : temperature;
}
constexpr double inUnit(double celsius, Unit unit)
{
    return unit == Unit::Fahrenheit ? celsius * 9 / 5 + 32 : celsius;
}

QString letterOf(Unit unit);
QString signOf(Unit unit);

/// A stored temperature t is shown as 10 × t / scale + offset.
struct Conversion
{
    float scale = 10.0F;
    float offset = 0.0F;
};

/// The instrument's own constants. The two directions are no exact inverses of each other.
constexpr Conversion unchanged{10.0F, 0.0F};
constexpr Conversion toFahrenheit{5.556F, 32.0F};
constexpr Conversion toCelsius{18.0F, -17.78F};

/// The conversion after the user, or a load, turned the unit selector to `index` (0 °C, 1 °F).
/// `current` stays for any other index, and where nothing is known about the stored scale.
/// `displayState`: −1 before the first load, 0 since. `fileUnit`: the photograph's unit byte.
/// `raw`: temperatures came from a raw image, and are in °C whatever the unit byte says.
Conversion conversionFor(int index, int displayState, int fileUnit, bool raw, Conversion current);

/// 10 × t / scale + offset, rounded to single precision at each step: the last digit depends on it.
inline float shown(float temperature, Conversion conversion)
{
    return 10.0F * temperature / conversion.scale + conversion.offset;
}

/// The same for tenths of a degree as they stand in the parameter block.
inline float shownTenths(qint16 tenths, Conversion conversion)
{
    return float(tenths) / conversion.scale + conversion.offset;
}

/// One decimal. Halves go away from zero, and a small negative value is "-0.0".
QString oneDecimal(double value);

/// Three decimals, for what is computed exactly; as above.
QString threeDecimals(double value);

} // namespace analysis
