// SPDX-License-Identifier: MIT
#pragma once

#include "tests/analysis/windows/tool_keys_test.h"

#include <QWheelEvent>

namespace testing {

/// A reading of its own for every pixel of a neighbourhood.
inline Shot slope()
{
    Shot shot;
    shot.gray = [](int x, int y) {
        return (7 * x + 13 * y) % 256;
    };
    shot.minimum10 = -300;
    return shot;
}

/// Somebody looks at the pixels of a photograph, with windows beside its picture.
class LookingTest : public ToolKeysTest
{
    Q_OBJECT

protected:
    void beginOn(const Shot& shot)
    {
        begin();
        QVERIFY(load(shot));
        QCoreApplication::processEvents();
    }
    /// In the window of the picture.
    void press(Qt::Key pressed, Qt::KeyboardModifiers modifiers = {}) const
    {
        QApplication::setActiveWindow(window.get());
        key(pressed, modifiers);
    }
    /// The mouse moves to a pixel of the picture.
    void point(int x, int y)
    {
        QMouseEvent move(QEvent::MouseMove, at(x, y), Qt::NoButton, Qt::NoButton, {});
        QCoreApplication::sendEvent(&label(), &move);
    }
    /// The wheel turns over the middle of a widget; 120 is a step.
    static void wheel(QWidget& widget, int angle, Qt::KeyboardModifiers modifiers = {})
    {
        wheelAt(widget, widget.rect().center(), angle, modifiers);
    }
    static void wheelAt(QWidget& widget, const QPoint& place, int angle,
                        Qt::KeyboardModifiers modifiers = {})
    {
        QWheelEvent turn(place, widget.mapToGlobal(place), {}, {0, angle}, Qt::NoButton, modifiers,
                         Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&widget, &turn);
    }
    /// What the window says when the mouse is there.
    QString reading(int x, int y)
    {
        window->updat_XY_Temp(x, y);
        return readOut().section(QLatin1Char('|'), -1);
    }
    /// Where two pictures are not the same.
    static QRect difference(const QImage& one, const QImage& other)
    {
        QRect changed;
        for (int y = 0; y < one.height(); ++y) {
            for (int x = 0; x < one.width(); ++x) {
                if (one.pixel(x, y) != other.pixel(x, y))
                    changed |= QRect(x, y, 1, 1);
            }
        }
        return changed;
    }
};

} // namespace testing
