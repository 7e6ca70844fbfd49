// SPDX-License-Identifier: MIT
#pragma once

#include "app/main_window.h"
#include "simulator/control_panel.h"
#include "simulator/simulated_imager.h"

#include <QDialog>
#include <QString>

#include <functional>
#include <vector>

/// A walk through the program as a person takes it: real windows on a real (or virtual) screen,
/// mouse and keys, and pictures of what is on the screen.
namespace tour {

/// The program, the imager, and what a person does with them. A step chains these calls with && and
/// so ends at the first that does not succeed; lastWait() then says what was missing.
class Walk
{
public:
    /// Pictures go to `folder`, their names begin with the language code.
    Walk(QString language, QString folder);

    MainWindow& window() { return m_window; }
    simulator::SimulatedImager& imager() { return m_imager; }
    simulator::ControlPanel& panel() { return m_panel; }

    /// Lets the program run until the condition holds; false when it does not within the time.
    /// `what` names it: "the live picture moves".
    bool await(const QString& what, const std::function<bool()>& condition,
               int milliseconds = 15000);
    /// Waits until the main window is in one of the modes of device_poll.
    bool awaitMode(int mode, const QString& what);
    /// What was awaited last.
    QString lastWait() const { return m_lastWait; }

    /// Waits until the widget is on the screen, then clicks into its middle (a tick box: its box).
    bool click(QWidget* widget);
    bool doubleClick(QWidget* widget);
    /// Clicks into the middle of one of the entries that a viewport or a tab bar shows.
    bool clickItem(QWidget* viewport, const QRect& item);
    bool doubleClickItem(QWidget* viewport, const QRect& item);
    /// Presses the left button at `from`, moves in steps to `to`, lets go.
    bool drag(QWidget* widget, QPoint from, QPoint to);
    bool press(QWidget* widget, Qt::Key key);
    /// Opens a menu of the main window's menu bar by a click, and leaves it open.
    bool openMenu(int menu);
    /// Clicks on an entry of an open menu; it must be enabled.
    bool chooseEntry(int menu, int entry);

    /// Does what opens modal dialogs and returns only when they are gone; answers them in turn as
    /// they come up. False when an answer does not succeed or a dialog does not come.
    bool answerDialogs(const QString& what, const std::function<bool()>& open,
                       const std::vector<std::function<bool(QDialog&)>>& answers);

    /// Where a file of this tour goes: "FOLDER/EN-NAME".
    QString pathOf(const QString& name) const;

    /// Keeps a picture of all windows as they are on the screen, "EN-03-full-screen.png", and
    /// prints its path.
    bool shoot(const QString& name);

private:
    QString m_language;
    QString m_folder;
    int m_pictures = 0;
    QString m_lastWait;
    simulator::SimulatedImager m_imager;
    MainWindow m_window;
    simulator::ControlPanel m_panel;
};

/// The widget of that object name inside `parent`. It must exist: a form without it is another
/// form.
template<typename T>
T& find(const QObject& parent, const char* objectName)
{
    auto* found = parent.findChild<T*>(QLatin1String(objectName));
    if (found == nullptr)
        qFatal("there is no %s called %s", T::staticMetaObject.className(), objectName);
    return *found;
}

struct Step
{
    const char* name; ///< what a person would say they do
    bool (*take)(Walk& walk);
};

/// The live view and the main window around it: waiting, camera, full screen, menus, alarm and its
/// records, connecting again, settings. Ends in live mode.
std::vector<Step> liveSteps();
/// The imager as a disk; from live mode and back to it.
std::vector<Step> diskSteps();

} // namespace tour
