// SPDX-License-Identifier: MIT
#pragma once

#include "overlay/tools.h"

/// Files of measurement tools as thermaphoto takes them: JSON, as the window saves them, or the
/// same as a table for spreadsheets.
namespace tools {

/// Whether a file of this name is taken for a table: *.csv, in any letter case.
bool isCsv(const QString& path);

/// The tools of a file in place of those that are there. Returns what is wrong with it, empty if
/// nothing is; then nothing is taken.
QString readToolFile(const QString& path, overlay::Tools& tools);

/// A line for each tool below "name,type,x1,y1,x2,y2,radius,colour"; what a kind has not is empty.
QByteArray toolsToCsv(const overlay::Tools& tools);

/// The same read again, in any order of the lines; ";" or a tab may separate the fields, too. As
/// readToolFile().
QString toolsFromCsv(const QByteArray& csv, overlay::Tools& tools);

} // namespace tools
