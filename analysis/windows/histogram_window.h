// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/export/histogram_plot.h"
#include "analysis/windows/beside_window.h"

class QBoxLayout;
class QCheckBox;
class QDoubleSpinBox;
class QLabel;

namespace plots {
class PlotView;
}

namespace analysis {

class AreaBox;
class TemperatureBox;
class ToolCommands;

/// How often which temperature occurs in the selected tool, another one, or the whole picture: bins
/// that suit the area or are chosen by range and width, and the share between two limits, which are
/// dragged or typed. GUI thread only.
class HistogramWindow : public BesideWindow
{
    Q_OBJECT

public:
    explicit HistogramWindow(ViewedPhotograph& viewed);

    /// Hangs it into the context menus.
    static void addTo(ToolCommands& commands);

protected:
    void refresh() override;

private:
    /// The fixed entries of the areas.
    enum Entry
    {
        SelectedTool, ///< the whole picture while none is selected
        WholePicture
    };

    void addBins(QBoxLayout& layout);
    void addLimits(QBoxLayout& layout);
    QString wanted(const overlay::Tools& tools) const;
    void takeAreas();
    std::optional<Bins> suitingBoth() const;
    std::optional<Bins> chosenBins();
    void takeUnit();
    void takeLimits();

    AreaBox* const m_areas;
    QCheckBox* const m_logarithmic;
    QCheckBox* const m_automatic;
    TemperatureBox* const m_from;
    TemperatureBox* const m_to;
    QDoubleSpinBox* const m_width; ///< degrees of m_unit
    plots::PlotView* const m_view;
    TemperatureBox* const m_lower;
    TemperatureBox* const m_upper;
    QLabel* const m_share;

    Unit m_unit;
    Area m_stored;
    std::optional<Area> m_corrected;
    std::optional<Bins> m_bins;
    bool m_hasLimits = false; ///< since the first histogram
};

} // namespace analysis
