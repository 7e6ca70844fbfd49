// SPDX-License-Identifier: MIT
#include "analysis/windows/temperature_box.h"

#include <QSignalBlocker>

namespace analysis {

TemperatureBox::TemperatureBox(const QString& name)
{
    setAccessibleName(name);
    setLocale(QLocale::c());
    setRange(-1000, 10000);
    setSuffix(QLatin1Char(' ') + signOf(m_unit));
    connect(this, qOverload<double>(&QDoubleSpinBox::valueChanged), this,
            [this](double typed) { m_celsius = celsiusOf(typed, m_unit); });
}

void TemperatureBox::setUnit(Unit unit)
{
    if (unit == m_unit)
        return; // somebody may be typing
    m_unit = unit;
    const QSignalBlocker quiet(this);
    setSuffix(QLatin1Char(' ') + signOf(unit));
    setValue(inUnit(m_celsius, unit));
}

} // namespace analysis
