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

namespace tour {
namespace {

/// The live page; there is one in every step that asks.
camer_window& page(Walk& walk)
{
    return *walk.window().liveWindow();
}

/// The widgets of the live page that the walk uses, by their names in the form.
struct Form
{
    explicit Form(Walk& walk)
        : picture(find<QLabel>(page(walk), "label_17")),
          readOut(find<QLabel>(page(walk), "label_6")),
          enableAlarm(find<QCheckBox>(page(walk), "checkBox")),
          keepRecords(find<QCheckBox>(page(walk), "checkBox_3")),
          stopAlarm(find<QPushButton>(page(walk), "pushButton_2")),
          records(find<QListWidget>(page(walk), "listWidget")),
          tabs(find<QTabWidget>(page(walk), "tabWidget").tabBar()),
          history(find<QListWidget>(page(walk), "listWidget_2")),
          pictures(find<QListWidget>(page(walk), "listWidget_3")),
          recordPicture(find<QLabel>(page(walk), "label_18")),
          recordMaximum(find<QLabel>(page(walk), "label_12")),
          recordThreshold(find<QLabel>(page(walk), "label_14"))
    {
    }

    QLabel& picture;
    QLabel& readOut;
    QCheckBox& enableAlarm;
    QCheckBox& keepRecords;
    QPushButton& stopAlarm;
    QListWidget& records;
    QTabBar* tabs;
    QListWidget& history;
    QListWidget& pictures;
    QLabel& recordPicture;
    QLabel& recordMaximum;
    QLabel& recordThreshold;
};

bool clickRow(Walk& walk, QListWidget& list, int row)
{
    return walk.clickItem(list.viewport(), list.visualItemRect(list.item(row)));
}

bool awaitMovingPicture(Walk& walk)
{
    const QImage before = page(walk).currentPixmap.toImage();
    return walk.await(QStringLiteral("the live picture moves"), [&] {
        const QPixmap& now = page(walk).currentPixmap;
        return !now.isNull() && now.toImage() != before;
    });
}

bool waitForAnImager(Walk& walk)
{
    return walk.await(QStringLiteral("the main window is on the screen"), [&] {
        return walk.window().isActiveWindow();
    }) && walk.shoot(QStringLiteral("waiting"));
}

bool plugTheCameraIn(Walk& walk)
{
    walk.imager().setCameraPlugged(true);
    return walk.awaitMode(device_poll::liveMode, QStringLiteral("live mode starts by itself")) &&
           awaitMovingPicture(walk) &&
           walk.await(QStringLiteral("the camera counts as running"),
                      [&] { return page(walk).cameraRunning; }) &&
           walk.shoot(QStringLiteral("live"));
}

bool useThePanel(Walk& walk)
{
    simulator::ControlPanel& panel = walk.panel();
    panel.showBeside(walk.window());
    walk.imager().setScene(simulator::SceneKind::Motor);
    const bool isShot = walk.await(QStringLiteral("the read-out shows the motor's bearing"), [&] {
        return Form(walk).readOut.text().toDouble() > 80;
    }) && walk.shoot(QStringLiteral("simulator-panel"));
    panel.hide();
    walk.imager().setScene(simulator::SceneKind::CableJoint);
    return isShot;
}

bool fillTheScreen(Walk& walk)
{
    return walk.doubleClick(&Form(walk).picture) &&
           walk.await(QStringLiteral("the live page fills the screen"),
                      [&] { return page(walk).isFullScreen() && page(walk).isActiveWindow(); }) &&
           awaitMovingPicture(walk) && walk.shoot(QStringLiteral("full-screen"));
}

bool leaveTheFullScreen(Walk& walk)
{
    return walk.press(&page(walk), Qt::Key_Escape) &&
           walk.await(
               QStringLiteral("the live page is back in the main window"),
               [&] { return page(walk).window() == &walk.window() && page(walk).isVisible(); }) &&
           awaitMovingPicture(walk) && walk.shoot(QStringLiteral("back-from-full-screen"));
}

bool openTheMenus(Walk& walk)
{
    return walk.openMenu(0) && walk.shoot(QStringLiteral("file-menu")) &&
           walk.press(walk.window().menuBar()->actions().at(0)->menu(), Qt::Key_Escape) &&
           walk.openMenu(1) && walk.shoot(QStringLiteral("help-menu")) && walk.chooseEntry(1, 0);
}

bool raiseTheAlarm(Walk& walk)
{
    const Form form(walk);
    const auto readOutIs = [&form](const char* colour) {
        return form.readOut.styleSheet().contains(QLatin1String(colour));
    };
    const auto records = [] {
        return live::recordNames(config::folderPath());
    };
    if (!walk.click(&form.enableAlarm) || !walk.click(&form.keepRecords) ||
        !walk.await(QStringLiteral("alarm and alarm files are switched on"),
                    [&] { return page(walk).alarmEnabled && page(walk).alarmFilesEnabled; }))
        return false;
    walk.imager().heatPastThreshold();
    return walk.await(QStringLiteral("the read-out blinks: yellow on red"),
                      [&] { return readOutIs("background-color: rgb(255, 0, 0)"); }) &&
           walk.shoot(QStringLiteral("alarm")) &&
           walk.await(QStringLiteral("the read-out blinks: red on white"),
                      [&] { return readOutIs("color: rgb(255, 0, 0)"); }) &&
           walk.await(QStringLiteral("one record is kept"),
                      [&] { return records().size() == 1; }) &&
           walk.await(QStringLiteral("the record is listed"),
                      [&] {
                          return form.records.count() == 1 &&
                                 form.records.item(0)->text() == records().value(0);
                      }) &&
           walk.shoot(QStringLiteral("alarm-record"));
}

bool stopTheAlarm(Walk& walk)
{
    const Form form(walk);
    if (!walk.click(&form.stopAlarm) || !walk.await(QStringLiteral("the alarm is silent"),
                                                    [&] { return page(walk).alarmSilenced; }))
        return false;
    walk.imager().coolBelowThreshold();
    return walk.await(QStringLiteral("the read-out is green again"),
                      [&] {
                          return form.readOut.styleSheet().contains(
                              QStringLiteral("rgb(80, 180, 50)"));
                      }) &&
           walk.click(&form.enableAlarm) && walk.shoot(QStringLiteral("alarm-over"));
}

bool lookBack(Walk& walk)
{
    const Form form(walk);
    return walk.clickItem(form.tabs, form.tabs->tabRect(1)) &&
           walk.await(QStringLiteral("the history tab opens"),
                      [&] { return form.tabs->currentIndex() == 1; }) &&
           clickRow(walk, form.history, 0) &&
           walk.await(QStringLiteral("the record's seven pictures are listed"),
                      [&] { return form.pictures.count() == live::recordPictures; }) &&
           clickRow(walk, form.pictures, 0) &&
           walk.await(QStringLiteral("the record's picture and read-outs are shown"),
                      [&] {
                          const QPixmap* shown = form.recordPicture.pixmap();
                          return shown != nullptr && !shown->isNull() &&
                                 form.recordMaximum.text().toDouble() >=
                                     form.recordThreshold.text().toDouble();
                      }) &&
           walk.shoot(QStringLiteral("alarm-history")) &&
           walk.clickItem(form.tabs, form.tabs->tabRect(0)) &&
           walk.await(QStringLiteral("the live tab is back"),
                      [&] { return form.tabs->currentIndex() == 0; });
}

bool disconnectAndConnect(Walk& walk)
{
    return walk.openMenu(0) && walk.chooseEntry(0, 1) &&
           walk.awaitMode(device_poll::noMode,
                          QStringLiteral("the program lets go of the imager")) &&
           walk.shoot(QStringLiteral("disconnected")) && walk.openMenu(0) &&
           walk.chooseEntry(0, 0) &&
           walk.awaitMode(device_poll::liveMode, QStringLiteral("live mode is back")) &&
           awaitMovingPicture(walk) && walk.shoot(QStringLiteral("connected-again"));
}

bool openTheSettings(Walk& walk)
{
    if (!walk.openMenu(0) || !walk.chooseEntry(0, 2) ||
        !walk.await(QStringLiteral("the settings are on the screen"),
                    [&] { return walk.window().settingsDialog()->isActiveWindow(); }))
        return false;
    QComboBox& language = find<QComboBox>(*walk.window().settingsDialog(), "comboBox");
    return walk.shoot(QStringLiteral("settings")) && walk.click(&language) &&
           walk.await(QStringLiteral("the languages are offered"),
                      [&] { return language.view()->isVisible(); }) &&
           walk.shoot(QStringLiteral("settings-languages")) &&
           walk.press(language.view(), Qt::Key_Escape) &&
           walk.await(QStringLiteral("the list closes"),
                      [&] { return !language.view()->isVisible(); }) &&
           walk.window().settingsDialog()->close();
}

} // namespace

std::vector<Step> liveSteps()
{
    return {{"wait for an imager", waitForAnImager},
            {"plug the camera in", plugTheCameraIn},
            {"use the simulator's panel", useThePanel},
            {"fill the screen", fillTheScreen},
            {"leave the full screen", leaveTheFullScreen},
            {"open the menus", openTheMenus},
            {"raise the alarm", raiseTheAlarm},
            {"stop the alarm", stopTheAlarm},
            {"look back at the record", lookBack},
            {"disconnect and connect", disconnectAndConnect},
            {"open the settings", openTheSettings}};
}

} // namespace tour
