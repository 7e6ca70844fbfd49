// SPDX-License-Identifier: MIT
#include "analysis/photograph/neighbourhood.h"

#include "analysis/photograph/area.h"

#include <QStringList>

#include <algorithm>

namespace analysis {

QRect Neighbourhood::pixels() const
{
    return {m_centre.x() - m_size / 2, m_centre.y() - m_size / 2, m_size, m_size};
}

QRect Neighbourhood::pixelsInside() const
{
    return pixels() & QRect(0, 0, format::columns, format::rows);
}

void Neighbourhood::moveTo(const QPoint& centre)
{
    m_centre = {std::clamp(centre.x(), 0, format::columns - 1),
                std::clamp(centre.y(), 0, format::rows - 1)};
}

void Neighbourhood::growBy(int steps)
{
    constexpr int most = (largest - smallest) / 2;
    m_size = std::clamp(m_size + 2 * std::clamp(steps, -most, most), smallest, largest);
}

QString readingText(const Temperatures& temperatures, Conversion conversion, int x, int y)
{
    return oneDecimal(readingAt(x, y, temperatures, conversion).value);
}

QString readOutText(const Temperatures& temperatures, const ShownUnit& unit, const QPoint& pixel)
{
    return QStringLiteral("X: %1  Y: %2  %3%4")
        .arg(pixel.x())
        .arg(pixel.y())
        .arg(readingText(temperatures, unit.conversion, pixel.x(), pixel.y()), signOf(unit.unit));
}

QString readingMatrix(const Neighbourhood& part, const Temperatures& temperatures,
                      const ShownUnit& unit)
{
    const QRect pixels = part.pixelsInside();
    QStringList cells(QStringLiteral("y \\ x (%1)").arg(signOf(unit.unit)));
    for (int x = pixels.left(); x <= pixels.right(); ++x)
        cells.append(QString::number(x));
    QString text = cells.join(QLatin1Char('\t')) + QLatin1Char('\n');
    for (int y = pixels.top(); y <= pixels.bottom(); ++y) {
        cells = QStringList(QString::number(y));
        for (int x = pixels.left(); x <= pixels.right(); ++x)
            cells.append(readingText(temperatures, unit.conversion, x, y));
        text += cells.join(QLatin1Char('\t')) + QLatin1Char('\n');
    }
    return text;
}

} // namespace analysis
