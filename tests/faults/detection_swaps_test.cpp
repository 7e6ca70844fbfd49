// SPDX-License-Identifier: MIT
// The imager as a camera and as a disk, swapped at random through every row of the detection, while
// the user works with whatever page there is, has dialogs open and changes the settings. Each
// outcome is checked, and in the end the program holds what it held at the beginning.
#include "analysis/windows/photo_window.h"
#include "app/main_window.h"
#include "app/seting.h"
#include "config/configuration_record.h"
#include "live/camer_window.h"
#include "simulator/simulated_camera.h"
#include "simulator/simulated_imager.h"
#include "tests/faults/endurance.h"
#include "tests/support/dialogs.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QFileDialog>
#include <QLabel>
#include <QLayout>
#include <QListWidget>
#include <QMenuBar>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>

#include <random>

using simulator::SimulatedCamera;

namespace {

struct Plugged
{
    bool imager = false;      ///< as a camera
    bool otherCamera = false; ///< one that is not the imager
    bool drive = false;
};

enum class From
{
    Waiting,
    OtherCameras,
    Live,
    Disk
};

/// The device state one look later.
int stateAfter(int state, const Plugged& plugged)
{
    if (plugged.imager)
        return state == 1 ? -1 : 2;
    if (state == 2)
        return plugged.drive ? -1 : 2;
    if (state == 1 || plugged.drive)
        return 1;
    return plugged.otherCamera ? -2 : -1;
}

void click(const QWidget* window, const char* name)
{
    testing::part<QPushButton>(window, name)->click();
}

} // namespace

class DetectionSwapsTest : public QObject
{
    Q_OBJECT

private slots:
    void everyRowAgainAndAgain()
    {
        config::create(QStringLiteral("EN"));
        simulator::SimulatedImager imager;
        imager.setFrameRate(0);
        imager.setDiskPlugged(true);
        imager.takeSamplePhotographs();
        m_imager = &imager;
        MainWindow window;
        window.show();
        m_window = &window;

        // Each kind of thing once, for what Qt and the fonts make once and keep.
        for (int row = 0; row < rows; ++row) {
            for (const int work : {0, 1, 2, 3})
                swap(row, work, true);
        }
        rest();
        testing::Pulse pulse;
        const testing::Holdings before = testing::holdings();

        std::mt19937 random(testing::scale().seed);
        const int times = testing::scale().times;
        testing::MemoryPeaks memory(times);
        for (int i = 0; i < times && !QTest::currentTestFailed(); ++i) {
            swap(int(random() % rows), int(random() % 4), random() % 3 == 0);
            QTest::qWait(int(random() % 8)); // the program's own looks come at any moment
            memory.sample();
            if (i % (times / 10 + 1) == 0)
                qInfo("%d: %s", i, qPrintable(testing::holdings().text()));
        }
        rest();
        const double gap = pulse.longestGap();
        QTRY_COMPARE(testing::leftOver(before, testing::holdings()), QString());
        const testing::Holdings after = testing::holdings();
        qInfo("%d swaps, seed %u, longest gap %.0f ms", times, testing::scale().seed, gap * 1000);
        qInfo("before: %s", qPrintable(before.text()));
        qInfo("after:  %s", qPrintable(after.text()));
        QVERIFY(gap < testing::hang);
        memory.verify();
    }

private:
    /// Four states to start from, eight sets of what is plugged in, and the menu's Disconnect.
    static constexpr int rows = 4 * 9;

    void swap(int row, int work, bool changeSettings)
    {
        const auto from = From(row / 9);
        reach(from);
        if (QTest::currentTestFailed())
            return;
        if (changeSettings)
            changeTheSettings(work);
        const int kind = row % 9;
        const auto event = [this, kind] {
            if (kind == 8)
                disconnectAndConnect();
            else
                plugAndLook({(kind & 1) != 0, (kind & 2) != 0, (kind & 4) != 0});
        };
        if (from == From::Live)
            workLive(work, event);
        else if (from == From::Disk)
            workOnDisk(work, event);
        else
            event();
    }

    void plug(const Plugged& plugged)
    {
        SimulatedCamera& camera = SimulatedCamera::instance();
        const simulator::CameraIdentity other{QStringLiteral("/dev/video7"),
                                              QStringLiteral("Webcam")};
        m_imager->setCameraPlugged(plugged.imager);
        m_imager->setDiskPlugged(plugged.drive);
        if (plugged.otherCamera)
            camera.plug(other);
        else
            camera.unplug(other);
    }

    void menu(int entry)
    {
        m_window->menuBar()->actions().at(0)->menu()->actions().at(entry)->trigger();
    }

    void reach(From from)
    {
        plug({false, from == From::OtherCameras, false});
        menu(1);
        menu(0);
        m_window->timeout_connect();
        if (from == From::Live)
            plug({true, false, false});
        if (from == From::Disk)
            plug({false, false, true});
        m_window->timeout_connect();
        const int states[] = {-1, -2, 2, 1};
        QCOMPARE(m_window->deviceState(), states[int(from)]);
    }

    /// Everything out, and what is on its way out gone.
    void rest()
    {
        reach(From::Waiting);
        QTest::qWait(0);
    }

    /// Two looks at what is plugged in now.
    void plugAndLook(const Plugged& plugged)
    {
        plug(plugged);
        int expected = m_window->deviceState();
        for (int look = 0; look < 2; ++look) {
            const int before = expected;
            expected = stateAfter(expected, plugged);
            m_window->timeout_connect();
            QCOMPARE(m_window->deviceState(), expected);
            const int modes[] = {-1, -1, -1, 2, 1}; // by state + 2
            const int mode = modes[expected + 2];
            QCOMPARE(m_window->mode(), mode);
            QCOMPARE(m_window->liveWindow() != nullptr, mode == 1);
            QCOMPARE(m_window->browser() != nullptr, mode == 2);
            if (before != expected || expected < 0) {
                const QString texts[] = {QStringLiteral("正在等待连接..."),
                                         QStringLiteral("投屏模式"), QStringLiteral("U盘模式")};
                QCOMPARE(testing::part<QLabel>(m_window, "label")->text(),
                         texts[std::max(mode, 0)]);
            }
        }
    }

    void disconnectAndConnect()
    {
        menu(1);
        QCOMPARE(m_window->mode(), -1);
        QVERIFY(!m_window->isPolling());
        QVERIFY(!m_window->liveWindow() && !m_window->browser());
        menu(0);
        QVERIFY(m_window->isPolling());
    }

    /// Runs `open`, which waits for a dialog's answer; while it is up, `event` happens. What is
    /// left of the dialog is dismissed.
    template<typename Dialog>
    void withDialog(const std::function<void()>& open, const std::function<void()>& event)
    {
        const testing::Answer<Dialog> answer([&event](Dialog& dialog) {
            const QPointer<Dialog> left(&dialog);
            event();
            if (left)
                left->reject();
        });
        open();
        QVERIFY(answer.wasAsked());
    }

    void workLive(int work, const std::function<void()>& event)
    {
        camer_window* page = m_window->liveWindow();
        m_imager->heatPastThreshold();
        m_imager->settle();
        testing::part<QCheckBox>(page, "checkBox")->setChecked(true);
        testing::part<QCheckBox>(page, "checkBox_3")->setChecked(true);
        for (int i = 0; i < 9; ++i)
            m_imager->sendFrame();
        switch (work) {
        case 0:
            event();
            break;
        case 1: { // looking at the history
            auto* records = testing::part<QListWidget>(page, "listWidget_2");
            testing::part<QTabWidget>(page, "tabWidget")->setCurrentIndex(1);
            if (records->count() > 0)
                emit records->itemClicked(records->item(0));
            QTest::qWait(1);
            event();
            break;
        }
        case 2: // the picture on the whole screen
            page->toggleFullScreen(false);
            QTest::qWait(1);
            event();
            break;
        default: // keeping a picture
            withDialog<QFileDialog>([page] { click(page, "pushButton"); }, event);
        }
    }

    void workOnDisk(int work, const std::function<void()>& event)
    {
        photo_window* browser = m_window->browser();
        QVERIFY(!browser->fileNames.isEmpty());
        QListWidgetItem item(browser->fileNames.at(work % browser->fileNames.size()));
        switch (work) {
        case 0: // thumbnails on their way
            QTest::qWait(1);
            event();
            break;
        case 1: { // a photograph in the other unit, then the table
            browser->list_item_doubleclicked(&item);
            auto* unit = testing::part<QComboBox>(browser, "comboBox");
            unit->setCurrentIndex(1 - unit->currentIndex());
            QTest::qWait(1);
            browser->on_pushButton_3_clicked();
            event();
            break;
        }
        case 2: { // choosing a colour for a tool
            browser->list_item_doubleclicked(&item);
            auto* analysis = testing::part<QWidget>(browser, "Analysis_Widget");
            withDialog<QColorDialog>([analysis] { click(analysis, "pushButton_4"); }, event);
            break;
        }
        default: { // saving a report
            browser->list_item_doubleclicked(&item);
            auto* analysis = testing::part<QWidget>(browser, "Analysis_Widget");
            withDialog<QFileDialog>([analysis] { click(analysis, "pushButton"); }, event);
        }
        }
    }

    void changeTheSettings(int work)
    {
        const QString codes[] = {QStringLiteral("CH"), QStringLiteral("EN"), QStringLiteral("RU"),
                                 QStringLiteral("KO")};
        const QString folder =
            testing::profile().home() + QStringLiteral("/alarms-%1").arg(work % 2);
        QDir().mkpath(folder);
        menu(2);
        seting* dialog = m_window->settingsDialog();
        QVERIFY(dialog->isVisible());
        dialog->setFolder(folder);
        emit testing::part<QComboBox>(dialog, "comboBox")->activated(work);
        withDialog<QMessageBox>([dialog] { click(dialog, "pushButton_2"); }, [] {});
        QCOMPARE(config::read().language, codes[work]);
        QCOMPARE(m_window->alarmFolder(), folder);
        QVERIFY(!dialog->isVisible());
    }

    simulator::SimulatedImager* m_imager = nullptr;
    MainWindow* m_window = nullptr;
};

int main(int argc, char** argv)
{
    return testing::runScaled<DetectionSwapsTest>(argc, argv, 80);
}

#include "detection_swaps_test.moc"
