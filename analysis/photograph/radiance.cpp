// SPDX-License-Identifier: MIT
#include "analysis/photograph/radiance.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace analysis::radiance {
namespace {

// CODATA 2018; all three are exact since the units were defined by them.
constexpr double planck = 6.62607015e-34;  // J·s
constexpr double light = 299792458.0;      // m/s
constexpr double boltzmann = 1.380649e-23; // J/K
constexpr double absoluteZero = -273.15;   // °C

constexpr double nothing = std::numeric_limits<double>::quiet_NaN();

/// Spectral radiance, W/(m²·sr·m).
double spectral(double wavelength, double kelvin)
{
    return 2 * planck * light * light / std::pow(wavelength, 5) /
           std::expm1(planck * light / (wavelength * boltzmann * kelvin));
}

constexpr std::size_t entries = std::size_t((highest - lowest) / step) + 1;
using Table = std::array<double, entries>;

const Table& table()
{
    static const Table filled = [] {
        Table radiances{};
        for (std::size_t i = 0; i < entries; ++i)
            radiances[i] = integrated(lowest + step * double(i));
        return radiances;
    }();
    return filled;
}

} // namespace

double integrated(double celsius)
{
    constexpr int steps = 32;
    constexpr double width = (longestWavelength - shortestWavelength) / steps;
    const double kelvin = celsius - absoluteZero;
    double sum = spectral(shortestWavelength, kelvin) + spectral(longestWavelength, kelvin);
    for (int i = 1; i < steps; ++i)
        sum += (i % 2 == 1 ? 4 : 2) * spectral(shortestWavelength + i * width, kelvin);
    return sum * width / 3;
}

double of(double celsius)
{
    if (!(celsius >= lowest && celsius <= highest))
        return nothing;
    const double place = (celsius - lowest) / step;
    const std::size_t below = std::min(std::size_t(place), entries - 2);
    const double* const ends = table().data() + below;
    return ends[0] + (place - double(below)) * (ends[1] - ends[0]);
}

double temperatureOf(double radiance)
{
    const Table& radiances = table();
    if (!(radiance >= radiances.front() && radiance <= radiances.back()))
        return nothing;
    const auto* const above =
        std::upper_bound(radiances.begin() + 1, radiances.end() - 1, radiance);
    const double* const ends = above - 1;
    const double part = (radiance - ends[0]) / (ends[1] - ends[0]);
    return lowest + step * (double(ends - radiances.data()) + part);
}

} // namespace analysis::radiance
