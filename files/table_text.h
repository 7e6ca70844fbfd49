// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

#include <vector>

/// Rows of texts in the forms that other programs take from files and from the clipboard.
namespace files {

using TextRows = std::vector<QStringList>;

/// A row on each line, its texts separated by tabs. Line ends and tabs within a text become spaces:
/// they would begin a new row or column.
QString tabSeparated(const TextRows& rows);

/// A table for documents and mails; texts are shown as they are, never as mark-up, on one line.
/// With `header`, the first row holds the captions.
QString htmlTable(const TextRows& rows, bool header);

/// A field as spreadsheets take it: in quotes if it holds a comma, a quote or a line end.
QString csvField(QString text);

/// A row of such fields, with its line end.
QString csvLine(const QStringList& row);

} // namespace files
