// SPDX-License-Identifier: MIT
#pragma once

#include "app/main_window.h"
#include "simulator/simulated_imager.h"

#include <QList>
#include <QMap>

#include <random>

class QAbstractItemView;

namespace testing {

/// A user without a plan: clicks, keys, right clicks and the window manager's close button,
/// wherever they are possible, on the pages, their dialogs, the menus of those dialogs, while
/// devices come and go at any moment. The same seed does the same.
class WindowUser
{
public:
    /// Both outlive it.
    WindowUser(MainWindow& window, simulator::SimulatedImager& imager, unsigned seed)
        : m_window(window), m_imager(imager), m_random(seed)
    {
    }

    /// Does some one thing. `depth` is 1 outside the event loops of dialogs and menus, more inside.
    void act(int depth);
    /// What has been done how often.
    const QMap<QString, int>& counts() const { return m_counts; }

    void plug(bool camera, bool disk);
    /// The window that a user can reach now.
    QWidget* reachable() const;
    /// An entry of the main window's first menu, where it is enabled.
    void menuEntry(int entry);
    /// The window manager's close button; a menu closes when something else is clicked.
    void closeTopmost();

private:
    int upTo(int count) { return int(m_random() % unsigned(count)); }
    /// A visible and enabled one, null where there is none.
    template<typename T>
    T* someOf(const QList<T*>& all);

    void swapDevices();
    void look();
    void sendFrames();
    void clickSomething();
    void pressSomething();
    void rightClickSomething();
    /// An entry of the open menu, but none that deletes or renames what lies on the disk.
    void triggerSomething();
    /// An entry of a list, a table or a selector of the program's own windows.
    void chooseSomething();
    void clickRow(QAbstractItemView* view, int rows);
    /// A stroke over the photograph, with whatever tool is chosen.
    void draw();
    /// Connect, disconnect, settings; or the menu just opens. Not while a dialog blocks it.
    void useMainMenu();
    void toggleFullScreen();

    MainWindow& m_window;
    simulator::SimulatedImager& m_imager;
    std::mt19937 m_random;
    QMap<QString, int> m_counts;
    int m_depth = 0;
};

} // namespace testing
