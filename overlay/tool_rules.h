#pragma once

#include "overlay/tool_records.h"

#include <QVector>

#include <algorithm>
#include <cmath>
#include <optional>

/// The rules of the measurement tools: which are hit, what they are called, which go.
///
/// Everything here is arithmetic on image coordinates. Lists are in number order ("P0" before
/// "P2"), and list indices count within one kind.
namespace overlay {

// Distances

/// The Euclidean distance in whole pixels, toward zero.
inline int truncatedDistance(int x1, int y1, int x2, int y2)
{
    const double dx = static_cast<double>(x2) - x1;
    const double dy = static_cast<double>(y2) - y1;
    return static_cast<int>(std::sqrt(dx * dx + dy * dy));
}

/// The truncated distance of (x, y) from the infinite line through the tool's ends, measured to the
/// foot of the perpendicular with each of its coordinates truncated toward the start. A hit is at
/// most 2 away, a pixel counts for the line's temperatures when it is less than 2 away; both look
/// only inside the bounding box of the ends, which is the caller's to check. Nothing when the ends
/// coincide: such a line has no direction.
inline std::optional<int> truncatedDistance(const LineTool& line, int x, int y)
{
    const double dx = static_cast<double>(line.x2) - line.x1;
    const double dy = static_cast<double>(line.y2) - line.y1;
    const double square = dx * dx + dy * dy;
    if (square == 0.0)
        return std::nullopt;
    const double along =
        ((static_cast<double>(y) - line.y1) * dy + (static_cast<double>(x) - line.x1) * dx) /
        square;
    const int footX = line.x1 + static_cast<int>(dx * along);
    const int footY = line.y1 + static_cast<int>(dy * along);
    return truncatedDistance(footX, footY, x, y);
}

// What lies under the pointer

/// How far from a point a press may be, in widget pixels; converted to image pixels before use.
constexpr int pointToleranceWidth = 12;
constexpr int pointToleranceHeight = 16;

/// `toleranceX` and `toleranceY` are in image pixels; half of each counts on either side. The box
/// lies two pixels left of and above the point, where the hand expects the cross it sees.
bool hits(const PointTool& point, int x, int y, int toleranceX, int toleranceY);
/// At most 2 pixels from the line and inside its bounding box, edges included.
bool hits(const LineTool& line, int x, int y);
/// Strictly inside; the border itself is not a hit.
bool hits(const RectTool& rect, int x, int y);
/// Anywhere in the disc, by the truncated distance from the centre.
bool hits(const CircleTool& circle, int x, int y);

/// The radius of a circle round (cx, cy) dragged to (x, y); nothing when it would leave the
/// picture. It may touch the last column and row but not the first.
std::optional<int> draggedRadius(int cx, int cy, int x, int y);

// Which tools there are

constexpr QChar letterOf(const PointTool&)
{
    return QLatin1Char('P');
}
constexpr QChar letterOf(const LineTool&)
{
    return QLatin1Char('L');
}
constexpr QChar letterOf(const RectTool&)
{
    return QLatin1Char('R');
}
constexpr QChar letterOf(const CircleTool&)
{
    return QLatin1Char('C');
}

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

/// Removes the unfinished tools.
template<typename Tool>
void prune(QVector<Tool>& list)
{
    list.erase(std::remove_if(list.begin(), list.end(),
                              [](const Tool& tool) { return isUnfinished(tool); }),
               list.end());
}

/// The lowest number that no tool of the list, which is in number order, carries in its name.
template<typename Tool>
int lowestFreeNumber(const QVector<Tool>& list)
{
    int number = 0;
    for (const Tool& tool : list) {
        bool isNumber = false;
        if (tool.name.midRef(1).toInt(&isNumber) == number && isNumber)
            ++number;
    }
    return number;
}

/// Makes an unplaced tool with the lowest free number and puts it where its number belongs. Returns
/// its index.
template<typename Tool>
int insertNew(QVector<Tool>& list, const QColor& colour)
{
    const int number = lowestFreeNumber(list);
    const int index = std::min(number, list.size());
    Tool tool;
    tool.name = letterOf(tool) + QString::number(number);
    tool.colour = colour;
    list.insert(index, tool);
    return index;
}

/// How many tools there are of each kind.
struct ToolCounts
{
    int points = 0;
    int lines = 0;
    int rects = 0;
};

/// The place of a tool among all tools: points first, then lines, rectangles and circles. `letter`
/// is one of "PLRC"; any other answers `index`.
int overallIndex(QChar letter, int index, const ToolCounts& counts);

} // namespace overlay
