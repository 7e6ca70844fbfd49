// SPDX-License-Identifier: MIT
#pragma once

#include "overlay/my_label.h"
#include "tests/overlay/mouse.h"

#include <QSignalSpy>

namespace testing {

/// A shown label with a gray picture of the given size, painted once.
class ShownLabel : public MyLabel
{
public:
    explicit ShownLabel(const QSize& label = {520, 640}, const QSize& picture = {480, 640})
    {
        resize(label);
        if (!picture.isEmpty()) {
            QPixmap pixmap(picture);
            pixmap.fill(Qt::gray);
            setPixmap(pixmap);
        }
        showAndPaint(*this);
    }
};

/// Where an image position lies on the label of 520 × 640 with a picture of 480 × 640: two pixels
/// each, and 20 pixels of margin on the left.
inline QPoint onLabel(int x, int y)
{
    return {20 + 2 * x, 2 * y};
}

/// Presses, drags and releases with a tool of the mode prepared.
inline void draw(MyLabel& label, int mode, const QPoint& from, const QPoint& to)
{
    label.setToolMode(mode);
    Mouse(label).drag(from, to);
}

/// The names of a label's points.
inline QStringList namesOf(const QVector<overlay::PointTool>& points)
{
    QStringList names;
    for (const overlay::PointTool& point : points)
        names.append(point.name);
    return names;
}

/// The first argument of each emission.
inline QList<int> integers(const QSignalSpy& spy)
{
    QList<int> values;
    for (const QList<QVariant>& arguments : spy)
        values.append(arguments.at(0).toInt());
    return values;
}

} // namespace testing
