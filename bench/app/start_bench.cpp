// SPDX-License-Identifier: MIT
// From the start of the process to its first painted window, of the program itself and of one that
// has nothing but a window. The time is processor time; "elapsed" is what the user waits.
#include "bench/child_process.h"

#include <benchmark/benchmark.h>

namespace {

void firstWindow(benchmark::State& state, const char* program)
{
    qputenv("QT_PLUGIN_PATH", PLUGINS);
    qputenv("QT_QPA_GENERIC_PLUGINS", "first_paint");
    double elapsed = 0;
    for ([[maybe_unused]] auto _ : state) {
        const bench::ChildProcess started = bench::run(QString::fromLocal8Bit(program), {});
        if (!started.succeeded)
            state.SkipWithError("the program did not show a window");
        state.SetIterationTime(started.processor);
        elapsed += started.elapsed;
    }
    state.counters["elapsed"] = benchmark::Counter(elapsed, benchmark::Counter::kAvgIterations);
}

BENCHMARK_CAPTURE(firstWindow, thermadesk, THERMADESK)
    ->Iterations(3)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(firstWindow, empty, EMPTY_WINDOW)
    ->Iterations(3)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

} // namespace
