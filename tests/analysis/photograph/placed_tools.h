// SPDX-License-Identifier: MIT
#pragma once

#include "overlay/tools.h"

/// Tools with a name and a place, in few words.
namespace testing {

inline overlay::PointTool point(int x, int y)
{
    overlay::PointTool tool;
    tool.name = QStringLiteral("P0");
    tool.x = x;
    tool.y = y;
    return tool;
}

inline overlay::LineTool line(int x1, int y1, int x2, int y2)
{
    overlay::LineTool tool;
    tool.name = QStringLiteral("L0");
    tool.x1 = x1;
    tool.y1 = y1;
    tool.x2 = x2;
    tool.y2 = y2;
    return tool;
}

inline overlay::RectTool rect(int x1, int y1, int x2, int y2)
{
    overlay::RectTool tool;
    tool.name = QStringLiteral("R0");
    tool.x1 = x1;
    tool.y1 = y1;
    tool.x2 = x2;
    tool.y2 = y2;
    return tool;
}

inline overlay::CircleTool circle(int cx, int cy, int radius)
{
    overlay::CircleTool tool;
    tool.name = QStringLiteral("C0");
    tool.cx = cx;
    tool.cy = cy;
    tool.radius = radius;
    return tool;
}

} // namespace testing
