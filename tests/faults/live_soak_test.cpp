// SPDX-License-Identifier: MIT
// A day in front of the camera, accelerated: every frame goes the whole way through the simulated
// camera, decoding, display and alarm of the program's own window, as fast as that takes them.
// "live_soak_test --times 2160000" is a day at 25 frames a second.
#include "app/main_window.h"
#include "config/configuration_record.h"
#include "live/alarm_records.h"
#include "live/camer_window.h"
#include "live/live_frame.h"
#include "simulator/imager_model.h"
#include "simulator/simulated_camera.h"
#include "tests/faults/endurance.h"
#include "tests/support/paint_counter.h"

#include <QCheckBox>
#include <QDirIterator>
#include <QEventLoop>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

#include <cmath>

using simulator::SimulatedCamera;

namespace {

constexpr int framesPerMinute = 25 * 60;
constexpr int variety = 250; ///< frames that differ; ten seconds of the scene

/// Every 86 seconds the scene is above the threshold for 40 seconds. In every fourth such excursion
/// somebody stops the alarm; in every fifth the alarm is switched off, and there is no record.
constexpr int cycle = 2160;
constexpr int hotFrom = 300;
constexpr int hotUntil = 1300;

constexpr double threshold = 75.0;

QVector<QByteArray> sceneFrames()
{
    const simulator::Scene scene(simulator::SceneKind::CableJoint);
    QVector<QByteArray> frames;
    for (int i = 0; i < variety; ++i) {
        const simulator::Field field = scene.field(i / 25.0, threshold - 10);
        frames.append(simulator::liveFrame(field, simulator::Palette::Iron, threshold, 0.95));
    }
    return frames;
}

void setMaximum(QByteArray& frame, int tenths)
{
    frame[live::maximumOffset] = char(tenths & 0xFF);
    frame[live::maximumOffset + 1] = char(tenths >> 8);
}

qint64 bytesBelow(const QString& folder)
{
    qint64 bytes = 0;
    QDirIterator files(folder, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        files.next();
        bytes += files.fileInfo().size();
    }
    return bytes;
}

} // namespace

class LiveSoakTest : public QObject
{
    Q_OBJECT

private slots:
    void aDayOfFrames()
    {
        // Whole excursions, so that the end can be compared with the first minute's end.
        const int total = (testing::scale().times + cycle - 1) / cycle * cycle;
        const QString folder = testing::profile().home() + QStringLiteral("/alarms");
        QVERIFY(QDir().mkpath(folder));
        config::create(QStringLiteral("EN"));
        config::replaceAlarmFolder(folder);
        m_frames = sceneFrames();

        MainWindow window;
        window.show();
        SimulatedCamera::instance().plug();
        QTRY_VERIFY(window.liveWindow());
        m_page = window.liveWindow();
        QTRY_VERIFY(SimulatedCamera::instance().isRunning());
        window.resize(window.minimumSizeHint()); // a frame's time goes into scaling, most of all
        auto* const picture = testing::part<QLabel>(m_page, "label_17");
        const testing::PaintCounter paints(*picture);
        check("checkBox", true);
        check("checkBox_2", true);
        check("checkBox_3", true);
        connect(m_page->warnTimer.get(), &QTimer::timeout, this, [this] { ++m_blinks; });

        testing::Holdings firstMinute;
        testing::Pulse pulse;
        QElapsedTimer clock;
        clock.start();
        QEventLoop loop;
        QTimer pump; // the next frame as soon as the last one is shown and nothing else is due
        int sent = 0;
        bool taken = true;
        connect(&pump, &QTimer::timeout, &loop, [&] {
            if (waitsForBlink(sent))
                return;
            taken = sendFrame(sent) && taken;
            ++sent;
            if (sent == framesPerMinute)
                firstMinute = testing::holdings();
            if (sent % (total / 20) == 0)
                qInfo("%d frames, %.0f s: %s", sent, double(clock.elapsed()) / 1000,
                      qPrintable(testing::holdings().text()));
            if (sent == total || !taken)
                loop.quit();
        });
        pump.start(0);
        loop.exec();
        const testing::Holdings end = testing::holdings();
        const double seconds = double(clock.elapsed()) / 1000;

        const double growth = 100.0 * double(end.residentBytes - firstMinute.residentBytes) /
                              double(firstMinute.residentBytes);
        const QStringList names = live::recordNames(folder);
        qInfo("picture %d x %d, %d paints, %.2f ms a frame; longest gap %.0f ms", picture->width(),
              picture->height(), paints.count, seconds * 1000 / total, pulse.longestGap() * 1000);
        qInfo("%lld records, %.1f MB on disk; %d blinks and sounds", qlonglong(names.size()),
              double(bytesBelow(folder)) / 1e6, m_blinks);
        qInfo("first minute: %s", qPrintable(firstMinute.text()));
        qInfo("end:          %s", qPrintable(end.text()));
        qInfo("resident memory %+.2f %%", growth);

        QVERIFY(taken);
        QVERIFY2(paints.count >= total, "frames were not shown");
        QCOMPARE(names.size(), m_records);
        for (const QString& name : names) {
            QCOMPARE(live::recordPicturePaths(folder, name).size(), live::recordPictures);
            QCOMPARE(live::recordReadings(folder, name).threshold, QStringLiteral("75.0"));
        }
        QCOMPARE(testing::part<QListWidget>(m_page, "listWidget")->count(), names.size());
        QCOMPARE(testing::leftOver(firstMinute, end), QString());
        QVERIFY(pulse.longestGap() < testing::hang);
        QVERIFY2(growth <= 2, "memory grew by more than 2 %");
    }

private:
    static bool isAlarmOn(int excursion) { return excursion % 5 != 4; }
    static bool isSilenced(int excursion) { return excursion % 4 == 3; }

    /// Frames come faster than in life, but the alarm's clock is the real one: before an excursion
    /// ends, it has blinked and sounded at least once.
    bool waitsForBlink(int index)
    {
        const int excursion = index / cycle;
        if (index % cycle == hotFrom)
            m_blinksBefore = m_blinks;
        return index % cycle == hotUntil - 1 && isAlarmOn(excursion) && !isSilenced(excursion) &&
               m_blinks == m_blinksBefore;
    }

    bool sendFrame(int index)
    {
        const int phase = index % cycle;
        const int excursion = index / cycle;
        if (phase == 0)
            check("checkBox", isAlarmOn(excursion));
        if (phase == 1 && isAlarmOn(excursion)) {
            check("checkBox_2", true);
            check("checkBox_3", true);
        }
        if (phase == (hotFrom + hotUntil) / 2 && isSilenced(excursion))
            testing::part<QPushButton>(m_page, "pushButton_2")->click();
        if (phase == hotFrom + live::recordPictures && isAlarmOn(excursion))
            ++m_records; // the eighth frame above
        const bool hot = phase >= hotFrom && phase < hotUntil;
        QByteArray& frame = m_frames[index % variety];
        setMaximum(frame, int(std::lround((threshold + (hot ? 8 : -8)) * 10)) + index % 10);
        return SimulatedCamera::instance().deliver(frame);
    }

    void check(const char* box, bool checked)
    {
        m_page->findChild<QCheckBox*>(QLatin1String(box))->setChecked(checked);
    }

    QVector<QByteArray> m_frames;
    camer_window* m_page = nullptr;
    int m_records = 0;
    int m_blinks = 0;
    int m_blinksBefore = 0; ///< at the beginning of the excursion
};

int main(int argc, char** argv)
{
    return testing::runScaled<LiveSoakTest>(argc, argv, 2 * cycle);
}

#include "live_soak_test.moc"
