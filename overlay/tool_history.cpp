// SPDX-License-Identifier: MIT
#include "overlay/tool_history.h"

#include <algorithm>

namespace overlay {
namespace {

/// Without the unfinished tools, whose going moves the others up.
ToolsState finished(const ToolsState& state)
{
    const Tools& tools = state.tools;
    const std::optional<ToolKind> kind = selectedKind(tools);
    int selected = -1;
    forEachList(tools, [&](const auto& list) {
        if (kind != kindOf(list) || tools.selectedIndex < 0 || tools.selectedIndex >= list.size() ||
            isUnfinished(list.at(tools.selectedIndex)))
            return;
        const auto end = list.begin() + tools.selectedIndex;
        selected = int(
            std::count_if(list.begin(), end, [](const auto& tool) { return !isUnfinished(tool); }));
    });
    ToolsState kept = state;
    prune(kept.tools);
    kept.tools.selectedIndex = selected;
    if (selected < 0)
        kept.tools.currentType = QStringLiteral("null");
    return kept;
}

} // namespace

bool operator==(const ToolsState& left, const ToolsState& right)
{
    return left.tools == right.tools && left.colour == right.colour;
}

ToolsState stateOf(const ToolEditing& tools)
{
    return finished({static_cast<const Tools&>(tools), tools.toolColor});
}

void restore(ToolEditing& tools, const ToolsState& state)
{
    const ToolsState wanted = finished(state);
    static_cast<Tools&>(tools) = wanted.tools;
    tools.toolColor = wanted.colour;
    tools.drawing = false;
    setMode(tools, tools.toolMode);
    // The prepared tool stands where its number belongs, and may have moved the selected one.
    const std::optional<ToolKind> kind = selectedKind(tools);
    if (kind && tools.toolMode == int(rowOf(*kind).mode) && tools.newIndex <= tools.selectedIndex)
        ++tools.selectedIndex;
}

void ToolHistory::restart(const ToolsState& now)
{
    m_states = {finished(now)};
    m_present = 0;
}

void ToolHistory::record(const ToolsState& now)
{
    ToolsState next = finished(now);
    ToolsState& present = m_states[m_present];
    if (listsOf(next.tools) == listsOf(present.tools) && next.colour == present.colour) {
        present = std::move(next);
        return;
    }
    m_states.erase(m_states.begin() + std::ptrdiff_t(m_present) + 1, m_states.end());
    m_states.push_back(std::move(next));
    if (m_states.size() > mostSteps + 1)
        m_states.pop_front();
    m_present = m_states.size() - 1;
}

const ToolsState& ToolHistory::undo()
{
    if (canUndo())
        --m_present;
    return m_states[m_present];
}

const ToolsState& ToolHistory::redo()
{
    if (canRedo())
        ++m_present;
    return m_states[m_present];
}

} // namespace overlay
