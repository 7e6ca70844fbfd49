// SPDX-License-Identifier: MIT
#include "analysis/photograph/reading_texts.h"

#include "analysis/photograph/area.h"

#include <QRect>
#include <QStringList>

#include <algorithm>
#include <cmath>

namespace analysis {

ReadingTexts::ReadingTexts(const Temperatures& temperatures, const ShownUnit& unit,
                           const QString& corrected)
    : m_temperatures(temperatures), m_unit(unit), m_corrected(corrected)
{
}

QString ReadingTexts::at(int x, int y) const
{
    const Reading reading = readingAt(x, y, m_temperatures, m_unit.conversion);
    if (!reading.isNumber() && !m_corrected.isEmpty())
        return QStringLiteral("–");
    return oneDecimal(reading.value);
}

QString ReadingTexts::readOut(const QPoint& pixel) const
{
    return QStringLiteral("X: %1  Y: %2  %3%4")
        .arg(pixel.x())
        .arg(pixel.y())
        .arg(at(pixel.x(), pixel.y()), signOf(m_unit.unit));
}

int ReadingTexts::longest() const
{
    double low = 0.0;
    double high = 0.0;
    for (const float temperature : m_temperatures) {
        const double reading = double(shown(temperature, m_unit.conversion));
        if (!std::isfinite(reading))
            continue;
        low = std::min(low, reading);
        high = std::max(high, reading);
    }
    constexpr int withoutNumber = 4; // "-inf", of a photograph without a gray span
    return std::max({withoutNumber, oneDecimal(low).size(), oneDecimal(high).size()});
}

QString ReadingTexts::matrix(const QRect& pixels) const
{
    QString unit = signOf(m_unit.unit);
    if (!m_corrected.isEmpty())
        unit += QStringLiteral("; ") + m_corrected;
    QStringList cells(QStringLiteral("y \\ x (%1)").arg(unit));
    for (int x = pixels.left(); x <= pixels.right(); ++x)
        cells.append(QString::number(x));
    QString text = cells.join(QLatin1Char('\t')) + QLatin1Char('\n');
    for (int y = pixels.top(); y <= pixels.bottom(); ++y) {
        cells = QStringList(QString::number(y));
        for (int x = pixels.left(); x <= pixels.right(); ++x)
            cells.append(at(x, y));
        text += cells.join(QLatin1Char('\t')) + QLatin1Char('\n');
    }
    return text;
}

} // namespace analysis
