// SPDX-License-Identifier: MIT
// What a frame costs on the live page, and what a record costs within a frame's time.
#include "bench/live/live_scene.h"
#include "live/alarm_records.h"
#include "live/camer_window.h"
#include "live/live_frame.h"
#include "live/qt_camera_capture.h"

#include <QAbstractVideoBuffer>
#include <QApplication>
#include <QDateTime>
#include <QDir>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace {

class Buffer : public QAbstractVideoBuffer
{
public:
    explicit Buffer(const QByteArray& bytes) : QAbstractVideoBuffer(NoHandle), m_bytes(bytes) {}
    MapMode mapMode() const override { return m_mode; }
    uchar* map(MapMode mode, int* bytes, int* bytesPerLine) override
    {
        m_mode = mode;
        *bytes = m_bytes.size();
        *bytesPerLine = live::frameColumns * 2;
        return reinterpret_cast<uchar*>(m_bytes.data());
    }
    void unmap() override { m_mode = NotMapped; }

private:
    QByteArray m_bytes;
    MapMode m_mode = NotMapped;
};

QVideoFrame videoFrame(int maximumTenths)
{
    return {new Buffer(bench::liveFrame(maximumTenths)), QSize(live::frameColumns, live::frameRows),
            QVideoFrame::Format_YUYV};
}

/// The page with its picture at 600 × 800, on the screen.
class Page
{
public:
    Page()
    {
        window.show();
        bench::fitLivePicture(window);
    }
    camer_window window;
};

/// Until memory, glyphs and lists are there.
template<typename Frame>
void warmUp(const Frame& frame)
{
    for (int i = 0; i < 2 * live::recordPictures; ++i)
        frame();
}

/// From the surface to the painted label; every frame brings another temperature.
void frameOnThePage(benchmark::State& state)
{
    Page page;
    const QVideoFrame frames[] = {videoFrame(362), videoFrame(363)};
    std::size_t next = 0;
    const auto frame = [&] {
        page.window.capture->present(frames[next ^= 1U]);
        QApplication::processEvents();
    };
    warmUp(frame);
    for ([[maybe_unused]] auto _ : state)
        frame();
}

void frameFloor(benchmark::State& state)
{
    bench::LiveFloor floor(Page().window.size());
    const QImage picture = bench::livePictureOf(bench::liveFrame());
    const auto frame = [&] {
        floor.show(picture);
        QApplication::processEvents();
    };
    warmUp(frame);
    for ([[maybe_unused]] auto _ : state)
        frame();
}

QList<QImage> pictures()
{
    QList<QImage> images;
    for (int i = 0; i < live::recordPictures; ++i)
        images.append(bench::livePictureOf(bench::liveFrame()));
    return images;
}

/// Writing the record and bringing the lists up to date, with as many records there already.
void alarmRecord(benchmark::State& state)
{
    const QTemporaryDir folder;
    for (int i = 0; i < int(state.range(0)); ++i)
        QDir(folder.path()).mkdir(QStringLiteral("2000010112%1").arg(i, 4, 10, QLatin1Char('0')));
    Page page;
    page.window.setAlarmFolder(folder.path());
    page.window.recentFrames = pictures();
    QApplication::processEvents();
    int records = 0;
    for ([[maybe_unused]] auto _ : state) {
        page.window.saveAlarmRecord();
        state.PauseTiming();
        for (const QString& name : live::recordNames(folder.path())) {
            if (name.startsWith(QLatin1String("2000")))
                continue;
            QDir(folder.filePath(name)).removeRecursively();
            QFile::remove(folder.filePath(name + QStringLiteral(".ini")));
            ++records;
        }
        page.window.refreshHistory();
        state.ResumeTiming();
    }
    if (records != int(state.iterations()))
        state.SkipWithError("records are missing");
}

/// A page over a folder of many records, from nothing to both lists.
void historyListed(benchmark::State& state)
{
    const QTemporaryDir folder;
    for (int i = 0; i < int(state.range(0)); ++i)
        QDir(folder.path()).mkdir(QStringLiteral("2000010112%1").arg(i, 4, 10, QLatin1Char('0')));
    Page page;
    for ([[maybe_unused]] auto _ : state) {
        page.window.setAlarmFolder(folder.path());
        QApplication::processEvents();
        state.PauseTiming();
        page.window.setAlarmFolder(QString());
        state.ResumeTiming();
    }
}

BENCHMARK(frameOnThePage)->MeasureProcessCPUTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(frameFloor)->MeasureProcessCPUTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(alarmRecord)->Arg(0)->Arg(5000)->MeasureProcessCPUTime()->Unit(benchmark::kMillisecond);
BENCHMARK(historyListed)->Arg(5000)->Unit(benchmark::kMillisecond);

} // namespace
