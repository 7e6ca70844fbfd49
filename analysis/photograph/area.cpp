// SPDX-License-Identifier: MIT
#include "analysis/photograph/area.h"

#include <algorithm>

namespace analysis {

using namespace format;

Reading readingAt(int x, int y, const Temperatures& temperatures, Conversion conversion)
{
    return {x, y, double(shown(temperatures[temperatureIndex(x, y)], conversion))};
}

Area areaOf(const overlay::PointTool& point, const Temperatures& temperatures,
            Conversion conversion)
{
    if (!overlay::isPlaced(point))
        return {point.name, {}};
    const int x = std::clamp(point.x, 0, columns - 1);
    const int y = std::clamp(point.y, 0, rows - 1);
    return {point.name, {readingAt(x, y, temperatures, conversion)}};
}

std::vector<Area> areasOf(const overlay::Tools& tools, const Temperatures& temperatures,
                          Conversion conversion)
{
    std::vector<Area> areas;
    overlay::forEachTool(tools, [&](const auto& tool) {
        if (overlay::isPlaced(tool))
            areas.push_back(areaOf(tool, temperatures, conversion));
    });
    return areas;
}

Area wholePicture(const Temperatures& temperatures, Conversion conversion)
{
    Area area;
    area.readings.reserve(temperatures.size());
    for (int x = 0; x < columns; ++x) {
        for (int y = 0; y < rows; ++y)
            area.readings.push_back(readingAt(x, y, temperatures, conversion));
    }
    return area;
}

} // namespace analysis
