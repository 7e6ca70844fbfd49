// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/photograph/correction.h"
#include "analysis/photograph/photograph_reader.h"
#include "tools/rows.h"

#include <optional>

/// --emissivity and what goes with it: readings of photographs worked out anew.
namespace tools {

class CommandLine;

/// What is asked of all photographs; what is missing is each one's own.
struct WantedCorrection
{
    double emissivity = analysis::highestEmissivity;
    std::optional<double> stored;    ///< as the photograph says
    std::optional<double> reflected; ///< in the unit that is shown; 20 °C

    analysis::Correction of(const analysis::Photograph& photograph, analysis::Unit shown) const;
};

void addCorrectionOptions(CommandLine& line);
/// Nothing without --emissivity.
std::optional<WantedCorrection> readCorrection(CommandLine& line);

/// Why the photograph cannot be corrected so; empty when it can.
QString reasonAgainst(const analysis::Correction& correction, std::optional<analysis::Unit> scale);

/// What says in each row that its numbers are corrected: the columns, and a row's cells.
std::vector<Column> correctionColumns();
Row correctionCells(const analysis::Correction& correction, analysis::Unit shown);

} // namespace tools
