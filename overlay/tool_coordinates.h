// SPDX-License-Identifier: MIT
#pragma once

#include "overlay/tool_rules.h"
#include "overlay/tools.h"

#include <optional>

/// A tool's numbers for somebody who types them: what each may be while the others stay.
namespace overlay {

/// The largest position that is typed for a number: 239 for those across, 319 for those down. Of a
/// radius, it is more than any circle has.
int largestTyped(int number);

/// First and last value.
struct Limits
{
    int first;
    int last;
};

/// Whether a tool with these numbers is finished and wholly inside the picture.
bool isPossible(ToolKind kind, const ToolNumbers& numbers);

/// What one of the numbers may be while the others stay as they are, so that isPossible() holds; a
/// single value in between may still be impossible, where a line would have no extent. Nothing when
/// no value is possible. The mouse can leave a tool one pixel further right or down than
/// largestTyped(): such a value stays within its limits until another is typed.
std::optional<Limits> limitsOf(ToolKind kind, const ToolNumbers& numbers, int number);

/// Where a new tool begins that nobody has placed: as if dragged out from the middle of the
/// picture.
ToolNumbers numbersOfNew(ToolKind kind);

/// Makes a new tool with the lowest free number, these coordinates and this colour, and selects it.
/// Unfinished tools go, as when the mouse begins a new one.
void addTool(Tools& tools, ToolKind kind, const ToolNumbers& numbers, const QColor& colour);

} // namespace overlay
