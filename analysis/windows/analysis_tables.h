// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/photograph/tool_statistics.h"
#include "analysis/report/information.h"

class QTableWidget;

namespace analysis {

/// The two tables of the analysis window: how they look, and their texts put in and taken out.

void prepareInformationTable(QTableWidget& table);
void showInformation(QTableWidget& table, const std::array<QString, informationRows>& texts);
std::array<QString, informationRows> shownInformation(const QTableWidget& table);

void prepareToolTable(QTableWidget& table);
/// Replaces all rows; none is selected then.
void showTools(QTableWidget& table, const std::vector<ToolRow>& rows);
std::vector<ToolCells> shownTools(const QTableWidget& table);
/// Of the selected tool; one past the last row when none is selected. All tools must be placed.
int rowOfSelection(const overlay::Tools& tools);

} // namespace analysis
