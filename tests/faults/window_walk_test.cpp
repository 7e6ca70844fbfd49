// SPDX-License-Identifier: MIT
// A user without a plan: clicks, keys, right clicks and the window manager's close button, wherever
// they are possible, on the pages, their dialogs, the menus of those dialogs, while devices come
// and go at any moment. One thing after the other, also inside the event loops of dialogs and
// menus. Nothing may crash, hang or be left over.
#include "analysis/windows/photo_window.h"
#include "app/main_window.h"
#include "app/seting.h"
#include "config/configuration_record.h"
#include "live/camer_window.h"
#include "simulator/simulated_imager.h"
#include "tests/faults/endurance.h"

#include <QAbstractButton>
#include <QClipboard>
#include <QCloseEvent>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QTabWidget>
#include <QTableWidget>
#include <QToolTip>

#include <random>

namespace {

/// Deeper, and whatever is on top is closed: dialogs can be answered in their order alone.
constexpr int deepest = 6;

/// Windows of their own included, which menus are.
bool belongsTo(const QWidget* widget, const QWidget* owner)
{
    while (widget && widget != owner)
        widget = widget->parentWidget();
    return widget;
}

} // namespace

class WindowWalkTest : public QObject
{
    Q_OBJECT

public slots:
    /// Where reports would be opened.
    void opened(const QUrl&) {}

private slots:
    void wherePossible()
    {
        config::create(QStringLiteral("CH"));
        QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "opened");
        simulator::SimulatedImager imager;
        imager.setFrameRate(0);
        imager.setDiskPlugged(true);
        imager.takePhotograph();
        imager.takePhotograph();
        m_imager = &imager;
        m_random.seed(testing::scale().seed);
        MainWindow window;
        window.show();
        m_window = &window;
        // Made once, by whichever menu or drag needs it first.
        QApplication::clipboard();
        QApplication::desktop();

        // What Qt and the fonts make once and keep.
        walk(usual);
        const testing::Holdings before = testing::holdings();
        const int times = testing::scale().times;
        walk(times);
        QTRY_COMPARE(testing::leftOver(before, testing::holdings()), QString());
        QStringList counts;
        for (auto count = m_counts.begin(); count != m_counts.end(); ++count)
            counts.append(QStringLiteral("%1 %2").arg(count.key()).arg(count.value()));
        qInfo("%d steps, seed %u, at most %d inside each other", times, testing::scale().seed,
              m_deepest);
        qInfo("%s", qPrintable(counts.join(QStringLiteral(", "))));
        qInfo("before: %s", qPrintable(before.text()));
        qInfo("after:  %s", qPrintable(testing::holdings().text()));
        QVERIFY(m_deepest > 2);
        QVERIFY(m_counts.value(QStringLiteral("menus of dialogs")) > 0);
        QVERIFY(m_counts.value(QStringLiteral("devices below dialogs and menus")) > 0);
        QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
    }

private:
    static constexpr int usual = 3000; ///< steps after which every kind of thing has been made

    int upTo(int count) { return int(m_random() % unsigned(count)); }

    void walk(int steps)
    {
        m_left = steps;
        next();
        // Whatever blocks, blocks inside a step, and the next one comes from its event loop.
        while (m_left > 0 || m_depth > 0)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        comeToRest();
    }

    void next() { QTimer::singleShot(0, this, &WindowWalkTest::step); }

    void step()
    {
        if (m_left <= 0 || QTest::currentTestFailed()) {
            m_left = 0;
            if (m_depth > 0) {
                closeTopmost();
                next();
            }
            return;
        }
        if (--m_left % 10'000 == 0)
            qInfo("%d to go: %s", m_left, qPrintable(testing::holdings().text()));
        next();
        ++m_depth;
        m_deepest = std::max(m_deepest, m_depth);
        if (m_depth > deepest)
            closeTopmost();
        else
            act();
        --m_depth;
        if (m_depth == 0 && m_left % 500 == 0)
            tidyUp();
        QCOMPARE(m_window->liveWindow() != nullptr, m_window->mode() == 1);
        QCOMPARE(m_window->browser() != nullptr, m_window->mode() == 2);
    }

    /// Everything out and closed; what is on its way out goes.
    void comeToRest()
    {
        plug(false, false);
        QTRY_VERIFY([this] {
            if (reachable() != m_window)
                closeTopmost();
            return reachable() == m_window && !m_window->findChild<QDialog*>();
        }());
        menuEntry(1);
        menuEntry(0);
        m_window->timeout_connect();
        for (int i = 0; i < 2; ++i) { // the last two settings dialogs are kept
            menuEntry(2);
            m_window->settingsDialog()->close();
        }
        QCOMPARE(m_window->mode(), -1);
        QToolTip::hideText(); // would go by itself, ten seconds later
        tidyUp();
    }

    /// The files that were written make lists longer, not the program worse.
    static void tidyUp()
    {
        QDir documents(config::documentsPath());
        for (const QFileInfo& file : documents.entryInfoList(QDir::Files | QDir::NoDotAndDotDot))
            QFile::remove(file.filePath());
        QDir records(config::folderPath());
        for (const QString& record : records.entryList({QStringLiteral("2*")}, QDir::Dirs))
            QDir(records.filePath(record)).removeRecursively();
    }

    void act()
    {
        struct Kind
        {
            const char* name;
            int weight;
            void (WindowWalkTest::*act)();
        };
        static const Kind kinds[] = {
            {"devices", 14, &WindowWalkTest::swapDevices},
            {"looks", 8, &WindowWalkTest::look},
            {"frames", 10, &WindowWalkTest::sendFrames},
            {"clicks", 30, &WindowWalkTest::clickSomething},
            {"keys", 12, &WindowWalkTest::pressSomething},
            {"menus", 20, &WindowWalkTest::rightClickSomething},
            {"entries", 14, &WindowWalkTest::triggerSomething},
            {"lists", 14, &WindowWalkTest::chooseSomething},
            {"strokes", 6, &WindowWalkTest::draw},
            {"main menu", 3, &WindowWalkTest::useMainMenu},
            {"full screen", 2, &WindowWalkTest::toggleFullScreen},
            {"closings", 4, &WindowWalkTest::closeTopmost},
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

    // --- devices -----------------------------------------------------------------------------

    void plug(bool camera, bool disk)
    {
        m_imager->setCameraPlugged(camera);
        m_imager->setDiskPlugged(disk);
    }

    void swapDevices()
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
            m_imager->reportCameraError();
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

    void look() { m_window->timeout_connect(); }

    void sendFrames()
    {
        if (upTo(4) == 0) {
            upTo(2) == 0 ? m_imager->heatPastThreshold() : m_imager->coolBelowThreshold();
            m_imager->settle();
        }
        for (int i = upTo(10); i >= 0; --i)
            m_imager->sendFrame();
    }

    // --- what can be reached ---------------------------------------------------------------------

    /// The window that a user can reach now.
    QWidget* reachable()
    {
        if (QWidget* popup = QApplication::activePopupWidget())
            return popup;
        if (QWidget* modal = QApplication::activeModalWidget())
            return modal;
        camer_window* page = m_window->liveWindow();
        return page && page->isFull ? static_cast<QWidget*>(page) : m_window;
    }

    template<typename T>
    T* someOf(const QList<T*>& all)
    {
        QList<T*> there;
        for (T* widget : all) {
            if (widget->isVisible() && widget->isEnabled())
                there.append(widget);
        }
        return there.isEmpty() ? nullptr : there.at(upTo(there.size()));
    }

    /// In Qt's own dialogs only what answers them: a file dialog can walk through the whole disk,
    /// and a colour dialog grabs the mouse to pick from the screen.
    static bool isAllowed(const QAbstractButton* button)
    {
        const bool isQtsOwn = qobject_cast<const QDialog*>(button->window());
        return !isQtsOwn || qobject_cast<const QDialogButtonBox*>(button->parentWidget());
    }

    void clickSomething()
    {
        QList<QAbstractButton*> buttons;
        for (auto* button : reachable()->findChildren<QAbstractButton*>()) {
            if (isAllowed(button))
                buttons.append(button);
        }
        if (QAbstractButton* button = someOf(buttons))
            QTest::mouseClick(button, Qt::LeftButton);
    }

    void pressSomething()
    {
        static const Qt::Key keys[] = {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Tab, Qt::Key_Up,
                                       Qt::Key_Down};
        QWidget* window = reachable();
        // In a file dialog the others move through the folders, in the main menu to its end: Close.
        int known = 5;
        if (qobject_cast<QFileDialog*>(window))
            known = 2;
        if (belongsTo(window, m_window->menuBar()))
            known = 1;
        QWidget* focused = window->focusWidget() ? window->focusWidget() : window;
        QTest::keyClick(focused, keys[upTo(known)]);
    }

    void rightClickSomething()
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

    /// An entry of the open menu, but none that deletes or renames what lies on the disk.
    void triggerSomething()
    {
        const auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (!menu || belongsTo(menu, m_window->menuBar()))
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

    /// An entry of a list, a table or a selector of the program's own windows.
    void chooseSomething()
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

    void clickRow(QAbstractItemView* view, int rows)
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

    /// A stroke over the photograph, with whatever tool is chosen.
    void draw()
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

    void menuEntry(int entry)
    {
        QAction* action = m_window->menuBar()->actions().at(0)->menu()->actions().at(entry);
        if (action->isEnabled())
            action->trigger();
    }

    /// Connect, disconnect, settings; or the menu just opens. Not while a dialog blocks it.
    void useMainMenu()
    {
        if (reachable() != m_window)
            return;
        if (upTo(3) == 0)
            m_window->menuBar()->actions().at(0)->menu()->popup(QPoint(5, 5));
        else
            menuEntry(upTo(3));
    }

    void toggleFullScreen()
    {
        camer_window* page = m_window->liveWindow();
        if (page && !QApplication::activeModalWidget())
            page->toggleFullScreen(page->isFull);
    }

    /// The window manager's close button; a menu closes when something else is clicked.
    void closeTopmost()
    {
        QWidget* window = reachable();
        // A dialog can be closed below its menu: by the keyboard, or by another program.
        if (upTo(4) == 0 && QApplication::activeModalWidget())
            window = QApplication::activeModalWidget();
        if (window == m_window)
            return;
        if (qobject_cast<QMenu*>(window) || !window->windowHandle()) {
            window->close();
            return;
        }
        QCloseEvent request;
        QCoreApplication::sendEvent(window->windowHandle(), &request);
    }

    simulator::SimulatedImager* m_imager = nullptr;
    MainWindow* m_window = nullptr;
    std::mt19937 m_random;
    QMap<QString, int> m_counts;
    int m_left = 0;  ///< steps to go
    int m_depth = 0; ///< steps inside each other
    int m_deepest = 0;
};

int main(int argc, char** argv)
{
    return testing::runScaled<WindowWalkTest>(argc, argv, 4000);
}

#include "window_walk_test.moc"
