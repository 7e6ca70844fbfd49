#include "app/main_window.h"
#include "simulator/simulated_camera.h"

#include <QApplication>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace {

constexpr double pollsPerSecond = 1.0 / 0.3;

/// The share of one core that looking for the imager takes; the budget is 1 %.
void reportShare(benchmark::State& state)
{
    // Seconds per poll × polls per second × 100: the counter divides by the time of one iteration
    // and is then inverted.
    state.counters["core_percent"] = benchmark::Counter(
        1.0 / (100.0 * pollsPerSecond),
        benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void waiting(benchmark::State& state)
{
    MainWindow window;
    for (auto _ : state)
        window.timeout_connect();
    reportShare(state);
}

void live(benchmark::State& state)
{
    simulator::SimulatedCamera::instance().plug();
    MainWindow window;
    window.timeout_connect();
    for (auto _ : state)
        window.timeout_connect();
    reportShare(state);
    simulator::SimulatedCamera::instance().unplug();
}

BENCHMARK(waiting);
BENCHMARK(live);

} // namespace

int main(int argc, char** argv)
{
    const QTemporaryDir home;
    qputenv("HOME", home.path().toUtf8());
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
