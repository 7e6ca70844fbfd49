// SPDX-License-Identifier: MIT
#include "analysis/photograph/profile.h"

#include "overlay/tool_rules.h"

#include <algorithm>
#include <cmath>

namespace analysis {

using namespace format;

std::vector<ProfilePoint> profileOf(const overlay::LineTool& line, const Temperatures& temperatures,
                                    Conversion conversion)
{
    const double dx = double(line.x2) - line.x1;
    const double dy = double(line.y2) - line.y1;
    const bool isFlat = std::abs(dx) >= std::abs(dy);
    const double steps = std::max(std::abs(dx), std::abs(dy));
    if (!overlay::isPlaced(line) || steps == 0.0)
        return {};

    // Along its longer side the line takes one pixel each step: those outside need no look.
    const double start = isFlat ? line.x1 : line.y1;
    const double last = isFlat ? columns - 1 : rows - 1;
    const bool isForward = (isFlat ? dx : dy) > 0.0;
    const auto begin = qint64(std::max(0.0, isForward ? -start : start - last));
    const auto end = qint64(std::min(steps, isForward ? last - start : start));
    const double stepLength = std::sqrt(dx * dx + dy * dy) / steps;

    std::vector<ProfilePoint> profile;
    for (qint64 step = begin; step <= end; ++step) {
        const double x = line.x1 + std::round(double(step) * dx / steps);
        const double y = line.y1 + std::round(double(step) * dy / steps);
        if (x < 0.0 || x >= columns || y < 0.0 || y >= rows)
            continue;
        const Reading reading = readingAt(int(x), int(y), temperatures, conversion);
        profile.push_back({double(step) * stepLength, reading.x, reading.y, reading.value});
    }
    return profile;
}

} // namespace analysis
