// SPDX-License-Identifier: MIT
#pragma once

#include "app/main_window.h"
#include "simulator/control_panel.h"
#include "simulator/simulated_imager.h"

#include <QDialog>
#include <QRect>
#include <QString>

#include <functional>
#include <vector>

/// A walk through the program as a person takes it: real windows on a real (or virtual) screen,
/// mouse and keys, and pictures of what is on the screen.
namespace tour {

/// The program, the imager, and what a person does with them. Where something does not come about
/// in time a call throws std::runtime_error, which says what was awaited, after a picture "failed".
class Walk
{
public:
    /// Pictures go to `folder`, their names begin with the language code.
    Walk(QString language, QString folder);

    MainWindow& window() { return m_window; }
    simulator::SimulatedImager& imager() { return m_imager; }
    simulator::ControlPanel& panel() { return m_panel; }

    /// Lets the program run until the condition holds, which `what` names: "the live picture
    /// moves".
    void await(const char* what, const std::function<bool()>& condition);
    /// Waits until the main window is in one of the modes of device_poll.
    void awaitMode(int mode);

    /// Clicks into the middle of a widget (a tick box: its box), or of one of the entries it shows,
    /// as soon as that is on the screen.
    void click(QWidget& widget, const QRect& entry = {});
    void doubleClick(QWidget& widget, const QRect& entry = {});
    /// Presses the left button at `from`, moves in steps to `to`, lets go.
    void drag(QWidget& widget, QPoint from, QPoint to);
    /// Opens a menu of the main window's menu bar by a click, and leaves it open.
    void openMenu(int menu);
    /// Clicks on an entry of an open menu; it must be enabled.
    void chooseEntry(int menu, int entry);

    /// Does what opens modal dialogs and returns only when they are gone; answers them in turn as
    /// they come up.
    void answerDialogs(const std::function<void()>& open,
                       const std::vector<std::function<void(QDialog&)>>& answers);

    /// Where a file of this tour goes: "FOLDER/EN-NAME".
    QString pathOf(const QString& name) const;

    /// Keeps a picture of all windows as they are on the screen, "EN-03-full-screen.png", and
    /// prints its path.
    void shoot(const char* name);

private:
    QString m_language;
    QString m_folder;
    int m_pictures = 0;
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

/// The live view and the main window around it: waiting, camera, full screen, menus, alarm and its
/// records, connecting again, settings. Ends in live mode.
void takeLiveSteps(Walk& walk);
/// The imager as a disk; from live mode and back to it.
void takeDiskSteps(Walk& walk);
/// The windows beside the picture of the photograph that is open.
void takeLookingSteps(Walk& walk);

} // namespace tour
