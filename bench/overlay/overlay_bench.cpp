// SPDX-License-Identifier: MIT
/// What a mouse move, undo and redo cost on the label and a move on the colour bar, repaint
/// included, and what the tools of a report cost.

#include "overlay/tool_history.h"
#include "tests/overlay/overlay_host.h"

#include <QApplication>
#include <QMouseEvent>

#include <benchmark/benchmark.h>

namespace {

constexpr QSize labelSize(620, 800);

void sendMove(QWidget& widget, const QPoint& position, Qt::MouseButtons buttons)
{
    QMouseEvent event(QEvent::MouseMove, position, widget.mapToGlobal(position), Qt::NoButton,
                      buttons, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
}

void showPicture(MyLabel& label)
{
    label.resize(labelSize);
    label.setPixmap(QPixmap::fromImage(
        testing::grayPicture().scaled(labelSize, Qt::KeepAspectRatio, Qt::SmoothTransformation)));
    label.show();
    QApplication::processEvents(); // nothing is painted before the window is exposed
}

/// A quarter of each kind, spread over the picture.
void placeTools(MyLabel& label, int count)
{
    for (int i = 0; i < count / 4; ++i) {
        const int x = 20 + (i * 41) % 180;
        const int y = 20 + (i * 67) % 260;
        label.setToolMode(2);
        label.pointList[label.newIndex].x = x;
        label.pointList[label.newIndex].y = y;
        label.setToolMode(3);
        overlay::LineTool& line = label.lineList[label.newIndex];
        line = {line.name, x, y, 220 - x, 300 - y, line.colour};
        label.setToolMode(4);
        overlay::RectTool& rect = label.rectList[label.newIndex];
        rect = {rect.name, x, y, x + 30, y + 20, rect.colour};
        label.setToolMode(5);
        overlay::CircleTool& circle = label.circleList[label.newIndex];
        circle = {circle.name, x, y, x + 15, y, 15, circle.colour};
    }
    label.setToolMode(1);
}

void moveOverLabel(benchmark::State& state)
{
    MyLabel label;
    showPicture(label);
    placeTools(label, int(state.range(0)));
    label.currentType = QStringLiteral("P");
    label.selectedIndex = 0;
    int step = 0;
    for ([[maybe_unused]] auto _ : state) {
        sendMove(label, {100 + step % 400, 100 + step % 600}, Qt::LeftButton);
        label.repaint();
        ++step;
    }
}
BENCHMARK(moveOverLabel)->Arg(0)->Arg(100)->Unit(benchmark::kMillisecond);

/// The floor of the above: a QLabel of the same size showing the same picture.
void repaintPlainLabel(benchmark::State& state)
{
    QLabel label;
    label.setAlignment(Qt::AlignCenter);
    label.resize(labelSize);
    label.setPixmap(QPixmap::fromImage(
        testing::grayPicture().scaled(labelSize, Qt::KeepAspectRatio, Qt::SmoothTransformation)));
    label.show();
    QApplication::processEvents();
    for ([[maybe_unused]] auto _ : state)
        label.repaint();
}
BENCHMARK(repaintPlainLabel)->Unit(benchmark::kMillisecond);

void selectAmongTools(benchmark::State& state)
{
    MyLabel label;
    showPicture(label);
    placeTools(label, 100);
    const QPoint position(30, 30);
    QMouseEvent press(QEvent::MouseButtonPress, position, label.mapToGlobal(position),
                      Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    for ([[maybe_unused]] auto _ : state)
        QApplication::sendEvent(&label, &press);
}
BENCHMARK(selectAmongTools)->Unit(benchmark::kMicrosecond);

/// A step back or forward among 100 tools, the history as long as it gets.
void undoAndRedo(benchmark::State& state)
{
    MyLabel label;
    showPicture(label);
    placeTools(label, int(state.range(0)));
    overlay::ToolHistory history;
    history.restart(overlay::stateOf(label));
    for (int step = 0; step < overlay::ToolHistory::mostSteps; ++step) {
        overlay::selectNext(label, 1);
        overlay::moveSelected(label, step % 3 - 1, 2);
        history.record(overlay::stateOf(label));
    }
    bool isGoingBack = true;
    for ([[maybe_unused]] auto _ : state) {
        isGoingBack = isGoingBack ? history.canUndo() : !history.canRedo();
        overlay::restore(label, isGoingBack ? history.undo() : history.redo());
        label.repaint();
    }
}
BENCHMARK(undoAndRedo)->Arg(100)->Unit(benchmark::kMillisecond);

/// The tools of a report: painted, and, as a host can still do it, drawn by a frozen label.
void paintForReport(benchmark::State& state)
{
    MyLabel label;
    placeTools(label, int(state.range(0)));
    const overlay::Sheet sheet{{721, 720, 960, 960}};
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(overlay::paintedTools(label, label, sheet));
}
BENCHMARK(paintForReport)->Arg(20)->Arg(100)->Unit(benchmark::kMillisecond);

void drawFrozenLabel(benchmark::State& state)
{
    MyLabel label;
    placeTools(label, int(state.range(0)));
    label.frozenGeometry = true;
    static_cast<overlay::Geometry&>(label) = {721, 720, 960, 960};
    QPixmap nowhere(1, 1);
    for ([[maybe_unused]] auto _ : state) {
        label.pointList[0].x ^= 1; // or its layers would be those of before
        label.render(&nowhere, QPoint(), QRegion(0, 0, 1, 1), QWidget::RenderFlags());
    }
}
BENCHMARK(drawFrozenLabel)->Arg(20)->Arg(100)->Unit(benchmark::kMillisecond);

/// One step of a drag: the host renders the whole picture anew, twice.
void dragColourBar(benchmark::State& state)
{
    testing::OverlayHost host;
    host.resize(780, 820);
    host.show();
    QApplication::processEvents();
    host.bar->dragMarker = 1;
    int step = 0;
    for ([[maybe_unused]] auto _ : state) {
        sendMove(*host.bar, {40, 20 + step % 300}, Qt::LeftButton);
        QApplication::sendPostedEvents();
        QApplication::processEvents();
        ++step;
    }
    state.counters["host paints a step"] =
        benchmark::Counter(host.paints, benchmark::Counter::kAvgIterations);
}
BENCHMARK(dragColourBar)->Unit(benchmark::kMillisecond);

/// The bar's own share of it: taking the move and painting itself without a host.
void dragColourBarAlone(benchmark::State& state)
{
    My_ColorSlider bar;
    QPixmap strip(30, 256);
    strip.fill(Qt::red);
    bar.setPalettePixmap(strip);
    bar.resize(120, 640);
    bar.show();
    QApplication::processEvents();
    bar.dragMarker = 1;
    int step = 0;
    for ([[maybe_unused]] auto _ : state) {
        sendMove(bar, {40, 20 + step % 300}, Qt::LeftButton);
        bar.repaint();
        ++step;
    }
}
BENCHMARK(dragColourBarAlone)->Unit(benchmark::kMillisecond);

} // namespace
