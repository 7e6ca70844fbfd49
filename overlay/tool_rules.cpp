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

} // namespace

bool hits(const PointTool& point, int x, int y, int toleranceX, int toleranceY)
{
    return std::abs(point.x - 2 - x) <= toleranceX / 2 &&
           std::abs(point.y - 2 - y) <= toleranceY / 2;
}

bool hits(const LineTool& line, int x, int y)
{
    if (!between(x, line.x1, line.x2) || !between(y, line.y1, line.y2))
        return false;
    const std::optional<int> distance = truncatedDistance(line, x, y);
    return distance && *distance <= lineReach;
}

bool hits(const RectTool& rect, int x, int y)
{
    return strictlyBetween(x, rect.x1, rect.x2) && strictlyBetween(y, rect.y1, rect.y2);
}

bool hits(const CircleTool& circle, int x, int y)
{
    return circle.radius >= truncatedDistance(circle.cx, circle.cy, x, y);
}

std::optional<int> draggedRadius(int cx, int cy, int x, int y)
{
    const int radius = truncatedDistance(cx, cy, x, y);
    const bool fits =
        cx + radius < imageColumns && cx - radius > 0 && cy + radius < imageRows && cy - radius > 0;
    return fits ? std::optional<int>(radius) : std::nullopt;
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

int overallIndex(QChar letter, int index, const ToolCounts& counts)
{
    switch (letter.unicode()) {
    case 'L':
        return counts.points + index;
    case 'R':
        return counts.points + counts.lines + index;
    case 'C':
        return counts.points + counts.lines + counts.rects + index;
    default:
        return index;
    }
}

} // namespace overlay
