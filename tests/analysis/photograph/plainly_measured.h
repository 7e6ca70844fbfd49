// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/photograph/tool_statistics.h"

#include <algorithm>
#include <cmath>
#include <type_traits>
#include <vector>

/// The temperatures under tools, by the rules written out once more.
namespace testing {

inline bool covers(const overlay::LineTool& t, int x, int y)
{
    if (t.x1 == t.x2 && t.y1 == t.y2)
        return false;
    const int dx = t.x2 - t.x1;
    const int dy = t.y2 - t.y1;
    const double u = double((y - t.y1) * dy + (x - t.x1) * dx) / double(dx * dx + dy * dy);
    const int fx = t.x1 + int(dx * u);
    const int fy = t.y1 + int(dy * u);
    return int(std::sqrt(double((x - fx) * (x - fx) + (y - fy) * (y - fy)))) < 2;
}

inline bool covers(const overlay::RectTool&, int, int)
{
    return true;
}

inline bool covers(const overlay::CircleTool& t, int x, int y)
{
    const int dx = x - t.cx;
    const int dy = y - t.cy;
    return int(std::sqrt(double(dx * dx + dy * dy))) <= t.radius;
}

struct Box
{
    int x1, y1, x2, y2;
};

template<typename Cornered>
Box boxOf(const Cornered& t)
{
    return {std::min(t.x1, t.x2), std::min(t.y1, t.y2), std::max(t.x1, t.x2), std::max(t.y1, t.y2)};
}
inline Box boxOf(const overlay::CircleTool& t)
{
    return {t.cx - t.radius, t.cy - t.radius, t.cx + t.radius, t.cy + t.radius};
}

template<typename Tool>
analysis::AreaStatistics plainly(const Tool& tool, const analysis::Temperatures& temperatures)
{
    analysis::AreaStatistics result{std::is_same_v<Tool, overlay::CircleTool> ? -50.0F : -10.0F,
                                    2000.0F, 0.0F, 0};
    float sum = 0.0F;
    const Box box = testing::boxOf(tool);
    for (int x = box.x1; x <= box.x2; ++x) {
        for (int y = box.y1; y <= box.y2; ++y) {
            if (x < 0 || x > 239 || y < 0 || y > 319 || !testing::covers(tool, x, y))
                continue;
            const float t = temperatures[std::size_t(x * 320 + y)];
            if (t > result.high)
                result.high = t;
            if (t < result.low)
                result.low = t;
            sum += t;
            ++result.pixels;
        }
    }
    if (result.pixels > 0)
        result.average = sum / float(result.pixels);
    return result;
}

inline std::vector<analysis::AreaStatistics> plainly(const overlay::Tools& tools,
                                                     const analysis::Temperatures& temperatures)
{
    std::vector<analysis::AreaStatistics> all;
    for (const overlay::LineTool& tool : tools.lineList)
        all.push_back(plainly(tool, temperatures));
    for (const overlay::RectTool& tool : tools.rectList)
        all.push_back(plainly(tool, temperatures));
    for (const overlay::CircleTool& tool : tools.circleList)
        all.push_back(plainly(tool, temperatures));
    return all;
}

} // namespace testing
