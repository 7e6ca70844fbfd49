// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/photograph/photograph.h"
#include "analysis/photograph/units.h"
#include "overlay/tool_rules.h"
#include "overlay/tools.h"

#include <cmath>
#include <vector>

/// The readings under a tool, or of the whole picture: what details, histograms and extremes are
/// computed from.
namespace analysis {

/// What a pixel shows in the window: its temperature in the shown unit, as single precision gives
/// it. Everything that is computed from readings is computed in double precision.
struct Reading
{
    int x = 0; ///< 0 … 239
    int y = 0; ///< 0 … 319
    double value = 0.0;

    /// A photograph without a gray span has infinities and not-a-number for temperatures. They are
    /// no readings: whoever computes leaves them out.
    bool isNumber() const { return std::isfinite(value); }
    /// Whether this pixel comes first when the picture is read like a page.
    bool isBefore(const Reading& other) const { return y != other.y ? y < other.y : x < other.x; }
};

/// A typed temperature as precise as readings are, so that it is equal to what is shown as that.
inline double asReading(double typed)
{
    return double(float(typed));
}

/// Some pixels of a picture, each once: column after column from left to right, and down each.
struct Area
{
    QString name; ///< of its tool; empty for the whole picture
    std::vector<Reading> readings;
};

Reading readingAt(int x, int y, const Temperatures& temperatures, Conversion conversion);

/// Exactly the pixels that the tool table measures; of a point the one whose temperature the table
/// shows. None for a tool that is not placed, has no extent, or lies outside the picture.
Area areaOf(const overlay::PointTool& point, const Temperatures& temperatures,
            Conversion conversion);
template<typename Tool>
Area areaOf(const Tool& tool, const Temperatures& temperatures, Conversion conversion)
{
    Area area{tool.name, {}};
    if (!overlay::isPlaced(tool))
        return area;
    overlay::forEachPixel(tool, [&](int x, int y) {
        area.readings.push_back(readingAt(x, y, temperatures, conversion));
    });
    return area;
}

/// One for each row of the tool table, in its order: unplaced tools have none.
std::vector<Area> areasOf(const overlay::Tools& tools, const Temperatures& temperatures,
                          Conversion conversion);

/// The name of the whole picture in files and on the command line.
constexpr const char* pictureInFiles = "picture";
Area wholePicture(const Temperatures& temperatures, Conversion conversion);

} // namespace analysis
