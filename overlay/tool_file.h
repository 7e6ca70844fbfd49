// SPDX-License-Identifier: MIT
#pragma once

#include "overlay/tools.h"

namespace overlay {

/// Tools as JSON, as files and the clipboard have them:
///
///     {
///         "version": 1,
///         "points": [[x, y], …],
///         "lines": [[x1, y1, x2, y2], …],
///         "rectangles": [[x1, y1, x2, y2], …],
///         "circles": [[cx, cy, r], …],
///         "names": ["P0", "P2", …],
///         "colours": {"P2": "#0000ff", …}
///     }
///
/// Everything may be left out, and no other key is taken. Positions are whole image pixels, x 0 …
/// 240 and y 0 … 320 as the mouse gives them. "names" has one for each tool, in the order above;
/// without it they are numbered from 0. Tools that "colours" ("#rrggbb" or "#aarrggbb") does not
/// name are red.

/// Takes the tools of a file in place of those that are there, none of them selected. Returns what
/// is wrong with the file, in English, empty if nothing is; then nothing is taken. The tools it may
/// hold are those that the window can hold, finished and wholly inside the picture.
QString toolsFromJson(const QByteArray& json, Tools& tools);

/// The tools that toolsFromJson() takes; any others are left out. What it makes of the result gives
/// the same bytes again.
QByteArray toolsToJson(const Tools& tools);

/// What keeps a file from holding these tools, in the words of toolsFromJson(); empty if nothing
/// does.
QString wrongWith(const Tools& tools);

/// "#rrggbb", or "#aarrggbb" where the colour is not opaque.
QString hexOf(const QColor& colour);

} // namespace overlay
