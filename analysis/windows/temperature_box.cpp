// SPDX-License-Identifier: MIT
#include "analysis/windows/temperature_box.h"

#include <QSignalBlocker>

namespace analysis {

TemperatureBox::TemperatureBox(const QString& name)
{
    setAccessibleName(name);
    setLocale(QLocale::c());
    setRange(-1000, 10000);
    connect(this, qOverload<double>(&QDoubleSpinBox::valueChanged), this,
            [this](double typed) { m_celsius = celsiusOf(typed, m_unit); });
}

void TemperatureBox::setUnit(Unit unit)
{
    setSuffix(QLatin1Char(' ') + signOf(unit));
    if (unit == m_unit)
        return;
    m_unit = unit;
    const QSignalBlocker quiet(this);
    setValue(inUnit(m_celsius, unit));
}

} // namespace analysis
