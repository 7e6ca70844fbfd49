// SPDX-License-Identifier: MIT
#include "overlay/tool_coordinates.h"

namespace overlay {

int largestTyped(int number)
{
    return (number % 2 == 0 ? imageColumns : imageRows) - 1;
}

bool isPossible(ToolKind kind, const ToolNumbers& numbers)
{
    bool possible = false;
    Tools tools;
    visitTool(tools, kind, insertNew(tools, kind, {}), [&](auto& tool) {
        setNumbers(tool, numbers);
        possible = isInside(tool) && !isUnfinished(tool);
    });
    return possible;
}

std::optional<Limits> limitsOf(ToolKind kind, const ToolNumbers& numbers, int number)
{
    ToolNumbers tried = numbers;
    int& value = tried[std::size_t(number)];
    std::optional<Limits> limits;
    const int last = std::max(largestTyped(number), value);
    for (value = 0; value <= last; ++value) {
        if (isPossible(kind, tried))
            limits = {limits ? limits->first : value, value};
    }
    return limits;
}

ToolNumbers numbersOfNew(ToolKind kind)
{
    constexpr int x = imageColumns / 2;
    constexpr int y = imageRows / 2;
    constexpr int reach = 40;
    ToolNumbers numbers{};
    Tools tools;
    visitTool(tools, kind, insertNew(tools, kind, {}), [&](auto& tool) {
        place(tool, x, y);
        if (rowOf(kind).isDragged)
            drag(tool, x + reach, y + reach);
        numbers = numbersOf(tool);
    });
    return numbers;
}

void addTool(Tools& tools, ToolKind kind, const ToolNumbers& numbers, const QColor& colour)
{
    prune(tools);
    const int index = insertNew(tools, kind, colour);
    visitTool(tools, kind, index, [&](auto& tool) { setNumbers(tool, numbers); });
    select(tools, kind, index);
}

} // namespace overlay
