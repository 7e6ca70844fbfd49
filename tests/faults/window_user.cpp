// SPDX-License-Identifier: MIT
#include "tests/faults/window_user.h"

#include "live/camer_window.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QCloseEvent>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QTabWidget>
#include <QTableWidget>
#include <QtTest>

namespace testing {
namespace {

/// Windows of their own included, which menus are.
bool belongsTo(const QWidget* widget, const QWidget* owner)
{
    while (widget && widget != owner)
        widget = widget->parentWidget();
    return widget;
}

/// In Qt's own dialogs only what answers them: a file dialog can walk through the whole disk,
/// and a colour dialog grabs the mouse to pick from the screen.
bool isAllowed(const QAbstractButton* button)
{
    const bool isQtsOwn = qobject_cast<const QDialog*>(button->window());
    return !isQtsOwn || qobject_cast<const QDialogButtonBox*>(button->parentWidget());
}

} // namespace

template<typename T>
T* WindowUser::someOf(const QList<T*>& all)
{
    QList<T*> there;
    for (T* widget : all) {
        if (widget->isVisible() && widget->isEnabled())
            there.append(widget);
    }
    return there.isEmpty() ? nullptr : there.at(upTo(there.size()));
}

void WindowUser::act(int depth)
{
    m_depth = depth;
    struct Kind
    {
        const char* name;
        int weight;
        void (WindowUser::*act)();
    };
    static const Kind kinds[] = {
        {"devices", 14, &WindowUser::swapDevices},
        {"looks", 8, &WindowUser::look},
        {"frames", 10, &WindowUser::sendFrames},
        {"clicks", 30, &WindowUser::clickSomething},
        {"keys", 12, &WindowUser::pressSomething},
        {"menus", 20, &WindowUser::rightClickSomething},
        {"entries", 14, &WindowUser::triggerSomething},
        {"lists", 14, &WindowUser::chooseSomething},
        {"strokes", 6, &WindowUser::draw},
        {"main menu", 3, &WindowUser::useMainMenu},
        {"full screen", 2, &WindowUser::toggleFullScreen},
        {"closings", 4, &WindowUser::closeTopmost},
    };
    int all = 0;
    for (const Kind& kind : kinds)
        all += kind.weight;
    int drawn = upTo(all);
    for (const Kind& kind : kinds) {
        drawn -= kind.weight;
        if (drawn < 0) {
            ++m_counts[QString::fromLatin1(kind.name)];
            (this->*kind.act)();
            return;
        }
    }
}

void WindowUser::plug(bool camera, bool disk)
{
    m_imager.setCameraPlugged(camera);
    m_imager.setDiskPlugged(disk);
}

void WindowUser::swapDevices()
{
    if (m_depth > 1)
        ++m_counts[QStringLiteral("devices below dialogs and menus")];
    switch (upTo(8)) {
    case 0:
        plug(false, false);
        break;
    case 1:
        plug(true, true);
        break;
    case 2:
        m_imager.reportCameraError();
        break;
    default:
        if (upTo(2) == 0)
            plug(true, false);
        else
            plug(false, true);
    }
    if (upTo(4) != 0)
        look();
}

void WindowUser::look()
{
    m_window.timeout_connect();
}

void WindowUser::sendFrames()
{
    if (upTo(4) == 0) {
        upTo(2) == 0 ? m_imager.heatPastThreshold() : m_imager.coolBelowThreshold();
        m_imager.settle();
    }
    for (int i = upTo(10); i >= 0; --i)
        m_imager.sendFrame();
}

QWidget* WindowUser::reachable() const
{
    if (QWidget* popup = QApplication::activePopupWidget())
        return popup;
    if (QWidget* modal = QApplication::activeModalWidget())
        return modal;
    camer_window* page = m_window.liveWindow();
    return page && page->isFull ? static_cast<QWidget*>(page) : &m_window;
}

void WindowUser::clickSomething()
{
    QList<QAbstractButton*> buttons;
    for (auto* button : reachable()->findChildren<QAbstractButton*>()) {
        if (isAllowed(button))
            buttons.append(button);
    }
    if (QAbstractButton* button = someOf(buttons))
        QTest::mouseClick(button, Qt::LeftButton);
}

void WindowUser::pressSomething()
{
    static const Qt::Key keys[] = {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Tab, Qt::Key_Up,
                                   Qt::Key_Down};
    QWidget* window = reachable();
    // In a file dialog the others move through the folders, in the main menu to its end: Close.
    int known = 5;
    if (qobject_cast<QFileDialog*>(window))
        known = 2;
    if (belongsTo(window, m_window.menuBar()))
        known = 1;
    QWidget* focused = window->focusWidget() ? window->focusWidget() : window;
    QTest::keyClick(focused, keys[upTo(known)]);
}

void WindowUser::rightClickSomething()
{
    QWidget* window = reachable();
    QList<QWidget*> widgets = window->findChildren<QWidget*>();
    // Half of the time where there is a menu of its own.
    QList<QWidget*> withMenu;
    for (QWidget* candidate : widgets) {
        if (candidate->contextMenuPolicy() == Qt::CustomContextMenu)
            withMenu.append(candidate);
    }
    if (!withMenu.isEmpty() && upTo(2) == 0)
        widgets = withMenu;
    QWidget* widget = someOf(widgets);
    if (!widget)
        return;
    if (qobject_cast<QDialog*>(window))
        ++m_counts[QStringLiteral("menus of dialogs")];
    const QPoint place(upTo(std::max(widget->width(), 1)), upTo(std::max(widget->height(), 1)));
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, widget->mapToGlobal(place));
    QApplication::sendEvent(widget, &event);
}

void WindowUser::triggerSomething()
{
    const auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (!menu || belongsTo(menu, m_window.menuBar()))
        return;
    QList<QAction*> actions;
    for (QAction* action : menu->actions()) {
        const QString name = action->objectName();
        if (action->isEnabled() && !action->isSeparator() &&
            name != QLatin1String("qt_delete_action") &&
            name != QLatin1String("qt_rename_action") &&
            name != QLatin1String("qt_new_folder_action"))
            actions.append(action);
    }
    const QPointer<QWidget> open = QApplication::activePopupWidget();
    if (actions.isEmpty())
        return;
    // As a click does: the menu goes first.
    const QPointer<QAction> chosen = actions.at(upTo(actions.size()));
    QTimer::singleShot(0, open, [open] { open->close(); });
    chosen->trigger();
}

void WindowUser::chooseSomething()
{
    QWidget* window = reachable();
    if (qobject_cast<QDialog*>(window))
        return;
    switch (upTo(4)) {
    case 0:
        if (auto* list = someOf(window->findChildren<QListWidget*>()))
            clickRow(list, list->count());
        break;
    case 1:
        if (auto* table = someOf(window->findChildren<QTableWidget*>()))
            clickRow(table, table->rowCount());
        break;
    case 2:
        if (auto* box = someOf(window->findChildren<QComboBox*>()))
            QTest::keyClick(box, upTo(2) == 0 ? Qt::Key_Up : Qt::Key_Down);
        break;
    default:
        if (auto* tabs = someOf(window->findChildren<QTabWidget*>()))
            tabs->setCurrentIndex(upTo(2));
    }
}

void WindowUser::clickRow(QAbstractItemView* view, int rows)
{
    if (rows == 0)
        return;
    const QModelIndex index = view->model()->index(upTo(rows), 0);
    const QPoint place = view->visualRect(index).center();
    if (!view->viewport()->rect().contains(place))
        return;
    const QPointer<QWidget> viewport = view->viewport();
    QTest::mouseClick(viewport, Qt::LeftButton, {}, place);
    if (viewport && upTo(2) == 0)
        QTest::mouseDClick(viewport, Qt::LeftButton, {}, place);
}

void WindowUser::draw()
{
    QWidget* label = nullptr;
    for (auto* candidate : reachable()->findChildren<QWidget*>()) {
        if (candidate->inherits("MyLabel") && candidate->isVisible())
            label = candidate;
    }
    if (!label)
        return;
    const auto place = [&] {
        return QPoint(upTo(label->width()), upTo(label->height()));
    };
    QTest::mousePress(label, Qt::LeftButton, {}, place());
    const QPoint end = place();
    QMouseEvent move(QEvent::MouseMove, end, Qt::NoButton, Qt::LeftButton, {});
    QApplication::sendEvent(label, &move);
    QTest::mouseRelease(label, Qt::LeftButton, {}, end);
}

void WindowUser::menuEntry(int entry)
{
    QAction* action = m_window.menuBar()->actions().at(0)->menu()->actions().at(entry);
    if (action->isEnabled())
        action->trigger();
}

void WindowUser::useMainMenu()
{
    if (reachable() != &m_window)
        return;
    if (upTo(3) == 0)
        m_window.menuBar()->actions().at(0)->menu()->popup(QPoint(5, 5));
    else
        menuEntry(upTo(3));
}

void WindowUser::toggleFullScreen()
{
    camer_window* page = m_window.liveWindow();
    if (page && !QApplication::activeModalWidget())
        page->toggleFullScreen(page->isFull);
}

void WindowUser::closeTopmost()
{
    QWidget* window = reachable();
    // A dialog can be closed below its menu: by the keyboard, or by another program.
    if (upTo(4) == 0 && QApplication::activeModalWidget())
        window = QApplication::activeModalWidget();
    if (window == &m_window)
        return;
    if (qobject_cast<QMenu*>(window) || !window->windowHandle()) {
        window->close();
        return;
    }
    QCloseEvent request;
    QCoreApplication::sendEvent(window->windowHandle(), &request);
}

} // namespace testing
