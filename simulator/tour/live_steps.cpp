// SPDX-License-Identifier: MIT
#include "app/device_poll.h"
#include "app/seting.h"
#include "config/configuration_record.h"
#include "live/alarm_records.h"
#include "live/camer_window.h"
#include "simulator/tour/walk.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

namespace tour {
namespace {

/// The live page; there is one in every step that asks.
camer_window& page(Walk& walk)
{
    return *walk.window().liveWindow();
}

/// A widget of the live page, by its name in the form.
template<typename T>
T& part(Walk& walk, const char* objectName)
{
    return find<T>(page(walk), objectName);
}

QLabel& readOut(Walk& walk)
{
    return part<QLabel>(walk, "label_6");
}

void clickRow(Walk& walk, QListWidget& list, int row)
{
    walk.click(*list.viewport(), list.visualItemRect(list.item(row)));
}

void awaitMovingPicture(Walk& walk)
{
    const QImage before = page(walk).currentPixmap.toImage();
    walk.await("the live picture moves", [&] {
        const QPixmap& now = page(walk).currentPixmap;
        return !now.isNull() && now.toImage() != before;
    });
}

void awaitColour(Walk& walk, const char* what, const char* colour)
{
    walk.await(what, [&] { return readOut(walk).styleSheet().contains(QLatin1String(colour)); });
}

void plugTheCameraIn(Walk& walk)
{
    walk.imager().setCameraPlugged(true);
    walk.awaitMode(device_poll::liveMode);
    awaitMovingPicture(walk);
    walk.await("the camera counts as running", [&] { return page(walk).cameraRunning; });
    walk.shoot("live");
}

void useThePanel(Walk& walk)
{
    walk.panel().showBeside(walk.window());
    walk.imager().setScene(simulator::SceneKind::Motor);
    walk.await("the read-out shows the motor's bearing",
               [&] { return readOut(walk).text().toDouble() > 80; });
    walk.shoot("simulator-panel");
    walk.panel().hide();
    walk.imager().setScene(simulator::SceneKind::CableJoint);
}

void fillTheScreenAndLeaveIt(Walk& walk)
{
    walk.doubleClick(part<QLabel>(walk, "label_17"));
    walk.await("the live page fills the screen",
               [&] { return page(walk).isFullScreen() && page(walk).isActiveWindow(); });
    awaitMovingPicture(walk);
    walk.shoot("full-screen");

    QTest::keyClick(&page(walk), Qt::Key_Escape);
    walk.await("the live page is back in the main window",
               [&] { return page(walk).window() == &walk.window() && page(walk).isVisible(); });
    awaitMovingPicture(walk);
    walk.shoot("back-from-full-screen");
}

void openTheMenus(Walk& walk)
{
    walk.openMenu(0);
    walk.shoot("file-menu");
    QTest::keyClick(walk.window().menuBar()->actions().at(0)->menu(), Qt::Key_Escape);
    walk.openMenu(1);
    walk.shoot("help-menu");
    walk.chooseEntry(1, 0);
}

void raiseTheAlarm(Walk& walk)
{
    walk.click(part<QCheckBox>(walk, "checkBox"));
    walk.click(part<QCheckBox>(walk, "checkBox_3"));
    walk.await("alarm and alarm files are switched on",
               [&] { return page(walk).alarmEnabled && page(walk).alarmFilesEnabled; });
    walk.imager().heatPastThreshold();
    awaitColour(walk, "the read-out blinks: yellow on red", "background-color: rgb(255, 0, 0)");
    walk.shoot("alarm");
    awaitColour(walk, "the read-out blinks: red on white", "color: rgb(255, 0, 0)");
    walk.await("one record is kept and listed", [&] {
        const QStringList kept = live::recordNames(config::folderPath());
        const auto& listed = part<QListWidget>(walk, "listWidget");
        return kept.size() == 1 && listed.count() == 1 && listed.item(0)->text() == kept.first();
    });
    walk.shoot("alarm-record");
}

void stopTheAlarm(Walk& walk)
{
    walk.click(part<QPushButton>(walk, "pushButton_2"));
    walk.await("the alarm is silent", [&] { return page(walk).alarmSilenced; });
    walk.imager().coolBelowThreshold();
    awaitColour(walk, "the read-out is green again", "rgb(80, 180, 50)");
    walk.click(part<QCheckBox>(walk, "checkBox"));
    walk.shoot("alarm-over");
}

void lookBackAtTheRecord(Walk& walk)
{
    QTabBar& tabs = *part<QTabWidget>(walk, "tabWidget").tabBar();
    auto& pictures = part<QListWidget>(walk, "listWidget_3");
    walk.click(tabs, tabs.tabRect(1));
    walk.await("the history tab opens", [&] { return tabs.currentIndex() == 1; });
    clickRow(walk, part<QListWidget>(walk, "listWidget_2"), 0);
    walk.await("the record's seven pictures are listed",
               [&] { return pictures.count() == live::recordPictures; });
    clickRow(walk, pictures, 0);
    walk.await("the record's picture and read-outs are shown", [&] {
        const QPixmap* shown = part<QLabel>(walk, "label_18").pixmap();
        return shown != nullptr && !shown->isNull() &&
               part<QLabel>(walk, "label_12").text().toDouble() >=
                   part<QLabel>(walk, "label_14").text().toDouble();
    });
    walk.shoot("alarm-history");
    walk.click(tabs, tabs.tabRect(0));
    walk.await("the live tab is back", [&] { return tabs.currentIndex() == 0; });
}

void disconnectAndConnect(Walk& walk)
{
    walk.openMenu(0);
    walk.chooseEntry(0, 1);
    walk.awaitMode(device_poll::noMode);
    walk.shoot("disconnected");
    walk.openMenu(0);
    walk.chooseEntry(0, 0);
    walk.awaitMode(device_poll::liveMode);
    awaitMovingPicture(walk);
    walk.shoot("connected-again");
}

void openTheSettings(Walk& walk)
{
    walk.openMenu(0);
    walk.chooseEntry(0, 2);
    walk.await("the settings are on the screen",
               [&] { return walk.window().settingsDialog()->isActiveWindow(); });
    walk.shoot("settings");
    auto& language = find<QComboBox>(*walk.window().settingsDialog(), "comboBox");
    walk.click(language);
    walk.await("the languages are offered", [&] { return language.view()->isVisible(); });
    walk.shoot("settings-languages");
    QTest::keyClick(language.view(), Qt::Key_Escape);
    walk.await("the list closes", [&] { return !language.view()->isVisible(); });
    walk.window().settingsDialog()->close();
}

} // namespace

void takeLiveSteps(Walk& walk)
{
    walk.await("the main window is on the screen", [&] { return walk.window().isActiveWindow(); });
    walk.shoot("waiting");
    plugTheCameraIn(walk);
    useThePanel(walk);
    fillTheScreenAndLeaveIt(walk);
    openTheMenus(walk);
    raiseTheAlarm(walk);
    stopTheAlarm(walk);
    lookBackAtTheRecord(walk);
    disconnectAndConnect(walk);
    openTheSettings(walk);
}

} // namespace tour
