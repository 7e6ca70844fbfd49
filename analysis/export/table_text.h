// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

#include <vector>

/// Rows of texts in the two forms that other programs take from the clipboard. Line ends and tabs
/// within a text become spaces: they would begin a new row or column.
namespace analysis {

using TextRows = std::vector<QStringList>;

/// A row on each line, its texts separated by tabs.
QString tabSeparated(const TextRows& rows);

/// A table for documents and mails; texts are shown as they are, never as mark-up. With `header`,
/// the first row holds the captions.
QString htmlTable(const TextRows& rows, bool header);

} // namespace analysis
