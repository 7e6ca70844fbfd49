// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/photograph/units.h"

#include <QDoubleSpinBox>

namespace analysis {

/// A temperature that somebody types, in the unit that the photograph is shown in. It stays the
/// same temperature when the unit is another. Two decimals, plain digits. GUI thread only.
class TemperatureBox : public QDoubleSpinBox
{
    Q_OBJECT

public:
    /// `name` is for screen readers. 0 °C at first.
    explicit TemperatureBox(const QString& name);

    /// Shows the same temperature in this unit. Not told by signals.
    void setUnit(Unit unit);

private:
    Unit m_unit = Unit::Celsius;
    double m_celsius = 0.0; ///< as typed, not as rounded in another unit
};

} // namespace analysis
