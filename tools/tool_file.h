#pragma once

#include "overlay/tools.h"

#include <QString>

namespace tools {

/// Reads a JSON file {"points": [[x, y], …], "lines": [[x1, y1, x2, y2], …], "rectangles":
/// [[x1, y1, x2, y2], …], "circles": [[cx, cy, r], …]}; lists may be left out. Positions are whole
/// image pixels. Tools are named as the analysis window names them. Returns what is wrong with the
/// file, empty if nothing is: tools that the window would not let anyone draw (outside the picture,
/// a line without length) are wrong, because they measure nothing.
QString readToolFile(const QString& path, overlay::Tools& tools);

} // namespace tools
