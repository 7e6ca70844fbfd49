// SPDX-License-Identifier: MIT
#pragma once

#include "overlay/tools.h"

#include <array>
#include <cmath>
#include <optional>

/// The rules of the measurement tools, kind by kind: where they lie, what hits them, which pixels
/// they measure, what a press and a drag make of them. Whoever needs one of these answers asks
/// here. Everything is arithmetic on image coordinates.
namespace overlay {

// Distances

/// The Euclidean distance in whole pixels, toward zero.
inline int truncatedDistance(int x1, int y1, int x2, int y2)
{
    const double dx = double(x2) - x1;
    const double dy = double(y2) - y1;
    return int(std::sqrt(dx * dx + dy * dy));
}

/// The truncated distance of (x, y) from the infinite line through the tool's ends, measured to the
/// foot of the perpendicular with each of its coordinates truncated toward the start. Nothing when
/// the ends coincide: such a line has no direction.
inline std::optional<int> truncatedDistance(const LineTool& line, int x, int y)
{
    const double dx = double(line.x2) - line.x1;
    const double dy = double(line.y2) - line.y1;
    const double square = dx * dx + dy * dy;
    if (square == 0.0)
        return std::nullopt;
    const double along = ((double(y) - line.y1) * dy + (double(x) - line.x1) * dx) / square;
    const int footX = line.x1 + int(dx * along);
    const int footY = line.y1 + int(dy * along);
    return truncatedDistance(footX, footY, x, y);
}

// What lies under the pointer

/// How far from a point a press may be, in widget pixels; converted to image pixels before use.
constexpr int pointToleranceWidth = 12;
constexpr int pointToleranceHeight = 16;

/// A press on the picture, with the point's tolerance in image pixels; half of it counts on either
/// side.
struct Press
{
    int x;
    int y;
    int toleranceX = 0;
    int toleranceY = 0;
};

/// Within the tolerance of a place two pixels left of and above the point, where the hand expects
/// the cross it sees.
bool hits(const PointTool& point, const Press& press);
/// At most 2 pixels from the line and inside its bounding box, edges included.
bool hits(const LineTool& line, const Press& press);
/// Strictly inside; the border itself is not a hit.
bool hits(const RectTool& rect, const Press& press);
/// Anywhere in the disc, by the truncated distance from the centre.
bool hits(const CircleTool& circle, const Press& press);

// What is measured

/// A box of pixels, edges included; empty when a first is above its last.
struct PixelBox
{
    int firstX;
    int lastX;
    int firstY;
    int lastY;
};

/// Outside its box a tool covers nothing. It may reach out of the picture.
PixelBox boxOf(const LineTool& line);
PixelBox boxOf(const RectTool& rect);
PixelBox boxOf(const CircleTool& circle);

/// Whether a pixel of the tool's box counts for its temperatures: less than two whole pixels from
/// the line; anywhere in the rectangle; no more than `radius` whole pixels from the circle's
/// centre.
inline bool covers(const LineTool& line, int x, int y)
{
    const std::optional<int> distance = truncatedDistance(line, x, y);
    return distance && *distance < 2;
}
inline bool covers(const RectTool&, int, int)
{
    return true;
}
inline bool covers(const CircleTool& circle, int x, int y)
{
    return truncatedDistance(circle.cx, circle.cy, x, y) <= circle.radius;
}

// What the mouse makes of a tool

/// A tool is placed from its first press on. Only placed tools are painted and measured.
constexpr bool isPlaced(const PointTool& point)
{
    return point.x >= 0;
}
constexpr bool isPlaced(const LineTool& line)
{
    return line.x1 >= 0;
}
constexpr bool isPlaced(const RectTool& rect)
{
    return rect.x1 >= 0;
}
constexpr bool isPlaced(const CircleTool& circle)
{
    return circle.cx >= 0;
}

/// Never placed, or, of a tool that is dragged out, pressed without being dragged.
bool isUnfinished(const PointTool& point);
bool isUnfinished(const LineTool& line);
bool isUnfinished(const RectTool& rect);
bool isUnfinished(const CircleTool& circle);

/// Places a new tool, its end at its start.
void place(PointTool& point, int x, int y);
void place(LineTool& line, int x, int y);
void place(RectTool& rect, int x, int y);
void place(CircleTool& circle, int x, int y);

/// A point moves, the others' end follows. A circle that would leave the picture stays as it is.
void drag(PointTool& point, int x, int y);
void drag(LineTool& line, int x, int y);
void drag(RectTool& rect, int x, int y);
void drag(CircleTool& circle, int x, int y);

/// Wholly inside the picture, as the mouse leaves a tool: positions 0 … 240 and 0 … 320, and
/// circles as far as they can be dragged.
bool isInside(const PointTool& point);
bool isInside(const LineTool& line);
bool isInside(const RectTool& rect);
bool isInside(const CircleTool& circle);

/// The radius of a circle round (cx, cy) dragged to (x, y); nothing when it would leave the
/// picture. It may touch the last column and row but not the first.
std::optional<int> draggedRadius(int cx, int cy, int x, int y);

// What files keep of a tool

/// As many as the row of its kind says: a position, both ends, both corners; centre and radius.
using ToolNumbers = std::array<int, 4>;

/// Any numbers are taken; ask isInside() and isUnfinished() what has become of the tool.
void setNumbers(PointTool& point, const ToolNumbers& numbers);
void setNumbers(LineTool& line, const ToolNumbers& numbers);
void setNumbers(RectTool& rect, const ToolNumbers& numbers);
void setNumbers(CircleTool& circle, const ToolNumbers& numbers);

} // namespace overlay
