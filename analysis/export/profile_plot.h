// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/photograph/photograph_reader.h"
#include "analysis/photograph/profile.h"
#include "plots/plot.h"

#include <vector>

namespace analysis {

/// A photograph as plots need it: its readings and, while there is a correction, the corrected ones
/// beside them.
struct PlottedReadings
{
    QString file; ///< its name
    ShownUnit unit;
    const Temperatures& stored;
    const Temperatures* corrected = nullptr; ///< null without a correction
    QString correctionName = {};
};

/// The columns name, distance, x, y and temperature, a row for each pixel.
std::vector<QStringList> profileRows(const QString& name, const std::vector<ProfilePoint>& points);

/// Temperatures over the distance along lines.
struct ProfilePlot
{
    plots::Plot plot;
    /// The pixels of each curve's points.
    std::vector<std::vector<ProfilePoint>> pixels;
};

/// A curve for each line that has one, and a dashed one of its corrected readings. A line keeps its
/// colour whichever of the others are plotted: `lines` are all of the picture's, `plotted` the
/// numbers of those that are wanted. The table has the columns of "thermaphoto profile", and one
/// more of the corrected readings.
ProfilePlot profilePlot(const QVector<overlay::LineTool>& lines, const std::vector<int>& plotted,
                        const PlottedReadings& readings);

} // namespace analysis
