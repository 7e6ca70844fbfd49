// SPDX-License-Identifier: MIT
#pragma once

#include "plots/plot.h"

#include <qwt_plot_marker.h>
#include <qwt_plot_zoneitem.h>

#include <array>
#include <optional>

class QwtPlot;

namespace plots {

/// Draws the limits, as two lines and a tint between them.
class LimitLines
{
public:
    explicit LimitLines(QwtPlot& plot);

    void show(const std::optional<Limits>& limits);
    const std::optional<Limits>& shown() const { return m_limits; }

    /// The line within reach of a place on the canvas, the nearer one of two; none where both are
    /// farther away.
    std::optional<Limit> at(int x) const;

private:
    QwtPlot& m_plot;
    std::optional<Limits> m_limits;
    QwtPlotZoneItem m_tint;
    std::array<QwtPlotMarker, 2> m_lines;
};

} // namespace plots
