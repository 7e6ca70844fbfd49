// SPDX-License-Identifier: MIT
#include "live/live_frame.h"
#include "tests/app/devices_test.h"
#include "tests/support/dialogs.h"

#include <QCloseEvent>
#include <QFileDialog>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>

using testing::part;

/// The live page in the main window: its picture, its folder, full screen, and how it ends.
class LivePageTest : public testing::DevicesTest
{
    Q_OBJECT

    const QByteArray grayFrame{live::frameBytes, '\x80'};

private slots:
    void isShownTheLivePicture()
    {
        MainWindow window;
        becomeLive(window);
        QTRY_VERIFY(camera().deliver(grayFrame));
        QTRY_VERIFY(part<QLabel>(window.liveWindow(), "label_17")->pixmap());
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
        QTRY_VERIFY(camera().deliver(grayFrame));
        QTRY_VERIFY(part<QLabel>(window.liveWindow(), "label_17")->pixmap());
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
        const auto* list = part<QListWidget>(window.liveWindow(), "listWidget");
        QCOMPARE(list->count(), 1);
        QCOMPARE(list->item(0)->text(), QStringLiteral("20260101120000"));
    }

    void diskModeEndsALivePageInFullScreen()
    {
        MainWindow window;
        const QPointer<camer_window> page = becomeLive(window);
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
        const QPointer<camer_window> page = becomeLive(window);
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
        camer_window* page = becomeLive(window);
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
        becomeLive(window);
        window.liveWindow()->toggleFullScreen(false);
        camera().unplug();
        plugDrive();
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
        becomeLive(window);
        window.liveWindow()->toggleFullScreen(false);
        window.close();
        QVERIFY(!window.liveWindow() || !window.liveWindow()->isVisible());
        QVERIFY(!camera().isRunning());
    }

    void aPageWhoseDialogNobodyWaitsForGoesAtOnce()
    {
        MainWindow window;
        const QPointer<camer_window> page = becomeLive(window);
        QPointer<QDialog> dialog = new QDialog(page);
        dialog->setWindowModality(Qt::ApplicationModal);
        dialog->show();
        QTRY_COMPARE(QApplication::activeModalWidget(), dialog.data());
        camera().unplug();
        plugDrive();
        window.timeout_connect();
        QVERIFY(!page);
        QVERIFY(!dialog);
        QVERIFY(!QApplication::activeModalWidget());
    }

    void aPageWithAnOpenDialogOutlivesTheDialog()
    {
        MainWindow window;
        becomeLive(window);
        QTRY_VERIFY(camera().deliver(grayFrame));
        QPointer<camer_window> page = window.liveWindow();
        bool pageWasThere = false;
        testing::Answer<QFileDialog> answer([&](QFileDialog&) {
            camera().unplug();
            plugDrive();
            window.timeout_connect();
            pageWasThere = page;
        });
        QTest::mouseClick(part<QPushButton>(page, "pushButton"), Qt::LeftButton);
        QVERIFY(answer.wasAsked());
        QVERIFY(pageWasThere);
        QVERIFY(!QApplication::activeModalWidget());
        QTRY_VERIFY(!page);
        QTRY_COMPARE(window.mode(), 2);
    }
};

int main(int argc, char** argv)
{
    return testing::run<LivePageTest>(argc, argv);
}

#include "live_page_test.moc"
