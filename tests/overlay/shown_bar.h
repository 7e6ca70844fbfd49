// SPDX-License-Identifier: MIT
#pragma once

#include "overlay/my_color_slider.h"
#include "tests/overlay/mouse.h"
#include "tests/support/parts.h"

#include <QLabel>
#include <QPainter>

namespace testing {

/// A shown colour bar of 120 × 620: a travel of 600 pixels.
class ShownBar
{
public:
    ShownBar() : bar(*new My_ColorSlider(&m_window))
    {
        m_window.resize(200, 700);
        for (int step = 0; step < 256; ++step)
            bar.paletteTable[std::size_t(step)] = {uchar(255 - step), 40, uchar(step)};
        bar.resize(120, 620);
        showAndPaint(m_window);
    }

private:
    QWidget m_window;

public:
    My_ColorSlider& bar; ///< owned by the window
};

inline QLabel& stripOf(const My_ColorSlider& bar)
{
    return *part<QLabel>(&bar, "label");
}

/// 30 × 256: from white at the top to black, made anew at each call.
inline QPixmap grayStrip()
{
    QPixmap strip(30, 256);
    QPainter painter(&strip);
    for (int i = 0; i < 256; ++i) {
        painter.setPen(QColor(i, i, i));
        painter.drawLine(0, 255 - i, 30, 255 - i);
    }
    return strip;
}

/// A spot on a marker that a hand would take.
inline QPoint gripOf(const QPoint& marker)
{
    return marker + QPoint(8, 0);
}

} // namespace testing
