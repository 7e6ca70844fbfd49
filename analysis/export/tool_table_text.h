// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/photograph/tool_statistics.h"

#include <QString>

#include <vector>

/// Rows of the tool table in the two forms that other programs take from the clipboard. Line ends
/// and tabs within a text become spaces: they would begin a new row or column.
namespace analysis {

/// A row on each line, its texts separated by tabs.
QString tabSeparated(const std::vector<ToolCells>& rows);

/// A table for documents and mails; texts are shown as they are, never as mark-up. With `header`,
/// the first row holds the captions.
QString htmlTable(const std::vector<ToolCells>& rows, bool header);

} // namespace analysis
