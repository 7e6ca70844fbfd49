// SPDX-License-Identifier: MIT
#include "simulator/tour/opened_photograph.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QFileDialog>
#include <QLineEdit>
#include <QTest>

#include <stdexcept>

namespace tour {

photo_window& browser(Walk& walk)
{
    return *walk.window().browser();
}

Analysis_Widget& analysisOf(Walk& walk)
{
    return *browser(walk).findChild<Analysis_Widget*>();
}

MyLabel& pictureOf(Walk& walk)
{
    return find<MyLabel>(analysisOf(walk), "label");
}

QMenu& openMenuOf(Walk& walk, QWidget& widget)
{
    const QPoint place(widget.width() / 4, widget.height() / 8);
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, widget.mapToGlobal(place));
    QCoreApplication::sendEvent(&widget, &event);
    const auto menu = [] {
        return qobject_cast<QMenu*>(QApplication::activePopupWidget());
    };
    walk.await("a context menu opens", [&] { return menu() && menu()->isVisible(); });
    return *menu();
}

void chooseFrom(Walk& walk, QMenu& menu, const QString& text)
{
    for (QAction* action : menu.actions()) {
        if (action->text() == text) {
            walk.click(menu, menu.actionGeometry(action));
            return;
        }
    }
    throw std::runtime_error(qPrintable(text));
}

void nameAFile(Walk& walk, const QString& path)
{
    auto& name = find<QLineEdit>(shownDialog<QFileDialog>(walk), "fileNameEdit");
    name.setText(path);
    QTest::keyClick(&name, Qt::Key_Return);
    walk.await("the dialog is gone", [&] { return !walk.window().findChild<QFileDialog*>(); });
}

} // namespace tour
