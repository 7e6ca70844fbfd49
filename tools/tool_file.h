#pragma once

#include "overlay/tools.h"

#include <QString>

namespace tools {

/// Reads a JSON file {"points": [[x, y], …], "lines": [[x1, y1, x2, y2], …], "rectangles":
/// [[x1, y1, x2, y2], …], "circles": [[cx, cy, r], …]}; lists may be left out. Positions are whole
/// image pixels, x 0 … 240 and y 0 … 320 as the mouse gives them. Tools are named as the analysis
/// window names them. Returns what is wrong with the file, empty if nothing is: the tools it may
/// hold are those that the window can hold, finished and wholly inside the picture.
QString readToolFile(const QString& path, overlay::Tools& tools);

} // namespace tools
