// SPDX-License-Identifier: MIT
#pragma once

#include "overlay/label_geometry.h"
#include "overlay/tools.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

/// The rules of the measurement tools, kind by kind: where they lie, what hits them, which pixels
/// they measure, what a press and a drag make of them. Whoever needs one of these answers asks
/// here. Everything is arithmetic on image coordinates.
namespace overlay {

// Distances

/// The Euclidean distance, squared: whole, and below 2^53 exact.
inline double squaredDistance(int x1, int y1, int x2, int y2)
{
    const double dx = double(x2) - x1;
    const double dy = double(y2) - y1;
    return dx * dx + dy * dy;
}

/// Whether the distance, cut to whole pixels, is at most `most`. Without a root, because tables ask
/// it of every pixel.
inline bool isWithin(int most, double squaredDistance)
{
    return most >= 0 && squaredDistance < (most + 1.0) * (most + 1.0);
}

/// The squared distance of (x, y) from the infinite line through the tool's ends, measured to the
/// foot of the perpendicular with each of its coordinates truncated toward the start. Nothing when
/// the ends coincide: such a line has no direction.
inline std::optional<double> squaredDistance(const LineTool& line, int x, int y)
{
    const double dx = double(line.x2) - line.x1;
    const double dy = double(line.y2) - line.y1;
    const double square = dx * dx + dy * dy;
    if (square == 0.0)
        return std::nullopt;
    const double along = ((double(y) - line.y1) * dy + (double(x) - line.x1) * dx) / square;
    const int footX = line.x1 + int(dx * along);
    const int footY = line.y1 + int(dy * along);
    return squaredDistance(footX, footY, x, y);
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
template<typename Cornered>
PixelBox boxOf(const Cornered& tool)
{
    return {std::min(tool.x1, tool.x2), std::max(tool.x1, tool.x2), std::min(tool.y1, tool.y2),
            std::max(tool.y1, tool.y2)};
}
inline PixelBox boxOf(const CircleTool& circle)
{
    return {circle.cx - circle.radius, circle.cx + circle.radius, circle.cy - circle.radius,
            circle.cy + circle.radius};
}

/// The part of the box that can hold covered pixels of column x. Those of a line lie less than
/// 2 + √2 from it, because cutting moves the foot of the perpendicular by less than a pixel either
/// way.
template<typename Tool>
PixelBox boxOfColumn(const Tool&, PixelBox box, int)
{
    return box;
}
inline PixelBox boxOfColumn(const LineTool& line, PixelBox box, int x)
{
    if (line.x1 == line.x2)
        return box;
    const double slope = (double(line.y2) - line.y1) / (double(line.x2) - line.x1);
    const double middle = line.y1 + (double(x) - line.x1) * slope;
    const double reach = 3.5 * std::sqrt(1.0 + slope * slope);
    box.firstY = int(std::max<double>(box.firstY, std::floor(middle - reach)));
    box.lastY = int(std::min<double>(box.lastY, std::ceil(middle + reach)));
    return box;
}

/// Whether a pixel of the tool's box counts for its temperatures: less than two whole pixels from
/// the line; anywhere in the rectangle; no more than `radius` whole pixels from the circle's
/// centre.
inline bool covers(const LineTool& line, int x, int y)
{
    const std::optional<double> squared = squaredDistance(line, x, y);
    return squared && isWithin(1, *squared);
}
inline bool covers(const RectTool&, int, int)
{
    return true;
}
inline bool covers(const CircleTool& circle, int x, int y)
{
    return isWithin(circle.radius, squaredDistance(circle.cx, circle.cy, x, y));
}

/// Calls visit(x, y) for every pixel inside the picture that a line, rectangle or circle covers:
/// column after column from left to right, and down each.
template<typename Tool, typename Visit>
void forEachPixel(const Tool& tool, Visit visit)
{
    const PixelBox box = boxOf(tool);
    for (int x = std::max(box.firstX, 0); x <= std::min(box.lastX, imageColumns - 1); ++x) {
        const PixelBox column = boxOfColumn(tool, box, x);
        const int last = std::min(column.lastY, imageRows - 1);
        for (int y = std::max(column.firstY, 0); y <= last; ++y) {
            if (covers(tool, x, y))
                visit(x, y);
        }
    }
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

// What the keyboard makes of a finished tool

/// The whole tool moves by as much of the step as the picture has room for: positions 0 … 239 and
/// 0 … 319, circles as far as they can be dragged. One that the mouse has left on 240 or 320 stays
/// there until a step leads back.
void shift(PointTool& point, int dx, int dy);
void shift(LineTool& line, int dx, int dy);
void shift(RectTool& rect, int dx, int dy);
void shift(CircleTool& circle, int dx, int dy);

/// The end alone moves, within the same limits, but never onto the start. A circle's radius grows
/// with a step to the right or down, shrinks with one to the left or up, and is at least 1. A point
/// has no second end.
void shiftEnd(PointTool& point, int dx, int dy);
void shiftEnd(LineTool& line, int dx, int dy);
void shiftEnd(RectTool& rect, int dx, int dy);
void shiftEnd(CircleTool& circle, int dx, int dy);

// What files keep of a tool

/// As many as the row of its kind says: a position, both ends, both corners; centre and radius.
using ToolNumbers = std::array<int, 4>;

/// What setNumbers() makes the same tool of again; those that its kind has not are 0.
ToolNumbers numbersOf(const PointTool& point);
ToolNumbers numbersOf(const LineTool& line);
ToolNumbers numbersOf(const RectTool& rect);
ToolNumbers numbersOf(const CircleTool& circle);

/// Any numbers are taken; ask isInside() and isUnfinished() what has become of the tool.
void setNumbers(PointTool& point, const ToolNumbers& numbers);
void setNumbers(LineTool& line, const ToolNumbers& numbers);
void setNumbers(RectTool& rect, const ToolNumbers& numbers);
void setNumbers(CircleTool& circle, const ToolNumbers& numbers);

} // namespace overlay
