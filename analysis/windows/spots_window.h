// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/photograph/extremes.h"
#include "analysis/windows/beside_window.h"

class QComboBox;
class QGridLayout;
class QPushButton;
class QSpinBox;

namespace analysis {

class AreaBox;
class TextTable;
class ToolCommands;

/// Where the picture, or the area of one tool, is hotter or colder than all around: a list of such
/// spots, which are marked in the picture by their numbers, become point tools on request, and are
/// copied and saved. GUI thread only.
class SpotsWindow : public BesideWindow
{
    Q_OBJECT

public:
    explicit SpotsWindow(ViewedPhotograph& viewed);

    /// Hangs it into the context menus.
    static void addTo(ToolCommands& commands);

protected:
    void refresh() override;

private:
    struct Spot
    {
        bool isHot;
        int rank; ///< from 1
        Reading reading;
    };

    void addChoices(QGridLayout& grid);
    void addButtons(QGridLayout& grid);
    QPushButton* button(const char* name, const QString& text, void (SpotsWindow::*pressed)());
    void chooseSelectedTool();
    void showRows();
    QString correctedText(const Spot& spot, QString (*text)(double)) const;
    void showMarks();
    void placePoints();
    void save();
    void copy();

    AreaBox* m_area;
    QComboBox* m_kinds;
    QSpinBox* m_count;
    QSpinBox* m_distance;
    TextTable* m_table;
    QPushButton* m_place = nullptr;
    std::vector<Spot> m_spots;                       ///< a row of the table each
    std::shared_ptr<const Temperatures> m_corrected; ///< null without a correction
};

} // namespace analysis
