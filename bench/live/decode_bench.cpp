// SPDX-License-Identifier: MIT
// One frame's picture: our conversion against an approximate one of a well-known library, and
// against the formula as written with one setPixel per pixel.
#include "live/live_frame.h"
#include "tests/live/instruction_sets.h"

#include <QImage>

#include <benchmark/benchmark.h>
#include <libyuv/convert_argb.h>
#include <vector>

namespace {

std::vector<uchar> frame()
{
    std::vector<uchar> bytes(live::frameBytes);
    unsigned state = 1;
    for (uchar& byte : bytes)
        byte = uchar((state = state * 1664525U + 1013904223U) >> 24);
    return bytes;
}

void decodeOurs(benchmark::State& state)
{
    const std::vector<uchar> yuyv = frame();
    std::vector<uchar> rgb(live::rgbBytes);
    for ([[maybe_unused]] auto _ : state) {
        live::convertPixels(yuyv.data(), live::picturePixels, rgb.data());
        benchmark::ClobberMemory();
    }
}

/// The same with each instruction set by itself.
void decodeWith(benchmark::State& state)
{
    const std::int64_t set = testing::instructionSets()[std::size_t(state.range(0))];
    state.SetLabel(hwy::TargetName(set));
    const testing::UsedInstructionSet used(set);
    decodeOurs(state);
}

void decodeLibyuv(benchmark::State& state)
{
    const std::vector<uchar> yuyv = frame();
    std::vector<uchar> argb(live::picturePixels * 4);
    for ([[maybe_unused]] auto _ : state) {
        libyuv::YUY2ToARGB(yuyv.data(), live::frameColumns * 2, argb.data(), live::frameColumns * 4,
                           live::frameColumns, live::frameRows);
        benchmark::ClobberMemory();
    }
}

uint clamped(double value)
{
    const int whole = int(value);
    return whole < 0 ? 0U : whole >= 256 ? 255U : uint(whole);
}

void decodeAsWritten(benchmark::State& state)
{
    const std::vector<uchar> yuyv = frame();
    for ([[maybe_unused]] auto _ : state) {
        QImage picture(live::frameColumns, live::frameRows, QImage::Format_RGB888);
        const uchar* group = yuyv.data();
        for (int y = 0; y < live::frameRows; ++y) {
            for (int x = 0; x < live::frameColumns; x += 2, group += 4) {
                const double u = group[1] - 128;
                const double v = group[3] - 128;
                for (int pixel = 0; pixel < 2; ++pixel) {
                    const int luma = group[2 * pixel];
                    picture.setPixel(x + pixel, y,
                                     0xFF000000U | clamped(luma + 1.370705 * v) << 16 |
                                         clamped(luma - 0.698001 * v - 0.337633 * u) << 8 |
                                         clamped(luma + 1.732446 * u));
                }
            }
        }
        benchmark::DoNotOptimize(picture);
    }
}

BENCHMARK(decodeOurs)->Unit(benchmark::kMicrosecond);
BENCHMARK(decodeWith)
    ->DenseRange(0, int(testing::instructionSets().size()) - 1)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(decodeLibyuv)->Unit(benchmark::kMicrosecond);
BENCHMARK(decodeAsWritten)->Unit(benchmark::kMicrosecond);

} // namespace
