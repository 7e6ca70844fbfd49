#pragma once

#include "analysis/tool_statistics.h"

#include <QString>

namespace tools {

/// Measuring tools to be applied to every photograph, named "P0", "P1", …, "L0", … as the analysis
/// window names them.
struct ToolSet
{
    QVector<overlay::PointTool> points;
    QVector<overlay::LineTool> lines;
    QVector<overlay::RectTool> rects;
    QVector<overlay::CircleTool> circles;

    analysis::ToolLists lists() const { return {points, lines, rects, circles}; }
};

/// Reads a JSON file {"points": [[x, y], …], "lines": [[x1, y1, x2, y2], …], "rectangles":
/// [[x1, y1, x2, y2], …], "circles": [[cx, cy, r], …]}; lists may be left out. Positions are whole
/// image pixels. Returns what is wrong with the file, empty if nothing is: tools that the window
/// would not let anyone draw (outside the picture, a line without length) are wrong, because they
/// measure nothing.
QString readToolFile(const QString& path, ToolSet& tools);

} // namespace tools
