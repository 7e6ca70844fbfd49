// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/photograph/photograph_reader.h"
#include "analysis/photograph/tool_statistics.h"
#include "analysis/report/report.h"

namespace analysis {

/// The report of a photograph that no window shows: as the save button of a window would write it
/// that has just opened the photograph and was switched to `unit`, the colour bar untouched.
/// `language` as Report::language takes it.
Report photographReport(const QString& path, const PhotographReader& reader,
                        std::optional<Unit> unit, const overlay::Tools& tools,
                        const QString& language);

} // namespace analysis
