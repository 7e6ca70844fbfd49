// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/photograph/area.h"
#include "analysis/photograph/photograph_reader.h"
#include "overlay/tools.h"
#include "tools/command_line.h"
#include "tools/correction_options.h"
#include "tools/ordered_work.h"
#include "tools/photograph_list.h"

/// What commands that measure are asked for, and the temperatures that they all measure.
namespace tools {

void addMeasuringOptions(CommandLine& line, const QString& toolsDescription);

/// The units as values of an option.
std::vector<std::pair<const char*, std::optional<analysis::Unit>>> unitNames();

/// Without --unit, the photograph's own.
std::optional<analysis::Unit> readUnit(CommandLine& line);

/// No tools without --tools. A file that cannot be read or makes no sense is bad usage.
overlay::Tools readTools(CommandLine& line);

/// --layout, --unit and --tools, and --emissivity where addCorrectionOptions() has offered it.
struct Measuring
{
    std::optional<int> modelIndex;
    std::optional<analysis::Unit> unit;
    overlay::Tools tools;
    std::optional<WantedCorrection> correction;
    bool isWhole = false; ///< no tools were asked for: the whole picture is measured
};
Measuring readMeasuring(CommandLine& line);

/// One photograph as it is measured.
struct MeasuredPhotograph
{
    const analysis::Temperatures& temperatures;
    analysis::ShownUnit shown;
    std::optional<analysis::Correction> correction; ///< that has made the temperatures

    /// Of the tools in their order, or of the whole picture under the name "picture".
    std::vector<analysis::Area> areas(const Measuring& measuring) const;
    /// The printer's columns are columnsFor() the same measuring.
    QByteArray printed(const RowPrinter& printer, const QString& file, std::vector<Row> rows) const;
};

/// These columns, and behind them what says that the readings are corrected, if they are.
std::vector<Column> columnsFor(const Measuring& measuring, std::vector<Column> columns);

/// Reads the photograph and lets it be measured; in any thread.
Result measured(const Entry& entry, analysis::PhotographReader& reader, const Measuring& measuring,
                const std::function<Result(const MeasuredPhotograph&)>& measure);

} // namespace tools
