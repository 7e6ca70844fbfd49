// SPDX-License-Identifier: MIT
#include "analysis/windows/photo_window.h"
#include "tests/app/devices_test.h"

#include <QListWidget>
#include <QSet>
#include <QTimer>

/// Modes begin and end with devices, and with Connect and Disconnect.
class DeviceModesTest : public testing::DevicesTest
{
    Q_OBJECT

private slots:
    /// Only modes that begin and end change it.
    void aPollThatFindsNothingLeavesTheMenu()
    {
        MainWindow window;
        window.timeout_connect();
        QVERIFY(fileAction(window, Connect)->isEnabled());
        QVERIFY(!fileAction(window, Disconnect)->isEnabled());
        plugDrive();
        window.timeout_connect();
        drives.clear();
        window.Action_connect(); // looks anew without leaving the mode
        window.timeout_connect();
        QCOMPARE(statusText(window), waitingText);
        QCOMPARE(modeArea(window)->count(), 0);
        QVERIFY(!fileAction(window, Connect)->isEnabled());
        QVERIFY(fileAction(window, Disconnect)->isEnabled());
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
        QVERIFY(!fileAction(window, Connect)->isEnabled());
        QVERIFY(fileAction(window, Disconnect)->isEnabled());
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
        fileAction(window, Disconnect)->trigger();
        intervals.seen.clear();
        window.Action_connect();
        QTRY_VERIFY(intervals.seen.contains(300));
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
        QVERIFY(!fileAction(window, Connect)->isEnabled());
        QVERIFY(fileAction(window, Disconnect)->isEnabled());
        QVERIFY(log.contains(QStringLiteral("按下了图片分析按键-------MainWindow::Action_photo")));
    }

    void fromCameraToDiskInTwoPolls()
    {
        MainWindow window;
        camera().plug();
        window.timeout_connect();
        QCOMPARE(window.mode(), 1);
        camera().unplug();
        plugDrive();
        window.timeout_connect();
        QCOMPARE(window.deviceState(), -1);
        QCOMPARE(window.mode(), -1);
        QCOMPARE(statusText(window), waitingText);
        QCOMPARE(modeArea(window)->count(), 0);
        QVERIFY(!window.liveWindow());
        QVERIFY(fileAction(window, Connect)->isEnabled());
        QVERIFY(!fileAction(window, Disconnect)->isEnabled());
        window.timeout_connect();
        QCOMPARE(window.mode(), 2);
    }

    void fromDiskToCameraInTwoPolls()
    {
        MainWindow window;
        plugDrive();
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
        plugDrive();
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
        fileAction(window, Disconnect)->trigger();
        QCOMPARE(statusText(window), disconnectedText);
        QCOMPARE(window.mode(), -1);
        QCOMPARE(window.deviceState(), -1);
        QVERIFY(!window.liveWindow());
        QVERIFY(fileAction(window, Connect)->isEnabled());
        QVERIFY(!fileAction(window, Disconnect)->isEnabled());
        QVERIFY(!window.isPolling());
        fileAction(window, Connect)->trigger();
        QVERIFY(window.isPolling());
        QTRY_COMPARE(window.mode(), 1);
    }

    void liveModeClearsThePathButDiskModeKeepsIt()
    {
        MainWindow window;
        plugDrive();
        window.timeout_connect();
        QListWidgetItem item(QStringLiteral("a.bmp"));
        window.Photo_itemEntered(&item);
        const QString path = drives.at(0) + QStringLiteral("DCIM_100/a.bmp");
        QCOMPARE(pathText(window), path);
        fileAction(window, Disconnect)->trigger();
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
        plugDrive();
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
        plugDrive();
        window.timeout_connect();
        QListWidgetItem item(QStringLiteral("a.bmp"));
        window.Photo_itemEntered(&item);
        window.Action_Disconnect();
        QVERIFY(!pathText(window).isEmpty());
        item.setText(QStringLiteral("?"));
        window.Photo_itemEntered(&item);
        QCOMPARE(pathText(window), QString());
    }
};

int main(int argc, char** argv)
{
    return testing::run<DeviceModesTest>(argc, argv);
}

#include "device_modes_test.moc"
