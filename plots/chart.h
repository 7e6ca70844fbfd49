// SPDX-License-Identifier: MIT
#pragma once

#include "plots/plot.h"
#include "plots/plot_limits.h"

#include <QRectF>
#include <qwt_plot.h>
#include <qwt_plot_curve.h>
#include <qwt_plot_grid.h>
#include <qwt_plot_histogram.h>
#include <qwt_plot_marker.h>

#include <memory>
#include <optional>
#include <vector>

namespace plots {

/// A plot as it is drawn: axes, grid, series, limits, cursor, legend. It says where things are and
/// does nothing by itself; PlotView is what mouse and keyboard work on. Ranges are rectangles in
/// the axes' values, with the lowest ones as top left corner. GUI thread only.
///
/// Its colours are light ones whatever the desktop's, for it ends on paper.
class Chart : public QwtPlot
{
    Q_OBJECT

public:
    explicit Chart(QWidget* parent = nullptr);

    /// Range, limits and a cursor that still has a place stay.
    void setPlot(const Plot& plot);
    const Plot& plot() const { return m_plot; }

    /// What is shown; everything, without a range.
    void setRange(const std::optional<QRectF>& range);
    QRectF range() const;
    const QRectF& wholeRange() const { return m_wholeRange; }
    bool isZoomed() const { return m_range.has_value(); }

    void setLimits(const std::optional<Limits>& limits);
    const LimitLines& limits() const { return m_limits; }

    /// A place that there is not is none.
    void setCursor(std::optional<Place> place);
    const std::optional<Place>& cursor() const { return m_cursor; }
    /// The cursor's values in words; empty without one.
    QString cursorText() const;

    /// How many points or bars a series has; 0 for one that there is not.
    int countOf(int series) const;
    int seriesCount() const { return int(m_plot.curves.size() + m_plot.bars.size()); }
    /// Where a place lies in the axes' values: a bar is at the middle of its top.
    QPointF valueAt(const Place& place) const;
    /// The nearest point of the nearest curve to a place on the canvas, or else the bar above or
    /// below it.
    std::optional<Place> nearest(const QPoint& onCanvas) const;

    /// In pixels of the canvas.
    QPointF toCanvas(const QPointF& value) const;
    QPointF toValue(const QPointF& onCanvas) const;

private:
    void takeSeries();
    void takeCurve(std::size_t number);
    void takeBars(std::size_t number);
    void takeAxes();
    void takeLegend();
    void applyRange();
    void showCursor();
    bool isDrawn(const QPointF& point) const;

    Plot m_plot;
    std::optional<QRectF> m_range;
    QRectF m_wholeRange;
    std::optional<Place> m_cursor;

    QwtPlotGrid m_grid;
    LimitLines m_limits;
    QwtPlotMarker m_cursorMark;
    std::vector<std::unique_ptr<QwtPlotCurve>> m_curves;
    std::vector<std::vector<int>> m_drawn; ///< of each curve, the points that are drawn
    std::vector<std::unique_ptr<QwtPlotHistogram>> m_bars;
};

} // namespace plots
