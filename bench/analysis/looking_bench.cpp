// SPDX-License-Identifier: MIT
// Windows beside the picture: how long until their numbers are on the screen.
#include "analysis/windows/analysis_widget.h"
#include "analysis/windows/details_window.h"
#include "analysis/windows/spots_window.h"
#include "analysis/windows/tool_commands.h"
#include "tests/analysis/photograph_writer.h"

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <random>

namespace {

/// A photograph in which every pixel is as likely hot as cold.
class Opened
{
public:
    Opened()
    {
        std::mt19937 random(7);
        testing::Shot shot;
        shot.gray = [&random](int, int) {
            return int(random() % 256);
        };
        QFile file(m_folder.filePath(QStringLiteral("noise.bmp")));
        file.open(QIODevice::WriteOnly);
        file.write(testing::photographBytes(shot));
        file.close();
        window.set_Image_addr(file.fileName(), 0);
        window.resize(1060, 660);
        window.show();
        QApplication::processEvents();
    }
    Analysis_Widget window;

private:
    QTemporaryDir m_folder;
};

/// No tool is selected: the whole picture. From the wish to see it until all is painted.
template<typename Window>
void windowOpened(benchmark::State& state)
{
    Opened opened;
    for ([[maybe_unused]] auto _ : state) {
        auto& window = analysis::BesideWindow::open<Window>(opened.window.commands().viewed());
        QApplication::processEvents();
        state.PauseTiming();
        window.close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QApplication::processEvents();
        state.ResumeTiming();
    }
}

/// As for each move of the mouse while a tool is dragged.
template<typename Window>
void windowFollows(benchmark::State& state)
{
    Opened opened;
    analysis::ViewedPhotograph& viewed = opened.window.commands().viewed();
    analysis::BesideWindow::open<Window>(viewed);
    QApplication::processEvents();
    for ([[maybe_unused]] auto _ : state) {
        viewed.becomeOther();
        QApplication::processEvents();
    }
}

void detailsOpened(benchmark::State& state)
{
    windowOpened<analysis::DetailsWindow>(state);
}

void detailsFollow(benchmark::State& state)
{
    windowFollows<analysis::DetailsWindow>(state);
}

void spotsOpened(benchmark::State& state)
{
    windowOpened<analysis::SpotsWindow>(state);
}

void spotsFollow(benchmark::State& state)
{
    windowFollows<analysis::SpotsWindow>(state);
}

BENCHMARK(detailsOpened)->Unit(benchmark::kMillisecond);
BENCHMARK(detailsFollow)->Unit(benchmark::kMillisecond);
BENCHMARK(spotsOpened)->Unit(benchmark::kMillisecond);
BENCHMARK(spotsFollow)->Unit(benchmark::kMillisecond);

} // namespace
