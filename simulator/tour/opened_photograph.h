// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/windows/analysis_widget.h"
#include "analysis/windows/photo_window.h"
#include "overlay/my_label.h"
#include "simulator/tour/walk.h"

#include <QMenu>

namespace tour {

photo_window& browser(Walk& walk);

/// The window of the photograph that is open.
Analysis_Widget& analysisOf(Walk& walk);
/// The picture in it.
MyLabel& pictureOf(Walk& walk);

/// Opens a context menu by a click of the right button on the middle of the widget's upper left
/// quarter.
QMenu& openMenuOf(Walk& walk, QWidget& widget);
/// Clicks on the entry with this text.
void chooseFrom(Walk& walk, QMenu& menu, const QString& text);

/// A dialog that nobody waits for, as soon as it has the keys.
template<typename Dialog>
Dialog& shownDialog(Walk& walk)
{
    const auto find = [&] {
        return walk.window().findChild<Dialog*>();
    };
    walk.await("a dialog opens", [&] { return find() && find()->isActiveWindow(); });
    return *find();
}

/// Answers the file dialog that is open, or opens.
void nameAFile(Walk& walk, const QString& path);

} // namespace tour
