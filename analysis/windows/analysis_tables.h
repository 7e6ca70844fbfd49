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

} // namespace analysis
