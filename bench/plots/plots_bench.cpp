// SPDX-License-Identifier: MIT
/// What it costs to show other numbers: a line that is dragged, with its profile beside it.

#include "plots/plot_view.h"
#include "tests/plots/sample_plots.h"

#include <QApplication>

#include <array>
#include <benchmark/benchmark.h>

namespace {

/// Other numbers, whole repaint included; the cursor is on the curve.
void plotRedrawn(benchmark::State& state)
{
    plots::PlotView view;
    view.resize(800, 600);
    std::array<plots::Plot, 2> turns{testing::wave(int(state.range(0))),
                                     testing::wave(int(state.range(0)))};
    for (QPointF& point : turns[1].curves.front().points)
        point.ry() += 3;
    view.setPlot(turns[0]);
    view.setCursor(plots::Place{0, 10});
    view.show();
    QApplication::processEvents();
    std::size_t turn = 0;
    for ([[maybe_unused]] auto _ : state) {
        turn = 1 - turn;
        view.setPlot(turns[turn]);
        view.repaint();
        QApplication::processEvents();
    }
}
BENCHMARK(plotRedrawn)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);

} // namespace
