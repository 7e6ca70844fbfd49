// SPDX-License-Identifier: MIT
#pragma once

#include "overlay/colour_bar_scale.h"

#include <QPixmap>
#include <QPoint>
#include <QWidget>

#include <array>
#include <memory>

namespace Ui {
class My_ColorSlider;
}

/// The colour bar of the analysis window: the palette as a strip, hottest at the top, eleven
/// temperatures beside it, and two markers on its right edge that choose a span of the palette.
///
/// It has no signals. The host reads `startValue` and `endValue` whenever it renders, and it is
/// asked to render because the bar is not opaque: its own repaint brings the host's paintEvent with
/// it. For the same reason nothing here is set again to what it shows already.
class My_ColorSlider : public QWidget
{
    Q_OBJECT

public:
    explicit My_ColorSlider(QWidget* parent = nullptr);
    ~My_ColorSlider() override;

    /// Shows the palette strip, of any size, hottest at the top. The same picture again costs only
    /// the comparison.
    void setPalettePixmap(const QPixmap& pixmap);

    /// Writes the eleven temperatures from `topTemperature` and `bottomTemperature`.
    void updateScale();

    /// Red, green, blue by palette step; the markers take their colour from it.
    std::array<std::array<unsigned char, 3>, overlay::paletteSteps> paletteTable{};
    bool dragging = false; ///< markers stay where the mouse put them, not where their values are
    float topTemperature = 0.0F; ///< in the unit shown
    float bottomTemperature = 0.0F;
    int dragMarker = -1; ///< −1 none, 1 start, 2 end; kept until the next press
    /// The span, in palette steps from the top. While the mouse is down, values outside 0 … 255 can
    /// occur after the bar has changed its height; clamp before indexing (overlay::paletteStep).
    int startValue = 0;
    int endValue = overlay::paletteSteps - 1;
    QPoint startMarker{-1, -1}; ///< the markers' tips; −1 until the first paint
    QPoint endMarker{-1, -1};
    QPoint pressPos{-1, -1};
    QPoint mousePos{-1, -1};
    QPixmap paletteStrip; ///< as handed in last

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void showStrip();
    void placeMarkers();

    const std::unique_ptr<Ui::My_ColorSlider> ui;
    QImage m_shownStrip; ///< what the strip label shows, before scaling …
    QSize m_shownSize;   ///< … and the size it was scaled into
};
