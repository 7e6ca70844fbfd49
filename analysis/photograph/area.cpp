// SPDX-License-Identifier: MIT
#include "analysis/photograph/area.h"

#include "overlay/tool_rules.h"

#include <algorithm>

namespace analysis {
namespace {

using namespace format;

template<typename Tool>
Area coveredBy(const Tool& tool, const Temperatures& temperatures, Conversion conversion)
{
    Area area{tool.name, {}};
    if (!overlay::isPlaced(tool))
        return area;
    overlay::forEachPixel(tool, [&](int x, int y) {
        area.readings.push_back(readingAt(x, y, temperatures, conversion));
    });
    return area;
}

} // namespace

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

Area areaOf(const overlay::LineTool& line, const Temperatures& temperatures, Conversion conversion)
{
    return coveredBy(line, temperatures, conversion);
}

Area areaOf(const overlay::RectTool& rect, const Temperatures& temperatures, Conversion conversion)
{
    return coveredBy(rect, temperatures, conversion);
}

Area areaOf(const overlay::CircleTool& circle, const Temperatures& temperatures,
            Conversion conversion)
{
    return coveredBy(circle, temperatures, conversion);
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
