// SPDX-License-Identifier: MIT
#pragma once

#include "overlay/tools.h"

namespace overlay {

/// Takes the tools of a file's JSON: {"points": [[x, y], …], "lines": [[x1, y1, x2, y2], …],
/// "rectangles": [[x1, y1, x2, y2], …], "circles": [[cx, cy, r], …]}; lists may be left out.
/// Positions are whole image pixels, x 0 … 240 and y 0 … 320 as the mouse gives them. Tools are
/// added to those that are there, and named as the analysis window names them. Returns what is
/// wrong with the file, in English, empty if nothing is: the tools it may hold are those that the
/// window can hold, finished and wholly inside the picture.
QString toolsFromJson(const QByteArray& json, Tools& tools);

} // namespace overlay
