// SPDX-License-Identifier: MIT
#pragma once

#include "plots/plot.h"

#include <QRectF>
#include <QWidget>

#include <memory>
#include <optional>

namespace plots {

class Chart;

/// Shows a plot and lets mouse and keyboard work on it. GUI thread only; with nothing moving, it
/// paints nothing.
///
/// - Zoom: a rubber band, the wheel, + and −. Everything again: double click, Esc, Backspace. While
///   everything is shown, Esc is left to the window.
/// - Cursor: the nearest point of the nearest curve, or else the bar at the mouse; Left, Right,
///   Home and End walk along a curve, Up and Down go to another one.
/// - Limits, if it has some: dragged; Ctrl with Left and Right moves the lower one, Shift the
/// upper.
/// - Ctrl+C copies picture and table, Ctrl+S saves one of them; both are in the context menu, too.
class PlotView : public QWidget
{
    Q_OBJECT

public:
    explicit PlotView(QWidget* parent = nullptr);
    ~PlotView() override;

    /// The range that was zoomed to, the limits and the cursor stay; a cursor whose place is gone
    /// goes. Announces the cursor anew, for its values are other ones.
    void setPlot(const Plot& plot);
    const Plot& plot() const;
    /// What a new file is called, without its suffix.
    void setFileName(const QString& name) { m_fileName = name; }

    void setLimits(const std::optional<Limits>& limits);
    const std::optional<Limits>& limits() const;

    /// Announces it, if it is another one.
    void setCursor(const std::optional<Place>& place);
    const std::optional<Place>& cursor() const;

    /// What is shown, in the axes' values; the lowest ones are its top left corner.
    QRectF range() const;
    bool isZoomed() const;
    void zoomTo(const QRectF& range); ///< one without width or height is left out
    void showAll();

    /// Where a value of the axes is drawn, in this widget's pixels.
    QPoint pixelOf(const QPointF& value) const;

    /// Picture, and table as text, to the clipboard.
    void copy();
    /// Asks where, then writes PNG, PDF or CSV.
    void save();

    QSize sizeHint() const override { return {640, 400}; }

signals:
    /// The cursor stands on another place, or on other values; on none when it is gone.
    void pointed(const std::optional<plots::Place>& place);
    /// Mouse or keyboard moved a limit.
    void limitsMoved(const plots::Limits& limits);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void addCommands();
    void tellCursor();
    bool filterMouse(QEvent& event);
    bool beginLimit(const QPoint& onCanvas);
    void moveLimit(const QPoint& onCanvas);
    bool moveLimitByKey(const QKeyEvent& event);
    bool walk(int key);
    void setLimit(Limit which, double value);
    void zoomAround(const QPointF& onCanvas, double factor);

    Chart* const m_chart;
    QString m_fileName;
    std::optional<Limit> m_held; ///< while it is dragged
};

} // namespace plots
