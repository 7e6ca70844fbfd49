// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QWidget>

namespace testing {

/// Counts paints while it lives.
class PaintCounter : public QObject
{
public:
    enum class Of
    {
        Widget,
        WidgetAndParts
    };

    explicit PaintCounter(QWidget& widget, Of of = Of::Widget) : m_widget(&widget), m_of(of)
    {
        qApp->installEventFilter(this);
    }

    int count = 0;

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const auto* widget = qobject_cast<QWidget*>(watched);
        if (event->type() == QEvent::Paint && widget &&
            (widget == m_widget || (m_of == Of::WidgetAndParts && m_widget->isAncestorOf(widget))))
            ++count;
        return false;
    }

private:
    const QWidget* m_widget;
    Of m_of;
};

/// Handles events until a round of them paints nothing more; false when that does not come.
inline bool comeToRest(const PaintCounter& paints)
{
    for (int round = 0; round < 50; ++round) {
        const int before = paints.count;
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents();
        if (round > 2 && paints.count == before)
            return true;
    }
    return false;
}

} // namespace testing
