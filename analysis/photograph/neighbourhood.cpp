// SPDX-License-Identifier: MIT
#include "analysis/photograph/neighbourhood.h"

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

} // namespace analysis
