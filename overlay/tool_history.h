// SPDX-License-Identifier: MIT
#pragma once

#include "overlay/tool_editing.h"

#include <deque>

namespace overlay {

/// What one can go back to: the finished tools, which of them is selected, and the colour of new
/// ones.
struct ToolsState
{
    Tools tools;
    QColor colour = QColor(255, 0, 0, 255);
};

bool operator==(const ToolsState& left, const ToolsState& right);

/// The finished tools. The selection stays on its tool; it is "null" and −1 without one.
ToolsState stateOf(const ToolEditing& tools);

/// Goes to this state and stays in the present mode, for which a tool is prepared anew. The
/// selection stays on its tool.
void restore(ToolEditing& tools, const ToolsState& state);

/// The states that the tools of one picture were in, for undo and redo. One step is what one
/// gesture did; the last 200 can be undone. Whoever changes tools records them afterwards.
class ToolHistory
{
public:
    static constexpr int mostSteps = 200;

    /// Nothing to undo, and nothing to redo.
    void restart(const ToolsState& now);

    /// A step, if finished tools or the colour are other than they were; what was undone is then
    /// gone for good. If only the selection has changed, undo and redo will bring back this one.
    void record(const ToolsState& now);

    bool canUndo() const { return m_present > 0; }
    bool canRedo() const { return m_present + 1 < m_states.size(); }

    /// The state one step back or forward, from now on the present one; without such a step the
    /// present one as it is. Valid until something else is asked of the history.
    const ToolsState& undo();
    const ToolsState& redo();

private:
    std::deque<ToolsState> m_states{1};
    std::size_t m_present = 0; ///< in m_states
};

} // namespace overlay
