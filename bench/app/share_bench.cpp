// SPDX-License-Identifier: MIT
// The share of a core that the real main window takes, second after second. One iteration is one
// second of it; its processor time is the share.
#include "analysis/windows/photo_window.h"
#include "app/main_window.h"
#include "bench/live/live_scene.h"
#include "live/camer_window.h"
#include "simulator/photograph.h"
#include "simulator/scene.h"
#include "simulator/simulated_camera.h"
#include "simulator/simulated_disk.h"
#include "tests/support/paint_counter.h"

#include <QApplication>
#include <QEventLoop>
#include <QListWidget>
#include <QTimer>

#include <benchmark/benchmark.h>

namespace {

constexpr int framesPerSecond = 25;

/// Lets a second pass in which `tick` is called with every frame's time.
template<typename Tick>
void oneSecond(const Tick& tick)
{
    QEventLoop loop;
    QTimer timer;
    timer.setTimerType(Qt::PreciseTimer);
    int ticks = 0;
    QObject::connect(&timer, &QTimer::timeout, &loop, [&] {
        tick();
        if (++ticks == framesPerSecond)
            loop.quit();
    });
    timer.start(1000 / framesPerSecond);
    loop.exec();
}

void oneSecond()
{
    QEventLoop loop;
    QTimer::singleShot(1000, &loop, &QEventLoop::quit);
    loop.exec();
}

void waiting(benchmark::State& state)
{
    MainWindow window;
    window.show();
    oneSecond();
    for ([[maybe_unused]] auto _ : state)
        oneSecond();
}

/// A photograph opened from the imager's disk.
void analysisIdle(benchmark::State& state)
{
    simulator::SimulatedDisk disk;
    disk.plug();
    const simulator::Scene scene(simulator::SceneKind(0), 1);
    disk.store(simulator::photograph(scene.field(0, scene.usualHotSpot()), {}), 0);
    MainWindow window;
    window.resize(1300, 800);
    window.show();
    window.timeout_connect();
    photo_window& browser = *window.browser();
    QListWidgetItem photograph(browser.fileNames.value(0));
    browser.list_item_doubleclicked(&photograph);
    oneSecond();
    const testing::PaintCounter paints(window, testing::PaintCounter::Of::WidgetAndParts);
    for ([[maybe_unused]] auto _ : state)
        oneSecond();
    state.counters["paints"] = paints.count;
}

/// Frames through the camera to the painted picture; every frame brings another temperature.
void live(benchmark::State& state)
{
    simulator::SimulatedCamera& camera = simulator::SimulatedCamera::instance();
    camera.plug();
    MainWindow window;
    window.show();
    window.timeout_connect();
    bench::fitLivePicture(window);
    const QByteArray frames[] = {bench::liveFrame(362), bench::liveFrame(363)};
    std::size_t next = 0;
    const auto frame = [&] {
        camera.deliver(frames[next ^= 1U]);
    };
    oneSecond(frame);
    for ([[maybe_unused]] auto _ : state)
        oneSecond(frame);
    if (window.liveWindow()->recentFrames.isEmpty())
        state.SkipWithError("no picture was shown");
    camera.unplug();
}

void liveFloor(benchmark::State& state)
{
    bench::LiveFloor floor(QSize(1000, 1000));
    const QImage picture = bench::livePictureOf(bench::liveFrame());
    const auto frame = [&] {
        floor.show(picture);
    };
    oneSecond(frame);
    for ([[maybe_unused]] auto _ : state)
        oneSecond(frame);
}

BENCHMARK(waiting)->Iterations(1)->MeasureProcessCPUTime()->Unit(benchmark::kMillisecond);
BENCHMARK(analysisIdle)->Iterations(1)->MeasureProcessCPUTime()->Unit(benchmark::kMillisecond);
BENCHMARK(live)->Iterations(1)->MeasureProcessCPUTime()->Unit(benchmark::kMillisecond);
BENCHMARK(liveFloor)->Iterations(1)->MeasureProcessCPUTime()->Unit(benchmark::kMillisecond);

} // namespace
