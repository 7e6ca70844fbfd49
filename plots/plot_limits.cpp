// SPDX-License-Identifier: MIT
#include "plots/plot_limits.h"

#include <QPen>
#include <qwt_plot.h>
#include <qwt_scale_map.h>

#include <algorithm>
#include <cmath>

namespace plots {
namespace {

constexpr double reach = 6;             ///< pixels from a line
constexpr QRgb lineColour = 0xff7f0000; // no series has it
constexpr QRgb tintColour = 0x50ffc000; // bars show through

} // namespace

LimitLines::LimitLines(QwtPlot& plot) : m_plot(plot)
{
    m_tint.setOrientation(Qt::Vertical);
    m_tint.setPen(QPen(Qt::NoPen));
    m_tint.setBrush(QColor::fromRgba(tintColour));
    m_tint.setZ(25); // series have 20
    m_tint.attach(&plot);
    for (QwtPlotMarker& line : m_lines) {
        line.setLineStyle(QwtPlotMarker::VLine);
        line.setLinePen(QColor::fromRgb(lineColour), 1.5, Qt::SolidLine);
        line.setZ(30);
        line.attach(&plot);
    }
    show({});
}

void LimitLines::show(const std::optional<Limits>& limits)
{
    m_limits = limits;
    m_tint.setVisible(limits.has_value());
    for (QwtPlotMarker& line : m_lines)
        line.setVisible(limits.has_value());
    if (!limits)
        return;
    m_tint.setInterval(limits->lower, limits->upper);
    m_lines[0].setXValue(limits->lower);
    m_lines[1].setXValue(limits->upper);
}

std::optional<Limit> LimitLines::at(int x) const
{
    if (!m_limits)
        return {};
    const QwtScaleMap map = m_plot.canvasMap(QwtPlot::xBottom);
    const double toLower = std::abs(map.transform(m_limits->lower) - x);
    const double toUpper = std::abs(map.transform(m_limits->upper) - x);
    if (std::min(toLower, toUpper) > reach)
        return {};
    // Where both lie upon each other, the side of the press says which is meant.
    if (toLower == toUpper)
        return x < map.transform(m_limits->lower) ? Limit::Lower : Limit::Upper;
    return toLower < toUpper ? Limit::Lower : Limit::Upper;
}

} // namespace plots
