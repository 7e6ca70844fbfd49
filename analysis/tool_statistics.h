#pragma once

#include "analysis/photograph.h"
#include "analysis/units.h"
#include "overlay/tool_records.h"

#include <QString>
#include <QVector>

#include <array>
#include <vector>

namespace analysis {

enum class ToolKind
{
    Point,
    Line,
    Rect,
    Circle
};

/// The tools on a picture as the measurement label keeps them, one list for each kind.
struct ToolLists
{
    const QVector<overlay::PointTool>& points;
    const QVector<overlay::LineTool>& lines;
    const QVector<overlay::RectTool>& rects;
    const QVector<overlay::CircleTool>& circles;
};

/// One row of the tool table.
struct ToolRow
{
    QString name;
    ToolKind kind;
    QString high;
    QString low;
    QString average;
};

/// What was measured under a tool that has an area, as stored temperatures.
///
/// The extremes start from fixed values, −10 (circles −50) and 2000, which stay when nothing beats
/// them: a scene colder than that, no pixel at all, nothing but not-a-number. The average is a sum
/// in single precision, column after column from left to right and down each column, divided by the
/// number of pixels; 0 when there is none.
struct AreaStatistics
{
    float high;
    float low;
    float average;
    int pixels;
};

/// Measures lines, rectangles and circles, in this order and in that of their lists; unplaced tools
/// (first coordinate negative) are left out. Pixels outside the picture do not count.
///
/// A line covers what lies less than two whole pixels from it within the box of its two ends; a
/// line whose ends coincide has no direction and covers nothing. A rectangle includes its corners,
/// given in any order. A circle covers what lies no more than `radius` whole pixels from its
/// centre. Distances are truncated to whole pixels.
std::vector<AreaStatistics> measureAreas(const ToolLists& tools, const Temperatures& temperatures);

/// The whole tool table: placed points, lines, rectangles and circles, each in list order. A point
/// outside the picture takes the nearest pixel inside.
std::vector<ToolRow> toolRows(const ToolLists& tools, const Temperatures& temperatures,
                              Conversion conversion);

/// The row's texts: name, type, high, low, average. The type is translated in the context of the
/// analysis window.
using ToolCells = std::array<QString, 5>;
ToolCells toolCells(const ToolRow& row);

} // namespace analysis
