// SPDX-License-Identifier: MIT
#pragma once

#include "overlay/tools.h"

/// Tools with a name and a place, in few words.
namespace testing {

inline overlay::PointTool point(int x, int y)
{
    return {QStringLiteral("P0"), x, y};
}

inline overlay::LineTool line(int x1, int y1, int x2, int y2)
{
    return {QStringLiteral("L0"), x1, y1, x2, y2};
}

inline overlay::RectTool rect(int x1, int y1, int x2, int y2)
{
    return {QStringLiteral("R0"), x1, y1, x2, y2};
}

inline overlay::CircleTool circle(int cx, int cy, int radius)
{
    return {QStringLiteral("C0"), cx, cy, -1, -1, radius};
}

} // namespace testing
