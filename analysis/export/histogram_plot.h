// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/export/profile_plot.h"
#include "analysis/photograph/histogram.h"

#include <optional>
#include <vector>

namespace analysis {

/// The columns name, from, to, pixels and share, a row for each bin. With `isRange`, where somebody
/// has chosen the range, one more without a beginning for what is below it and one without an end
/// for what is above. Shares are of the pixels that have a reading.
std::vector<QStringList> histogramRows(const Area& area, const Bins& bins, bool isRange);

/// What a histogram is made of.
struct PlottedHistogram
{
    const Area& stored;
    const std::optional<Area>& corrected; ///< the same pixels; nothing without a correction
    Bins bins;
    bool isRange = false; ///< as above
    bool isLogarithmic = false;
};

/// Pixels over temperature, with the corrected readings as an outline. The table has the columns of
/// "thermaphoto histogram", and one more of the corrected readings' pixels.
plots::Plot histogramPlot(const PlottedHistogram& histogram, const PlottedReadings& readings);

} // namespace analysis
