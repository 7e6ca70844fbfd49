// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/export/profile_plot.h"
#include "analysis/windows/beside_window.h"
#include "plots/plot.h"

#include <optional>

class QComboBox;

namespace plots {
class PlotView;
}

namespace analysis {

class ToolCommands;

/// The temperatures along the lines of a photograph, over the distance in pixels. The cursor marks
/// its pixel in the picture; a line that is moved moves its curve. GUI thread only.
class ProfileWindow : public BesideWindow
{
    Q_OBJECT

public:
    explicit ProfileWindow(ViewedPhotograph& viewed);

    /// Hangs it into the context menus.
    static void addTo(ToolCommands& commands);

protected:
    void refresh() override;

private:
    /// The entries of the choice.
    enum Lines
    {
        SelectedLine, ///< all of them while none is selected
        AllLines
    };

    std::vector<int> wanted(const overlay::Tools& tools) const;
    void showMark(const std::optional<plots::Place>& place);

    QComboBox* const m_lines;
    plots::PlotView* const m_view;
    ProfilePlot m_shown;
};

} // namespace analysis
