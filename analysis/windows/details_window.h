// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/photograph/details.h"
#include "analysis/windows/beside_window.h"

class QComboBox;
class QGridLayout;
class QLabel;

namespace analysis {

class AreaBox;
class TemperatureBox;
class TextTable;
class ToolCommands;

/// What the selected tool hides behind its three numbers in the tool table, or, when none is
/// selected, the whole picture: its extremes with their places, which are marked in the picture,
/// further figures, shares beyond a threshold and how much hotter it is than something else.
///
/// The numbers are exact. Where those of the tool table are not, the window says so. GUI thread
/// only.
class DetailsWindow : public BesideWindow
{
    Q_OBJECT

public:
    explicit DetailsWindow(ViewedPhotograph& viewed);

    /// Hangs it into the context menus and on a double click in the tool table.
    static void addTo(ToolCommands& commands, const Ui::Analysis_Widget& form);

protected:
    void refresh() override;

private:
    /// With one set of readings.
    struct Measured
    {
        Area area;
        std::optional<Details> details;
        std::optional<double> difference;
    };

    void addThreshold(QGridLayout& grid);
    void addComparison(QGridLayout& grid);
    QComboBox* figureBox(const QString& name);
    Measured measured(const QString& tool, const Temperatures& temperatures) const;
    void showNumbers(const std::vector<Measured>& sets);
    void showNotes(const Measured& stored);
    void showMarks(const std::optional<Details>& details);

    QLabel* m_subject;
    TextTable* m_table;
    TemperatureBox* m_threshold;
    QComboBox* m_figure;
    AreaBox* m_other;
    QComboBox* m_otherFigure;
    TemperatureBox* m_reference;
    QLabel* m_notes;
};

} // namespace analysis
