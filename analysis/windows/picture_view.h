// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/photograph/picture_zoom.h"
#include "analysis/windows/wheel_steps.h"
#include "overlay/spots.h"
#include "overlay/tools.h"

#include <QAbstractScrollArea>
#include <QImage>

namespace analysis {

/// A picture with its tools at any size, to look at: Ctrl with the wheel zooms at the mouse, scroll
/// bars, wheel and arrow keys move it, and so does a drag with the left or the middle button. Only
/// what is seen is made, so the largest size costs no more than any other. GUI thread only.
class PictureView : public QAbstractScrollArea
{
    Q_OBJECT

public:
    struct Content
    {
        QImage colours; ///< 240 × 320
        overlay::Tools tools;
        overlay::Spots spots;
    };

    explicit PictureView(QWidget* parent = nullptr);

    /// Paints only when something is other than before.
    void show(const Content& content);

    const PictureZoom& zoom() const { return m_zoom; }
    void fit();
    /// At the middle of what is seen, or with the pixel moved there.
    void zoomBy(int steps);
    void zoomBy(int steps, const QPoint& pixel);

    /// The part of the picture that is seen, with its tools, in the screen's pixels.
    QImage seen() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    /// The pixel under the mouse, as often as the mouse or the picture moves; none beside it.
    void pointed(const std::optional<QPoint>& pixel);
    void zoomed();

protected:
    bool viewportEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    /// Scroll bars and screen follow the zoom.
    void follow();
    void tellPixel();
    void showHand();

    Content m_content;
    PictureZoom m_zoom;
    WheelSteps m_wheel;
    std::optional<QPoint> m_mouse; ///< on the viewport
    bool m_isDragged = false;
    bool m_isFollowing = false; ///< the bars are being set, not moved
};

} // namespace analysis
