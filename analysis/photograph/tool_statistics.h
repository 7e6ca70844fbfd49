// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/photograph/photograph.h"
#include "analysis/photograph/units.h"
#include "overlay/tools.h"

#include <QString>

#include <array>
#include <vector>

namespace analysis {

/// One row of the tool table.
struct ToolRow
{
    QString name;
    overlay::ToolKind kind;
    QString high;
    QString low;
    QString average;
};

/// What was measured under a tool that has an area, as stored temperatures.
///
/// The extremes start from fixed values, −10 (circles −50) and 2000, which stay when nothing beats
/// them: a scene colder than that, no pixel at all, nothing but not-a-number. The average is a sum
/// in single precision, column after column from left to right and down each column, divided by the
/// number of pixels; 0 when there is none.
struct AreaStatistics
{
    float high;
    float low;
    float average;
    int pixels;
};

/// Measures lines, rectangles and circles, in this order and in that of their lists; unplaced tools
/// (first coordinate negative) are left out. Which pixels a tool covers is told by
/// overlay::covers(); those outside the picture do not count.
std::vector<AreaStatistics> measureAreas(const overlay::Tools& tools,
                                         const Temperatures& temperatures);

/// The whole tool table: placed points, lines, rectangles and circles, each in list order. A point
/// outside the picture takes the nearest pixel inside.
std::vector<ToolRow> toolRows(const overlay::Tools& tools, const Temperatures& temperatures,
                              Conversion conversion);

/// The kind as the table calls it, translated in the context of the analysis window.
QString kindCaption(overlay::ToolKind kind);

/// What its number at this place is called, in the order of overlay::numbersOf(), translated in the
/// context of the coordinates dialog.
QString numberCaption(overlay::ToolKind kind, int number);

/// The row's texts: name, type, high, low, average.
using ToolCells = std::array<QString, 5>;
ToolCells toolCells(const ToolRow& row);

/// What stands above these texts, translated in the context of the analysis window.
ToolCells toolCaptions();

} // namespace analysis
