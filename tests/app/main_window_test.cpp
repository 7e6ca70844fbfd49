// SPDX-License-Identifier: MIT
#include "analysis/windows/photo_window.h"
#include "app/main_window.h"
#include "app/seting.h"
#include "config/configuration_record.h"
#include "live/camer_window.h"
#include "live/live_frame.h"
#include "platform/removable_drives.h"
#include "simulator/simulated_camera.h"
#include "tests/support/dialogs.h"
#include "tests/support/test_run.h"

#include <QCloseEvent>
#include <QDir>
#include <QFileDialog>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QMessageBox>
#include <QMetaMethod>
#include <QPointer>
#include <QPushButton>
#include <QTimer>

using simulator::SimulatedCamera;

namespace {

QStringList drives;

QString statusText(const MainWindow& window)
{
    return window.findChild<QLabel*>(QStringLiteral("label"))->text();
}

QString pathText(const MainWindow& window)
{
    return window.findChild<QLabel*>(QStringLiteral("label_2"))->text();
}

QLayout* modeArea(const MainWindow& window)
{
    return window.findChild<QLayout*>(QStringLiteral("horizontalLayout"));
}

QAction* fileAction(const MainWindow& window, int index)
{
    return window.menuBar()->actions().at(0)->menu()->actions().at(index);
}

const QString waitingText = QStringLiteral("正在等待连接...");
const QString liveText = QStringLiteral("投屏模式");
const QString diskText = QStringLiteral("U盘模式");
const QString disconnectedText = QStringLiteral("已断开连接");

} // namespace

/// The main window with a simulated camera and made-up drives, looked at poll by poll: its timer is
/// too slow to come in between, and where it must run by itself the test waits for the outcome.
class MainWindowTest : public QObject
{
    Q_OBJECT

    static SimulatedCamera& camera() { return SimulatedCamera::instance(); }

    static QString makeDrive(const QString& name)
    {
        const QString root = testing::profile().home() + QLatin1Char('/') + name;
        QDir().mkpath(root);
        return root + QLatin1Char('/');
    }

private slots:
    void init()
    {
        testing::profile().reset();
        config::create(QStringLiteral("CH"));
        drives.clear();
        platform::setDriveProvider([] { return drives; });
        camera().unplug();
    }

    void cleanup()
    {
        camera().unplug();
        platform::setDriveProvider({});
    }

    void slotsInTheirOrderAndNoSignals()
    {
        const QMetaObject& meta = MainWindow::staticMetaObject;
        QStringList methods;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
            QCOMPARE(meta.method(i).methodType(), QMetaMethod::Slot);
            methods.append(QString::fromLatin1(meta.method(i).methodSignature()));
        }
        QCOMPARE(methods.join(QLatin1Char(' ')),
                 QStringLiteral("Get_Addr(QString) Action_photo() Action_camer() Action_chose() "
                                "Action_connect() Action_Disconnect() Action_Close() Action_Doc() "
                                "Photo_itemEntered(QListWidgetItem*) fullscr(bool) "
                                "timeout_connect()"));
    }

    void startsWaiting()
    {
        const MainWindow window;
        QCOMPARE(window.windowTitle(), QStringLiteral("Therma Desk"));
        QCOMPARE(statusText(window), waitingText);
        QCOMPARE(pathText(window), QString());
        QCOMPARE(window.deviceState(), -1);
        QCOMPARE(window.mode(), -1);
        QCOMPARE(window.alarmFolder(), config::folderPath());
        QCOMPARE(modeArea(window)->count(), 0);
        QVERIFY(window.isPolling());
    }

    void menus()
    {
        const MainWindow window;
        const QList<QAction*> menus = window.menuBar()->actions();
        QCOMPARE(menus.size(), 2);
        QCOMPARE(menus.at(0)->text(), QStringLiteral("文件"));
        QCOMPARE(menus.at(1)->text(), QStringLiteral("帮助"));
        QStringList texts;
        for (const QAction* action : menus.at(0)->menu()->actions()) {
            texts.append(action->text());
            QVERIFY(!action->icon().isNull());
        }
        QCOMPARE(texts, QStringList({QStringLiteral("连接"), QStringLiteral("断开"),
                                     QStringLiteral("选项"), QStringLiteral("关闭")}));
        QCOMPARE(menus.at(1)->menu()->actions().at(0)->text(), QStringLiteral("用户手册"));
        QVERIFY(fileAction(window, 0)->isEnabled());
        QVERIFY(!fileAction(window, 1)->isEnabled());
    }

    void menuEntriesShowTheirIcons()
    {
        const MainWindow window;
        const QList<QAction*> menus = window.menuBar()->actions();
        QList<QAction*> entries = menus.at(0)->menu()->actions();
        entries.append(menus.at(1)->menu()->actions());
        const char* const icons[] = {"connect", "Disconnect", "setting", "colse", "doc"};
        QCOMPARE(entries.size(), 5);
        for (int i = 0; i < entries.size(); ++i) {
            const QIcon expected(QStringLiteral(":/photo/%1.png").arg(QLatin1String(icons[i])));
            const QImage shown = entries.at(i)->icon().pixmap(32).toImage();
            QVERIFY2(!shown.isNull(), icons[i]);
            QVERIFY2(shown == expected.pixmap(32).toImage(), icons[i]);
        }
    }

    void theWindowKeepsItsStyle()
    {
        const MainWindow window;
        QCOMPARE(window.styleSheet(), QStringLiteral("QMainWindow#MainWindow{\n"
                                                     "/*background-color: rgb(255, 255, 255);*/\n"
                                                     "}"));
        for (const char* name : {"label", "label_2"}) {
            const auto* label = window.findChild<QLabel*>(QLatin1String(name));
            QCOMPARE(label->font().family(), QStringLiteral("微软雅黑"));
            QCOMPARE(label->styleSheet(), QString());
        }
    }

    /// Only modes that begin and end change it.
    void aPollThatFindsNothingLeavesTheMenu()
    {
        MainWindow window;
        window.timeout_connect();
        QVERIFY(fileAction(window, 0)->isEnabled());
        QVERIFY(!fileAction(window, 1)->isEnabled());
        drives.append(makeDrive(QStringLiteral("imager")));
        window.timeout_connect();
        drives.clear();
        window.Action_connect(); // looks anew without leaving the mode
        window.timeout_connect();
        QCOMPARE(statusText(window), waitingText);
        QCOMPARE(modeArea(window)->count(), 0);
        QVERIFY(!fileAction(window, 0)->isEnabled());
        QVERIFY(fileAction(window, 1)->isEnabled());
    }

    void everyMenuEntryHasAShortcutOfItsOwn()
    {
        const MainWindow window;
        QSet<QString> shortcuts;
        int entries = 0;
        for (const QAction* menu : window.menuBar()->actions()) {
            for (const QAction* action : menu->menu()->actions()) {
                QVERIFY2(!action->shortcut().isEmpty(), qPrintable(action->text()));
                shortcuts.insert(action->shortcut().toString());
                ++entries;
            }
        }
        QCOMPARE(shortcuts.size(), entries);
    }

    void theKeyboardOpensTheMenus()
    {
        MainWindow window;
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QTest::keyClick(&window, Qt::Key_F10);
        const QMenu* menu = window.menuBar()->actions().at(0)->menu();
        QTRY_VERIFY(menu->isVisible());
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
        QTRY_VERIFY(!menu->isVisible());
        testing::LogRecorder log;
        QTest::keyClick(&window, Qt::Key_F1);
        QVERIFY(log.contains(QStringLiteral("点击了用户手册")));
    }

    void theUserManualIsOnlyLogged()
    {
        const MainWindow window;
        testing::LogRecorder log;
        window.menuBar()->actions().at(1)->menu()->actions().at(0)->trigger();
        QVERIFY(log.contains(QStringLiteral("点击了用户手册")));
    }

    void makesTheConfigurationWhenItIsGone()
    {
        QVERIFY(QDir(config::folderPath()).removeRecursively());
        const MainWindow window;
        QCOMPARE(config::read().reserved, QStringLiteral("000"));
        QCOMPARE(config::read().language, QStringLiteral("CH"));
        QCOMPARE(config::read().alarmFolder, config::folderPath());
        QCOMPARE(window.alarmFolder(), config::folderPath());
    }

    void writesTheAlarmFolderBackOnExit()
    {
        config::replaceAlarmFolder(QStringLiteral("/kept"));
        {
            const MainWindow window;
            config::replaceAlarmFolder(QStringLiteral("/changed/meanwhile"));
        }
        QCOMPARE(config::read().alarmFolder, QStringLiteral("/kept"));
        QCOMPARE(config::read().language, QStringLiteral("CH"));
    }

    void findsTheImagerByItself()
    {
        const MainWindow window;
        camera().plug();
        QTRY_COMPARE(statusText(window), liveText);
        QCOMPARE(window.deviceState(), 2);
        QCOMPARE(window.mode(), 1);
        QCOMPARE(modeArea(window)->count(), 1);
        QCOMPARE(modeArea(window)->itemAt(0)->widget(), window.liveWindow());
        QVERIFY(!fileAction(window, 0)->isEnabled());
        QVERIFY(fileAction(window, 1)->isEnabled());
    }

    void looksForTheImagerEvery300Milliseconds()
    {
        struct Intervals : QObject
        {
            QSet<int> seen;
            bool eventFilter(QObject* watched, QEvent* event) override
            {
                const auto* timer = qobject_cast<QTimer*>(watched);
                if (timer && event->type() == QEvent::Timer)
                    seen.insert(timer->interval());
                return false;
            }
        } intervals;
        qApp->installEventFilter(&intervals);
        MainWindow window;
        QTRY_VERIFY(intervals.seen.contains(300));
        fileAction(window, 1)->trigger();
        intervals.seen.clear();
        window.Action_connect();
        QTRY_VERIFY(intervals.seen.contains(300));
    }

    void isShownTheLivePicture()
    {
        MainWindow window;
        window.show();
        camera().plug();
        window.timeout_connect();
        QTRY_VERIFY(camera().deliver(QByteArray(live::frameBytes, '\x80')));
        QTRY_VERIFY(window.liveWindow()->findChild<QLabel*>(QStringLiteral("label_17"))->pixmap());
    }

    void twoImagersEndInOneLivePage()
    {
        MainWindow window;
        window.show();
        simulator::CameraIdentity second = simulator::imagerIdentity();
        second.deviceName += QStringLiteral("-2");
        camera().plug();
        camera().plug(second);
        testing::LogRecorder log;
        window.timeout_connect();
        QCOMPARE(
            log.messages().count(QStringLiteral("按下了投屏按键------MainWindow::Action_camer")),
            2);
        QCOMPARE(modeArea(window)->count(), 1);
        QTRY_VERIFY(camera().deliver(QByteArray(live::frameBytes, '\x80')));
        QTRY_VERIFY(window.liveWindow()->findChild<QLabel*>(QStringLiteral("label_17"))->pixmap());
    }

    void theImagerIsFoundBesideAnotherCamera()
    {
        MainWindow window;
        camera().plug({QStringLiteral("/dev/video7"), QStringLiteral("Webcam")});
        camera().plug();
        window.timeout_connect();
        QCOMPARE(window.deviceState(), 2);
        QCOMPARE(modeArea(window)->count(), 1);
    }

    void otherCamerasAreNotTheImager_data()
    {
        QTest::addColumn<QString>("deviceName");
        QTest::addColumn<QString>("description");
        const QString name = simulator::imagerIdentity().deviceName;
        QTest::newRow("vendor in upper case")
            << QString(name).replace(QStringLiteral("usb#vid_1d6b"), QStringLiteral("USB#VID_1D6B"))
            << "UVC Camera";
        QTest::newRow("product in upper case")
            << QString(name).replace(QStringLiteral("pid_0102"), QStringLiteral("PID_0102"))
            << "UVC Camera";
        QTest::newRow("another product")
            << QString(name).replace(QStringLiteral("pid_0102"), QStringLiteral("pid_0103"))
            << "UVC Camera";
        QTest::newRow("description with a blank") << name << "UVC Camera ";
        QTest::newRow("description in lower case") << name << "uvc camera";
    }
    void otherCamerasAreNotTheImager()
    {
        QFETCH(QString, deviceName);
        QFETCH(QString, description);
        MainWindow window;
        camera().plug({deviceName, description});
        window.timeout_connect();
        QCOMPARE(window.deviceState(), -2);
        QCOMPARE(statusText(window), waitingText);
        QCOMPARE(modeArea(window)->count(), 0);
        camera().unplug();
        window.timeout_connect();
        QCOMPARE(window.deviceState(), -1);
    }

    void aDriveEntersDiskModeEvenWithoutImagerFolders()
    {
        MainWindow window;
        testing::LogRecorder log;
        drives.append(makeDrive(QStringLiteral("stick")));
        window.timeout_connect();
        QCOMPARE(window.deviceState(), 1);
        QCOMPARE(window.mode(), 2);
        QCOMPARE(statusText(window), diskText);
        QCOMPARE(modeArea(window)->itemAt(0)->widget(), window.browser());
        QVERIFY(!fileAction(window, 0)->isEnabled());
        QVERIFY(fileAction(window, 1)->isEnabled());
        QVERIFY(log.contains(QStringLiteral("按下了图片分析按键-------MainWindow::Action_photo")));
    }

    void fromCameraToDiskInTwoPolls()
    {
        MainWindow window;
        camera().plug();
        window.timeout_connect();
        QCOMPARE(window.mode(), 1);
        camera().unplug();
        drives.append(makeDrive(QStringLiteral("imager")));
        window.timeout_connect();
        QCOMPARE(window.deviceState(), -1);
        QCOMPARE(window.mode(), -1);
        QCOMPARE(statusText(window), waitingText);
        QCOMPARE(modeArea(window)->count(), 0);
        QVERIFY(!window.liveWindow());
        QVERIFY(fileAction(window, 0)->isEnabled());
        QVERIFY(!fileAction(window, 1)->isEnabled());
        window.timeout_connect();
        QCOMPARE(window.mode(), 2);
    }

    void fromDiskToCameraInTwoPolls()
    {
        MainWindow window;
        drives.append(makeDrive(QStringLiteral("imager")));
        window.timeout_connect();
        camera().plug();
        window.timeout_connect();
        QCOMPARE(window.mode(), -1);
        QCOMPARE(statusText(window), waitingText);
        QVERIFY(!window.browser());
        window.timeout_connect();
        QCOMPARE(window.mode(), 1);
    }

    void anImagerThatVanishesChangesNothing()
    {
        MainWindow window;
        camera().plug();
        window.timeout_connect();
        camera().unplug();
        window.timeout_connect();
        QCOMPARE(window.deviceState(), 2);
        QCOMPARE(statusText(window), liveText);
        QVERIFY(window.liveWindow());
    }

    void aDriveThatVanishesChangesNothing()
    {
        MainWindow window;
        drives.append(makeDrive(QStringLiteral("imager")));
        window.timeout_connect();
        drives.clear();
        window.timeout_connect();
        QCOMPARE(window.deviceState(), 1);
        QCOMPARE(statusText(window), diskText);
        QVERIFY(window.browser());
    }

    void disconnectStopsLookingUntilConnect()
    {
        MainWindow window;
        camera().plug();
        QTRY_COMPARE(window.mode(), 1);
        fileAction(window, 1)->trigger();
        QCOMPARE(statusText(window), disconnectedText);
        QCOMPARE(window.mode(), -1);
        QCOMPARE(window.deviceState(), -1);
        QVERIFY(!window.liveWindow());
        QVERIFY(fileAction(window, 0)->isEnabled());
        QVERIFY(!fileAction(window, 1)->isEnabled());
        QVERIFY(!window.isPolling());
        fileAction(window, 0)->trigger();
        QVERIFY(window.isPolling());
        QTRY_COMPARE(window.mode(), 1);
    }

    void liveModeClearsThePathButDiskModeKeepsIt()
    {
        MainWindow window;
        drives.append(makeDrive(QStringLiteral("imager")));
        window.timeout_connect();
        QListWidgetItem item(QStringLiteral("a.bmp"));
        window.Photo_itemEntered(&item);
        const QString path = drives.at(0) + QStringLiteral("DCIM_100/a.bmp");
        QCOMPARE(pathText(window), path);
        fileAction(window, 1)->trigger();
        QCOMPARE(pathText(window), path);
        drives.clear();
        camera().plug();
        window.timeout_connect();
        QCOMPARE(window.mode(), 1);
        QCOMPARE(pathText(window), QString());
    }

    void aQuestionMarkClearsThePath()
    {
        MainWindow window;
        drives.append(makeDrive(QStringLiteral("imager")));
        window.timeout_connect();
        QListWidgetItem item(QStringLiteral("a.bmp"));
        window.Photo_itemEntered(&item);
        item.setText(QStringLiteral("?"));
        window.Photo_itemEntered(&item);
        QCOMPARE(pathText(window), QString());
    }

    void aQuestionMarkClearsThePathAlsoWithoutABrowser()
    {
        MainWindow window;
        drives.append(makeDrive(QStringLiteral("imager")));
        window.timeout_connect();
        QListWidgetItem item(QStringLiteral("a.bmp"));
        window.Photo_itemEntered(&item);
        window.Action_Disconnect();
        QVERIFY(!pathText(window).isEmpty());
        item.setText(QStringLiteral("?"));
        window.Photo_itemEntered(&item);
        QCOMPARE(pathText(window), QString());
    }

    void diskModeEndsALivePageInFullScreen()
    {
        MainWindow window;
        window.show();
        camera().plug();
        window.timeout_connect();
        const QPointer<camer_window> page = window.liveWindow();
        page->toggleFullScreen(false);
        window.Action_photo();
        QVERIFY(!page);
        QVERIFY(!window.liveWindow());
        QVERIFY(!camera().isRunning());
        QCOMPARE(window.mode(), 2);
        QCOMPARE(modeArea(window)->count(), 1);
    }

    /// Alt+F4 on the picture that fills the screen: it goes back into its place.
    void aCloseRequestEndsFullScreen()
    {
        MainWindow window;
        window.show();
        camera().plug();
        window.timeout_connect();
        const QPointer<camer_window> page = window.liveWindow();
        page->toggleFullScreen(false);
        QCloseEvent request;
        QCoreApplication::sendEvent(page->windowHandle(), &request);
        QVERIFY(page->isOpen());
        QTRY_VERIFY(!page->isFull);
        QCOMPARE(modeArea(window)->count(), 1);
        QTRY_VERIFY(page->isVisible());
        QVERIFY(!page->isWindow());
        QTRY_VERIFY(camera().isRunning());
    }

    void aLivePageInFullScreenComesBack()
    {
        MainWindow window;
        window.show();
        camera().plug();
        window.timeout_connect();
        camer_window* page = window.liveWindow();
        page->toggleFullScreen(false);
        QCOMPARE(modeArea(window)->count(), 0);
        QVERIFY(page->isFull);
        page->toggleFullScreen(true);
        QCOMPARE(modeArea(window)->count(), 1);
        QCOMPARE(window.liveWindow(), page);
        QTRY_VERIFY(page->isVisible());
        QVERIFY(!page->isWindow());
    }

    void leavingLiveModeEndsAPageInFullScreen()
    {
        MainWindow window;
        window.show();
        camera().plug();
        window.timeout_connect();
        window.liveWindow()->toggleFullScreen(false);
        camera().unplug();
        drives.append(makeDrive(QStringLiteral("imager")));
        window.timeout_connect();
        QVERIFY(!window.liveWindow());
        window.timeout_connect();
        QCOMPARE(window.mode(), 2);
        for (const QWidget* other : QApplication::topLevelWidgets())
            QVERIFY(other == &window || !other->isVisible());
    }

    void closingTheMainWindowEndsAPageInFullScreen()
    {
        MainWindow window;
        window.show();
        camera().plug();
        window.timeout_connect();
        window.liveWindow()->toggleFullScreen(false);
        window.close();
        QVERIFY(!window.liveWindow() || !window.liveWindow()->isVisible());
        QVERIFY(!camera().isRunning());
    }

    void closingTheMainWindowEndsTheLooking()
    {
        MainWindow window;
        window.show();
        window.close();
        QVERIFY(!window.isPolling());
    }

    void closeFromTheMenu()
    {
        MainWindow window;
        window.show();
        camera().plug();
        window.timeout_connect();
        fileAction(window, 3)->trigger();
        QVERIFY(!window.isVisible());
        // Whatever still arrives finds no form and does no harm.
        window.timeout_connect();
        window.Action_camer();
        window.Action_photo();
        window.Action_Disconnect();
        window.fullscr(false);
        window.Get_Addr(QStringLiteral("/late"));
        QListWidgetItem item(QStringLiteral("a.bmp"));
        window.Photo_itemEntered(&item);
        QCOMPARE(config::read().alarmFolder, QStringLiteral("/late"));
    }

    void settingsDialogIsModalAndKnowsTheFolder()
    {
        MainWindow window;
        window.Get_Addr(QStringLiteral("D:\\alarms"));
        fileAction(window, 2)->trigger();
        const QPointer<seting> first = window.settingsDialog();
        QVERIFY(first->isVisible());
        QCOMPARE(first->windowTitle(), QStringLiteral("选项"));
        QCOMPARE(first->windowModality(), Qt::ApplicationModal);
        QCOMPARE(first->folder, QStringLiteral("D:\\alarms"));
        emit first->send_addr(QStringLiteral("E:\\other"));
        QCOMPARE(window.alarmFolder(), QStringLiteral("E:\\other"));
        QCOMPARE(config::read().alarmFolder, QStringLiteral("E:\\other"));
        QCOMPARE(first->folder, QStringLiteral("E:\\other"));
        first->close();
        fileAction(window, 2)->trigger();
        QVERIFY(first);
        QVERIFY(window.settingsDialog() != first);
    }

    void theSettingsDialogIsToldTheFolderInUse()
    {
        config::replaceAlarmFolder(QStringLiteral("/in/use"));
        MainWindow window;
        config::replaceAlarmFolder(QStringLiteral("/changed/meanwhile"));
        fileAction(window, 2)->trigger();
        const seting* dialog = window.settingsDialog();
        QCOMPARE(dialog->folder, QStringLiteral("/in/use"));
        QCOMPARE(dialog->findChild<QLineEdit*>(QStringLiteral("lineEdit"))->text(),
                 QStringLiteral("/in/use"));
    }

    void oldSettingsDialogsGo()
    {
        MainWindow window;
        QPointer<seting> dialogs[4];
        for (QPointer<seting>& dialog : dialogs) {
            fileAction(window, 2)->trigger();
            dialog = window.settingsDialog();
            dialog->close();
        }
        QVERIFY(!dialogs[0] && !dialogs[1]);
        QVERIFY(dialogs[2]);
        QCOMPARE(window.settingsDialog(), dialogs[3].data());
    }

    void anOldSettingsDialogWaitsForItsAnswer()
    {
        MainWindow window;
        fileAction(window, 2)->trigger();
        QPointer<seting> waiting = window.settingsDialog();
        testing::Answer<QMessageBox> answer([&](QMessageBox& box) {
            for (int i = 0; i < 3; ++i) {
                fileAction(window, 2)->trigger();
                window.settingsDialog()->close();
            }
            QVERIFY(waiting);
            box.accept();
        });
        QTest::mouseClick(waiting->findChild<QPushButton*>(QStringLiteral("pushButton_2")),
                          Qt::LeftButton);
        QVERIFY(answer.wasAsked());
        QVERIFY(waiting);
        fileAction(window, 2)->trigger();
        QVERIFY(!waiting);
        window.settingsDialog()->close();
    }

    void aNewLivePageTakesTheFolderInUse()
    {
        config::replaceAlarmFolder(QStringLiteral("/in/use"));
        MainWindow window;
        config::replaceAlarmFolder(QStringLiteral("/changed/meanwhile"));
        camera().plug();
        window.timeout_connect();
        QCOMPARE(window.liveWindow()->historyFolder, QStringLiteral("/in/use"));
    }

    void aNewFolderReachesTheLivePage()
    {
        const QString folder = makeDrive(QStringLiteral("records")).chopped(1);
        QVERIFY(QDir(folder).mkpath(QStringLiteral("20260101120000")));
        MainWindow window;
        camera().plug();
        window.timeout_connect();
        window.Get_Addr(folder);
        window.liveWindow()->refreshHistory();
        const auto* list =
            window.liveWindow()->findChild<QListWidget*>(QStringLiteral("listWidget"));
        QCOMPARE(list->count(), 1);
        QCOMPARE(list->item(0)->text(), QStringLiteral("20260101120000"));
    }

    void aPageWhoseDialogNobodyWaitsForGoesAtOnce()
    {
        MainWindow window;
        window.show();
        camera().plug();
        window.timeout_connect();
        const QPointer<camer_window> page = window.liveWindow();
        QPointer<QDialog> dialog = new QDialog(page);
        dialog->setWindowModality(Qt::ApplicationModal);
        dialog->show();
        QTRY_COMPARE(QApplication::activeModalWidget(), dialog.data());
        camera().unplug();
        drives.append(makeDrive(QStringLiteral("imager")));
        window.timeout_connect();
        QVERIFY(!page);
        QVERIFY(!dialog);
        QVERIFY(!QApplication::activeModalWidget());
    }

    void aPageWithAnOpenDialogOutlivesTheDialog()
    {
        MainWindow window;
        window.show();
        camera().plug();
        window.timeout_connect();
        QTRY_VERIFY(camera().deliver(QByteArray(live::frameBytes, '\x80')));
        QPointer<camer_window> page = window.liveWindow();
        bool pageWasThere = false;
        testing::Answer<QFileDialog> answer([&](QFileDialog&) {
            camera().unplug();
            drives.append(makeDrive(QStringLiteral("imager")));
            window.timeout_connect();
            pageWasThere = page;
        });
        QTest::mouseClick(page->findChild<QPushButton*>(QStringLiteral("pushButton")),
                          Qt::LeftButton);
        QVERIFY(answer.wasAsked());
        QVERIFY(pageWasThere);
        QVERIFY(!QApplication::activeModalWidget());
        QTRY_VERIFY(!page);
        QTRY_COMPARE(window.mode(), 2);
    }
};

int main(int argc, char** argv)
{
    return testing::run<MainWindowTest>(argc, argv);
}

#include "main_window_test.moc"
