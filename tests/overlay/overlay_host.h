// SPDX-License-Identifier: MIT
#pragma once

#include "overlay/my_color_slider.h"
#include "overlay/my_label.h"

#include <QImage>
#include <QStringList>
#include <QWidget>

#include <array>

namespace testing {

/// A made-up thermal picture, 240 × 320, one gray value a pixel: a warm body with two hot spots and
/// a cold corner. The same on every machine.
QImage grayPicture();

/// Black over purple, red and yellow to white; entry 255 is the hottest.
std::array<QRgb, 256> ironPalette();

/// Holds the label and the bar as the analysis window does: renders the picture between the bar's
/// markers in every paint, setting the label's pixmap twice and handing the bar a newly made strip,
/// and prepares the next tool while the label reports a release.
class OverlayHost : public QWidget
{
    Q_OBJECT

public:
    explicit OverlayHost(QWidget* parent = nullptr);

    /// Pixels a logical pixel of the pixmaps set on the label; 0 for the screen's own.
    qreal pixmapRatio = 1.0;
    bool rearms = true; ///< prepare the next tool on Focus_idev
    int paints = 0;     ///< how often this window was painted
    QStringList heard;  ///< "XY 1 2", "tool", "focus 3", "select 0", in the order they came

    MyLabel* const label;
    My_ColorSlider* const bar;

public slots:
    void updat_XY_Temp(int x, int y);
    void updat_Tool_Temp();
    void setFocus(int number);
    void Set_Select(int row);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QPixmap pictureForLabel(const QImage& picture) const;
    void render();

    const QImage m_gray;
    const std::array<QRgb, 256> m_palette;
};

} // namespace testing
