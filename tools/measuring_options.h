// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/photograph/photograph_reader.h"
#include "overlay/tools.h"
#include "tools/command_line.h"

/// What commands that measure are asked for: --tools and --unit.
namespace tools {

void addMeasuringOptions(CommandLine& line, const QString& toolsDescription);

/// The units as values of an option.
std::vector<std::pair<const char*, std::optional<analysis::Unit>>> unitNames();

/// Without --unit, the photograph's own.
std::optional<analysis::Unit> readUnit(CommandLine& line);

/// No tools without --tools. A file that cannot be read or makes no sense is bad usage.
overlay::Tools readTools(CommandLine& line);

} // namespace tools
