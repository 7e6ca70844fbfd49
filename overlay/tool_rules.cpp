// SPDX-License-Identifier: MIT
#include "overlay/tool_rules.h"

#include <cstdlib>

namespace overlay {
namespace {

constexpr int lineReach = 2;

/// Inclusive, ends in either order.
bool between(int value, int end, int otherEnd)
{
    return std::min(end, otherEnd) <= value && value <= std::max(end, otherEnd);
}

bool strictlyBetween(int value, int end, int otherEnd)
{
    return std::min(end, otherEnd) < value && value < std::max(end, otherEnd);
}

template<typename Cornered>
void placeBothEnds(Cornered& tool, int x, int y)
{
    tool.x1 = tool.x2 = x;
    tool.y1 = tool.y2 = y;
}

template<typename Cornered>
void dragEnd(Cornered& tool, int x, int y)
{
    tool.x2 = x;
    tool.y2 = y;
}

bool isInside(int x, int y)
{
    return x >= 0 && x <= imageColumns && y >= 0 && y <= imageRows;
}

/// As much of a step as keeps what reaches from `first` to `last` between the limits. What lies
/// beyond one of them does not move further out.
int stepWithin(int step, int first, int last, int lowest, int highest)
{
    return std::clamp(step, std::min(0, lowest - first), std::max(0, highest - last));
}

int stepAcross(int step, int first, int last)
{
    return stepWithin(step, first, last, 0, imageColumns - 1);
}

int stepDown(int step, int first, int last)
{
    return stepWithin(step, first, last, 0, imageRows - 1);
}

template<typename Cornered>
void shiftBothEnds(Cornered& tool, int dx, int dy)
{
    const PixelBox box = boxOf(tool);
    const int across = stepAcross(dx, box.firstX, box.lastX);
    const int down = stepDown(dy, box.firstY, box.lastY);
    tool.x1 += across;
    tool.x2 += across;
    tool.y1 += down;
    tool.y2 += down;
}

template<typename Cornered>
void shiftSecondEnd(Cornered& tool, int dx, int dy)
{
    Cornered shifted = tool;
    shifted.x2 += stepAcross(dx, tool.x2, tool.x2);
    shifted.y2 += stepDown(dy, tool.y2, tool.y2);
    if (!isUnfinished(shifted))
        tool = shifted;
}

} // namespace

bool hits(const PointTool& point, const Press& press)
{
    return std::abs(point.x - 2 - press.x) <= press.toleranceX / 2 &&
           std::abs(point.y - 2 - press.y) <= press.toleranceY / 2;
}

bool hits(const LineTool& line, const Press& press)
{
    if (!between(press.x, line.x1, line.x2) || !between(press.y, line.y1, line.y2))
        return false;
    const std::optional<double> squared = squaredDistance(line, press.x, press.y);
    return squared && isWithin(lineReach, *squared);
}

bool hits(const RectTool& rect, const Press& press)
{
    return strictlyBetween(press.x, rect.x1, rect.x2) && strictlyBetween(press.y, rect.y1, rect.y2);
}

bool hits(const CircleTool& circle, const Press& press)
{
    return covers(circle, press.x, press.y);
}

bool isUnfinished(const PointTool& point)
{
    return !isPlaced(point);
}

bool isUnfinished(const LineTool& line)
{
    return !isPlaced(line) || (line.x1 == line.x2 && line.y1 == line.y2);
}

bool isUnfinished(const RectTool& rect)
{
    return !isPlaced(rect) || (rect.x1 == rect.x2 && rect.y1 == rect.y2);
}

bool isUnfinished(const CircleTool& circle)
{
    return !isPlaced(circle) || (circle.cx == circle.x2 && circle.cy == circle.y2);
}

void place(PointTool& point, int x, int y)
{
    point.x = x;
    point.y = y;
}

void place(LineTool& line, int x, int y)
{
    placeBothEnds(line, x, y);
}

void place(RectTool& rect, int x, int y)
{
    placeBothEnds(rect, x, y);
}

void place(CircleTool& circle, int x, int y)
{
    circle.cx = circle.x2 = x;
    circle.cy = circle.y2 = y;
}

void drag(PointTool& point, int x, int y)
{
    place(point, x, y);
}

void drag(LineTool& line, int x, int y)
{
    dragEnd(line, x, y);
}

void drag(RectTool& rect, int x, int y)
{
    dragEnd(rect, x, y);
}

void drag(CircleTool& circle, int x, int y)
{
    if (const std::optional<int> radius = draggedRadius(circle.cx, circle.cy, x, y)) {
        dragEnd(circle, x, y);
        circle.radius = *radius;
    }
}

bool isInside(const PointTool& point)
{
    return isInside(point.x, point.y);
}

bool isInside(const LineTool& line)
{
    return isInside(line.x1, line.y1) && isInside(line.x2, line.y2);
}

bool isInside(const RectTool& rect)
{
    return isInside(rect.x1, rect.y1) && isInside(rect.x2, rect.y2);
}

bool isInside(const CircleTool& circle)
{
    return draggedRadius(circle.cx, circle.cy, circle.x2, circle.y2) == circle.radius;
}

std::optional<int> draggedRadius(int cx, int cy, int x, int y)
{
    const int radius = int(std::sqrt(squaredDistance(cx, cy, x, y)));
    const bool fits =
        cx + radius < imageColumns && cx - radius > 0 && cy + radius < imageRows && cy - radius > 0;
    return fits ? std::optional<int>(radius) : std::nullopt;
}

void shift(PointTool& point, int dx, int dy)
{
    place(point, point.x + stepAcross(dx, point.x, point.x),
          point.y + stepDown(dy, point.y, point.y));
}

void shift(LineTool& line, int dx, int dy)
{
    shiftBothEnds(line, dx, dy);
}

void shift(RectTool& rect, int dx, int dy)
{
    shiftBothEnds(rect, dx, dy);
}

/// The limits of draggedRadius().
void shift(CircleTool& circle, int dx, int dy)
{
    const PixelBox box = boxOf(circle);
    const int across = stepWithin(dx, box.firstX, box.lastX, 1, imageColumns - 1);
    const int down = stepWithin(dy, box.firstY, box.lastY, 1, imageRows - 1);
    circle.cx += across;
    circle.x2 += across;
    circle.cy += down;
    circle.y2 += down;
}

void shiftEnd(PointTool&, int, int) {}

void shiftEnd(LineTool& line, int dx, int dy)
{
    shiftSecondEnd(line, dx, dy);
}

void shiftEnd(RectTool& rect, int dx, int dy)
{
    shiftSecondEnd(rect, dx, dy);
}

void shiftEnd(CircleTool& circle, int dx, int dy)
{
    const int room = std::min(
        {circle.cx - 1, imageColumns - 1 - circle.cx, circle.cy - 1, imageRows - 1 - circle.cy});
    const double radius =
        std::clamp<double>(circle.radius + double(dx) + dy, 1, std::max(room, circle.radius));
    setNumbers(circle, {circle.cx, circle.cy, int(radius)});
}

ToolNumbers numbersOf(const PointTool& point)
{
    return {point.x, point.y};
}

ToolNumbers numbersOf(const LineTool& line)
{
    return {line.x1, line.y1, line.x2, line.y2};
}

ToolNumbers numbersOf(const RectTool& rect)
{
    return {rect.x1, rect.y1, rect.x2, rect.y2};
}

ToolNumbers numbersOf(const CircleTool& circle)
{
    return {circle.cx, circle.cy, circle.radius};
}

void setNumbers(PointTool& point, const ToolNumbers& numbers)
{
    place(point, numbers[0], numbers[1]);
}

void setNumbers(LineTool& line, const ToolNumbers& numbers)
{
    place(line, numbers[0], numbers[1]);
    drag(line, numbers[2], numbers[3]);
}

void setNumbers(RectTool& rect, const ToolNumbers& numbers)
{
    place(rect, numbers[0], numbers[1]);
    drag(rect, numbers[2], numbers[3]);
}

/// Dragged to the right, which way does not matter; a radius below 0 is no drag.
void setNumbers(CircleTool& circle, const ToolNumbers& numbers)
{
    place(circle, numbers[0], numbers[1]);
    circle.radius = numbers[2];
    circle.x2 = circle.cx + std::max(circle.radius, 0);
}

} // namespace overlay
