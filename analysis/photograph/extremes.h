// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/photograph/area.h"

namespace analysis {

/// Where an area is hotter, or colder, than around.
struct Extremes
{
    std::vector<Reading> hottest; ///< hottest first
    std::vector<Reading> coldest; ///< coldest first
};

/// What is looked for where nobody says otherwise.
constexpr int usualExtremes = 5;       ///< of either kind
constexpr double usualDistance = 10.0; ///< pixels

/// The `count` hottest and coldest local extremes that are further than `distance` pixels from each
/// other (the hottest first, then each next one that is far enough from all before it).
///
/// A local extreme is a patch of equal readings, mostly a single pixel, no neighbour of which in
/// the area is hotter (colder); a pixel has up to eight neighbours. It stands at its pixel nearest
/// to the patch's middle, of several at the first in reading order; of equally hot ones the first
/// in reading order comes first. An area of one temperature is one patch, hottest and coldest at
/// once. Pixels without a reading are as if outside.
Extremes extremesOf(const Area& area, int count, double distance);

} // namespace analysis
