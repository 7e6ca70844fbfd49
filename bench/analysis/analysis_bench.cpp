#include "analysis/file_buffer.h"
#include "analysis/photograph.h"
#include "analysis/tool_statistics.h"

#include <benchmark/benchmark.h>

#include <memory>
#include <random>

namespace {

struct Tools
{
    QVector<overlay::PointTool> points;
    QVector<overlay::LineTool> lines;
    QVector<overlay::RectTool> rects;
    QVector<overlay::CircleTool> circles;
};

Tools mixed(bool largest)
{
    std::mt19937 random(7);
    const auto upTo = [&random](int end) {
        return std::uniform_int_distribution<int>(0, end - 1)(random);
    };
    Tools tools;
    for (int i = 0; i < 25; ++i) {
        overlay::PointTool point;
        point.x = upTo(240);
        point.y = upTo(320);
        tools.points.append(point);
        overlay::LineTool line;
        line.x1 = largest ? 0 : upTo(240);
        line.y1 = largest ? i : upTo(320);
        line.x2 = largest ? 239 : upTo(240);
        line.y2 = largest ? 319 - i : upTo(320);
        tools.lines.append(line);
        overlay::RectTool rect;
        rect.x1 = largest ? 0 : upTo(240);
        rect.y1 = largest ? 0 : upTo(320);
        rect.x2 = largest ? 239 : upTo(240);
        rect.y2 = largest ? 319 : upTo(320);
        tools.rects.append(rect);
        overlay::CircleTool circle;
        circle.cx = largest ? 120 : upTo(240);
        circle.cy = largest ? 160 : upTo(320);
        circle.radius = largest ? 119 : upTo(120);
        tools.circles.append(circle);
    }
    return tools;
}

void rows(benchmark::State& state)
{
    const Tools tools = mixed(state.range(0) != 0);
    auto t = std::make_unique<analysis::Temperatures>();
    for (std::size_t i = 0; i < t->size(); ++i)
        (*t)[i] = float(i % 971) / 10;
    for (auto _ : state)
        benchmark::DoNotOptimize(analysis::toolRows({tools.points, tools.lines, tools.rects, tools.circles}, *t, {}));
}
void areas(benchmark::State& state)
{
    Tools tools = mixed(state.range(0) != 0);
    if (state.range(1) != 1) tools.lines.clear();
    if (state.range(1) != 2) tools.rects.clear();
    if (state.range(1) != 3) tools.circles.clear();
    auto t = std::make_unique<analysis::Temperatures>();
    for (std::size_t i = 0; i < t->size(); ++i)
        (*t)[i] = float(i % 971) / 10;
    for (auto _ : state)
        benchmark::DoNotOptimize(analysis::measureAreas({tools.points, tools.lines, tools.rects, tools.circles}, *t));
}
void decode(benchmark::State& state)
{
    std::vector<uchar> b(2000000);
    for (int i = 0; i < 410000; ++i) b[std::size_t(i)] = uchar(i * 7 / 3);
    int m = int(state.range(0));
    int p = m == 1 ? 230969 : 307766;
    b[p + 10] = 5; b[p + 11] = b[p + 12] = b[p + 13] = 0;
    auto t = std::make_unique<analysis::Photograph>();
    for (auto _ : state)
        benchmark::DoNotOptimize(analysis::read(b.data(), int(state.range(1)), m, *t));
}
BENCHMARK(rows)->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);
BENCHMARK(areas)->ArgsProduct({{0,1},{1,2,3}})->Unit(benchmark::kMicrosecond);
BENCHMARK(decode)->Args({0,300000})->Args({1,300000})->Args({0,406096})->Unit(benchmark::kMicrosecond);

} // namespace
BENCHMARK_MAIN();
