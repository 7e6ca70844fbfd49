// SPDX-License-Identifier: MIT
#pragma once

#include "overlay/tool_rules.h"
#include "overlay/tools.h"

#include <functional>

namespace overlay {

/// Tools in somebody's hand: what a press, a drag and a change of mode do to them, in image
/// positions. Who shows them repaints after each of these, and tells what has changed.
struct ToolEditing : Tools
{
    int toolMode = int(ToolMode::Select); ///< one that is no ToolMode does nothing
    int newIndex = 0; ///< where setMode() put the tool it made, in the list of its kind
    bool drawing =
        false; ///< a new tool is being dragged out; ended by whoever hears of the release
    QColor toolColor{255, 0, 0, 255}; ///< of new tools
};

/// Unfinished tools go; for a mode that places tools, an unplaced one is made at `newIndex`.
void setMode(ToolEditing& tools, int mode);

/// Places the prepared tool and selects it, if it is still there. In select mode, every tool under
/// the press becomes the selection in turn, so the last one stays it; `selected` is called after
/// each, and may change the tools.
void press(ToolEditing& tools, const Press& press, const std::function<void()>& selected);

/// A move with the button held: the new tool's end follows, or, in select mode, the selected tool
/// if its kind can be moved.
void dragTo(ToolEditing& tools, int x, int y);

/// Unfinished tools go, and then the selected one.
void removeSelectedTool(ToolEditing& tools);

/// What the keyboard does to the selected tool: it moves, or its end alone, a circle's radius; see
/// shift() and shiftEnd(). Returns whether it did: not at an edge, and not without a finished tool.
bool moveSelected(ToolEditing& tools, int dx, int dy);
bool moveSelectedEnd(ToolEditing& tools, int dx, int dy);

/// Selects the finished tool that lies `step` places after the selected one in the order of the
/// kinds and lists, and from the last goes on with the first. With nothing selected, a step forward
/// begins at the first, a step back at the last. Without any finished tool nothing changes.
void selectNext(ToolEditing& tools, int step);

} // namespace overlay
