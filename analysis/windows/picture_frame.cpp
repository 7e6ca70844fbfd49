// SPDX-License-Identifier: MIT
#include "analysis/windows/picture_frame.h"

#include "analysis/photograph/layouts.h"

#include <algorithm>

using namespace analysis::format;

PictureFrame::PictureFrame(QWidget* parent) : QWidget(parent)
{
    setAutoFillBackground(true);
    QPalette white = palette();
    white.setColor(QPalette::Window, Qt::white);
    setPalette(white);
}

QSize PictureFrame::sizeHint() const
{
    return {2 * columns, 2 * rows - 80};
}

QSize PictureFrame::minimumSizeHint() const
{
    return {columns, rows - 40};
}

void PictureFrame::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    // The largest height that three quarters of stay below the width.
    const int largest = (rows * width() - 1) / columns;
    const int used = std::clamp(largest, 0, height());
    for (QWidget* child : findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
        child->setGeometry(0, (height() - used) / 2, width(), used);
}
