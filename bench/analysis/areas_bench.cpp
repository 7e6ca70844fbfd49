// SPDX-License-Identifier: MIT
/// What is computed of a whole picture beside its table: details, extremes, other readings.

#include "analysis/photograph/correction.h"
#include "analysis/photograph/details.h"
#include "analysis/photograph/extremes.h"

#include <benchmark/benchmark.h>
#include <memory>
#include <random>

namespace {

/// Every pixel has a temperature of its own, in no order.
std::unique_ptr<analysis::Temperatures> anyTemperatures()
{
    std::mt19937 random(7);
    std::uniform_real_distribution<float> anyTemperature(-40, 1000);
    auto temperatures = std::make_unique<analysis::Temperatures>();
    for (float& temperature : *temperatures)
        temperature = anyTemperature(random);
    return temperatures;
}

/// All numbers of the details window, from the matrix on.
void pictureDetails(benchmark::State& state)
{
    const auto temperatures = anyTemperatures();
    for ([[maybe_unused]] auto _ : state) {
        const analysis::Area picture = wholePicture(*temperatures, analysis::toFahrenheit);
        benchmark::DoNotOptimize(detailsOf(picture));
        benchmark::DoNotOptimize(shareAbove(picture, 500.0));
        benchmark::DoNotOptimize(shareBelow(picture, 500.0));
    }
}

/// Every ninth pixel is an extreme: no photograph has more.
void pictureExtremes(benchmark::State& state)
{
    constexpr int count = 100;
    constexpr double distance = 10.0;
    const auto temperatures = anyTemperatures();
    for ([[maybe_unused]] auto _ : state) {
        const analysis::Area picture = wholePicture(*temperatures, analysis::unchanged);
        benchmark::DoNotOptimize(extremesOf(picture, count, distance));
    }
}

void pictureCorrected(benchmark::State& state)
{
    const auto stored = anyTemperatures();
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(analysis::correctedTemperatures(
            *stored, analysis::Unit::Fahrenheit, {0.95, 0.6, 20.0}));
}

BENCHMARK(pictureDetails)->Unit(benchmark::kMicrosecond);
BENCHMARK(pictureExtremes)->Unit(benchmark::kMicrosecond);
BENCHMARK(pictureCorrected)->Unit(benchmark::kMicrosecond);

} // namespace
