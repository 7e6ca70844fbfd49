// SPDX-License-Identifier: MIT
// The camera pulled out and plugged in again at random moments, in the middle of frames and dialogs
// too, while the alarm blinks, sounds and writes records, and while the history is looked at.
#include "app/main_window.h"
#include "config/configuration_record.h"
#include "live/alarm_records.h"
#include "live/camer_window.h"
#include "live/live_frame.h"
#include "live/qt_camera_capture.h"
#include "simulator/imager_model.h"
#include "simulator/simulated_camera.h"
#include "tests/faults/endurance.h"
#include "tests/support/dialogs.h"

#include <QCheckBox>
#include <QDir>
#include <QFileDialog>
#include <QListWidget>
#include <QMenuBar>
#include <QPointer>
#include <QPushButton>
#include <QTabWidget>

#include <random>

using simulator::SimulatedCamera;

namespace {

constexpr double threshold = 75.0;
constexpr int keptRecords = 20;

SimulatedCamera& camera()
{
    return SimulatedCamera::instance();
}

QByteArray frame(double seconds, double hotSpot)
{
    static const simulator::Scene scene(simulator::SceneKind::Motor);
    return simulator::liveFrame(scene.field(seconds, hotSpot), simulator::Palette::Iron, threshold,
                                0.95);
}

} // namespace

class CameraReplugTest : public QObject
{
    Q_OBJECT

private slots:
    void atAnyMoment()
    {
        m_folder = testing::profile().home() + QStringLiteral("/alarms");
        QVERIFY(QDir().mkpath(m_folder));
        config::create(QStringLiteral("EN"));
        config::replaceAlarmFolder(m_folder);
        for (int i = 0; i < 10; ++i) {
            m_hot.append(frame(i / 25.0, threshold + 10));
            m_cold.append(frame(i / 25.0, threshold - 20));
        }
        MainWindow window;
        window.show();
        m_window = &window;

        camera().plug();
        freshPage();
        QTRY_COMPARE(m_window->mode(), 1);
        // The alarm sounds: what the player makes for its first sound, it keeps.
        frames(8, true);
        QTRY_VERIFY(page()->blinkPhase);
        for (int moment = 0; moment < moments; ++moment) {
            for (int recovery = 0; recovery < recoveries; ++recovery)
                replug(moment, recovery);
            QVERIFY(!QTest::currentTestFailed());
        }
        rest();
        testing::Pulse pulse;
        const testing::Holdings before = testing::holdings();

        camera().plug();
        freshPage();
        m_random.seed(testing::scale().seed);
        const int times = testing::scale().times;
        testing::MemoryPeaks memory(times);
        for (int i = 0; i < times && !QTest::currentTestFailed(); ++i) {
            replug(int(m_random() % moments), int(m_random() % recoveries));
            memory.sample();
            if (i % (times / 10 + 1) == 0)
                qInfo("%d: %s", i, qPrintable(testing::holdings().text()));
        }
        m_records += live::recordNames(m_folder).size();
        rest();
        const double gap = pulse.longestGap();
        QTRY_COMPARE(testing::leftOver(before, testing::holdings()), QString());
        const testing::Holdings after = testing::holdings();
        qInfo("pulled out %d times, seed %u, %d records, longest gap %.0f ms", times,
              testing::scale().seed, m_records, gap * 1000);
        qInfo("before: %s", qPrintable(before.text()));
        qInfo("after:  %s", qPrintable(after.text()));
        QVERIFY(m_records > 0);
        QVERIFY(gap < testing::hang);
        memory.verify();
    }

private:
    static constexpr int moments = 6;
    static constexpr int recoveries = 4;

    camer_window* page() const { return m_window->liveWindow(); }

    void menu(int entry)
    {
        m_window->menuBar()->actions().at(0)->menu()->actions().at(entry)->trigger();
    }

    /// Another page, with the alarm on.
    void freshPage()
    {
        menu(1);
        menu(0);
        m_window->timeout_connect();
        QVERIFY(page());
        for (const char* box : {"checkBox", "checkBox_2", "checkBox_3"})
            testing::part<QCheckBox>(page(), box)->setChecked(true);
    }

    bool send(bool hot)
    {
        ++m_sent;
        return camera().deliver((hot ? m_hot : m_cold).at(m_sent % m_hot.size()));
    }

    void frames(int count, bool hot)
    {
        for (int i = 0; i < count; ++i) {
            send(hot);
            if (m_random() % 3 == 0)
                QTest::qWait(0);
        }
    }

    void replug(int moment, int recovery)
    {
        frames(1 + int(m_random() % 3), false);
        frames(int(m_random() % 14), true);
        pullOut(moment);
        QVERIFY(!camera().isPlugged());
        QVERIFY(!send(true));
        QTest::qWait(int(m_random() % 4));
        comeBack(recovery);
        QVERIFY(camera().isRunning());
        const qint64 shown = page()->currentPixmap.cacheKey();
        QVERIFY(send(false));
        QVERIFY(page()->currentPixmap.cacheKey() != shown);
        tidyUp();
    }

    void pullOut(int moment)
    {
        switch (moment) {
        case 0: // between two frames
            camera().unplug();
            break;
        case 1: // in the middle of a frame, before the page has it or behind it
        {
            QObject hand;
            connect(page()->capture.get(), &QtCameraCapture::display_Qimage, &hand,
                    [] { camera().unplug(); });
            send(true);
            break;
        }
        case 2: // while a dialog of the page is up
        {
            const testing::Answer<QFileDialog> answer([](QFileDialog& dialog) {
                camera().unplug();
                dialog.reject();
            });
            send(true); // there must be a picture to keep
            testing::part<QPushButton>(page(), "pushButton")->click();
            QVERIFY(answer.wasAsked());
            break;
        }
        case 3: // while a record is looked at
        {
            testing::part<QTabWidget>(page(), "tabWidget")->setCurrentIndex(1);
            auto* records = testing::part<QListWidget>(page(), "listWidget_2");
            if (records->count() > 0)
                emit records->itemClicked(records->item(records->count() - 1));
            camera().unplug();
            QTest::qWait(1);
            testing::part<QListWidget>(page(), "listWidget_3")->setCurrentRow(3);
            testing::part<QTabWidget>(page(), "tabWidget")->setCurrentIndex(0);
            break;
        }
        case 4: // on the whole screen
            page()->toggleFullScreen(false);
            QTest::qWait(1);
            camera().unplug();
            page()->toggleFullScreen(true);
            break;
        default: // broken first
            camera().reportError();
            QTest::qWait(int(m_random() % 3));
            camera().unplug();
        }
    }

    void comeBack(int recovery)
    {
        switch (recovery) {
        case 0: // the page itself
            camera().plug();
            page()->reopenCamera();
            break;
        case 1: // tried too early
            page()->reopenCamera();
            camera().plug();
            page()->reopenCamera();
            break;
        case 2: // the health check first, then the user
            page()->timeout_connect();
            QVERIFY(!camera().isRunning());
            camera().plug();
            freshPage();
            break;
        default: // nobody connects while it is out
            menu(1);
            menu(0);
            m_window->timeout_connect();
            QVERIFY(!page());
            camera().plug();
            freshPage();
        }
    }

    void tidyUp()
    {
        const QStringList names = live::recordNames(m_folder);
        if (names.size() <= keptRecords)
            return;
        for (const QString& name : names) {
            QCOMPARE(live::recordPicturePaths(m_folder, name).size(), live::recordPictures);
            QVERIFY(QDir(m_folder + QLatin1Char('/') + name).removeRecursively());
            QVERIFY(QFile::remove(m_folder + QLatin1Char('/') + name + QStringLiteral(".ini")));
        }
        m_records += names.size();
        page()->refreshHistory();
    }

    /// No camera, no page.
    void rest()
    {
        camera().unplug();
        menu(1);
        menu(0);
        m_window->timeout_connect();
        QVERIFY(!page());
        QTest::qWait(0);
    }

    MainWindow* m_window = nullptr;
    QString m_folder;
    QVector<QByteArray> m_hot;
    QVector<QByteArray> m_cold;
    std::mt19937 m_random;
    int m_sent = 0;
    int m_records = 0;
};

int main(int argc, char** argv)
{
    return testing::runScaled<CameraReplugTest>(argc, argv, 100);
}

#include "camera_replug_test.moc"
