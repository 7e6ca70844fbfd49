// SPDX-License-Identifier: MIT
#pragma once

#include <qwt_plot_marker.h>
#include <qwt_plot_zoneitem.h>

#include <array>
#include <optional>

class QwtPlot;

namespace plots {

/// Two values on the x axis, and what lies between them.
struct Limits
{
    double lower;
    double upper; ///< never below `lower`
    double step;  ///< what a key moves one of them by
    friend bool operator==(const Limits& a, const Limits& b)
    {
        return a.lower == b.lower && a.upper == b.upper && a.step == b.step;
    }
};

enum class Limit
{
    Lower,
    Upper
};

/// The limits with one of them moved to a value; it stops at the other one.
Limits moved(const Limits& limits, Limit which, double value);

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
