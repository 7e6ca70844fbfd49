// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/photograph/area.h"

namespace analysis {

/// One pixel of a profile.
struct ProfilePoint
{
    double distance; ///< along the line from its start, in pixels
    int x;
    int y;
    double value; ///< the pixel's reading; may be infinite or not a number
};

/// The temperatures along a line, from its start to its end, both included: for each column of a
/// flat line, or row of a steep one, the pixel nearest to the line, of two the one further from the
/// start. Thinner than the area of the same line, which the tool table measures. What lies outside
/// the picture is left out, but distances count from the line's start wherever that is. Empty for a
/// line that is not placed or has no extent.
std::vector<ProfilePoint> profileOf(const overlay::LineTool& line, const Temperatures& temperatures,
                                    Conversion conversion);

} // namespace analysis
