#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QWidget>

namespace testing {

/// Counts how often a widget is painted.
class PaintCounter : public QObject
{
public:
    explicit PaintCounter(QWidget& widget) { widget.installEventFilter(this); }

    int count = 0;

    bool eventFilter(QObject*, QEvent* event) override
    {
        count += event->type() == QEvent::Paint;
        return false;
    }
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
