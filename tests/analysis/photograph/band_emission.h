// SPDX-License-Identifier: MIT
#pragma once

#include <cmath>
#include <vector>

/// What a black body radiates in a band, by other means than the product's: the series for the part
/// of its radiation below a wavelength, times the law of the fourth power.
namespace testing {

/// From the first to the last at the most.
inline std::vector<double> steps(double first, double last, double step)
{
    std::vector<double> all;
    while (first + step * double(all.size()) <= last)
        all.push_back(first + step * double(all.size()));
    return all;
}

/// The part of a black body's radiation below a wavelength (metres).
inline double partBelow(double wavelength, double kelvin)
{
    const double v = 0.01438776877 / (wavelength * kelvin);
    const double pi = std::acos(-1.0);
    double sum = 0;
    for (int n = 1; n * v < 60; ++n)
        sum += std::exp(-n * v) *
               (v * v * v / n + 3 * v * v / (n * n) + 6 * v / std::pow(n, 3) + 6 / std::pow(n, 4));
    return 15 / std::pow(pi, 4) * sum;
}

struct Band
{
    double from = 8e-6;
    double to = 14e-6;
};

/// W/(m²·sr)
inline double bandEmission(double celsius, Band band = {})
{
    const double kelvin = celsius + 273.15;
    return 5.670374419e-8 * std::pow(kelvin, 4) / std::acos(-1.0) *
           (partBelow(band.to, kelvin) - partBelow(band.from, kelvin));
}

/// Where a rising function of a temperature takes a value: between −260 and 6,000 °C, by halves.
template<typename Function>
double whereIs(double value, Function function)
{
    double low = -260;
    double high = 6000;
    for (int i = 0; i < 60; ++i) {
        const double middle = (low + high) / 2;
        (function(middle) < value ? low : high) = middle;
    }
    return low;
}

/// The temperature that explains with the second emissivity what was read with the first. `signal`
/// is what a temperature radiates.
template<typename Signal>
double explained(double reading, double first, double second, double surroundings, Signal signal)
{
    const double reflected = signal(surroundings);
    const double received = first * signal(reading) + (1 - first) * reflected;
    return whereIs(received, [&](double temperature) {
        return second * signal(temperature) + (1 - second) * reflected;
    });
}

} // namespace testing
