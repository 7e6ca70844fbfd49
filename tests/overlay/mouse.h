// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QMouseEvent>
#include <QtTest>

namespace testing {

/// A mouse on a shown widget, in the widget's coordinates. Events go the whole way through the
/// window, so that grabbing, propagation and held buttons are those of the real thing.
class Mouse
{
public:
    explicit Mouse(QWidget& widget) : m_widget(widget) {}

    void press(const QPoint& at, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mousePress(window(), button, Qt::NoModifier, inWindow(at));
    }
    void move(const QPoint& to) { QTest::mouseMove(window(), inWindow(to)); }
    void release(const QPoint& at, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseRelease(window(), button, Qt::NoModifier, inWindow(at));
    }
    void click(const QPoint& at)
    {
        press(at);
        release(at);
    }
    void drag(const QPoint& from, const QPoint& to)
    {
        press(from);
        move(to);
        release(to);
    }

private:
    QWindow* window() const { return m_widget.window()->windowHandle(); }
    QPoint inWindow(const QPoint& position) const
    {
        return m_widget.mapTo(m_widget.window(), position);
    }

    QWidget& m_widget;
};

/// One event straight to the widget, at a position that need not be whole.
inline void sendMouse(QWidget& widget, QEvent::Type type, const QPointF& position,
                      Qt::MouseButton button, Qt::MouseButtons buttons)
{
    QMouseEvent event(type, position, widget.mapToGlobal(position.toPoint()), button, buttons,
                      Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
}

/// Shows a widget and has it painted.
inline void showAndPaint(QWidget& widget)
{
    widget.show();
    QVERIFY(QTest::qWaitForWindowExposed(&widget));
    QApplication::processEvents();
}

} // namespace testing
