// SPDX-License-Identifier: MIT
#pragma once

/// What a black body radiates in the band that an imager of this kind sees, 8 to 14 µm, and which
/// temperature a radiance is of. docs/correction.md has the formula and its sources.
///
/// Radiances are in W/(m²·sr), temperatures in °C. Any thread; the table is made on first use, in a
/// few milliseconds.
namespace analysis::radiance {

constexpr double shortestWavelength = 8e-6; ///< metres
constexpr double longestWavelength = 14e-6;

/// The ends of the table. Raw images hold up to 3,822.8 °C.
constexpr double lowest = -150.0;
constexpr double highest = 4000.0;
constexpr double step = 0.25; ///< between straight lines less than 0.0005 °C off the curve

/// Planck's law integrated over the band by Simpson's rule in 32 steps, which from −40 to 1,000 °C
/// is less than 0.0003 °C off. Above absolute zero only.
double integrated(double celsius);

/// The same by the table; not-a-number outside of it.
double of(double celsius);

/// The temperature of a black body with this radiance, which is exactly what of() goes the other
/// way; not-a-number outside the table. Higher for a higher radiance.
double temperatureOf(double radiance);

} // namespace analysis::radiance
