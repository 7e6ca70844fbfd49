// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/report/report.h"
#include "overlay/spots.h"
#include "overlay/tools.h"

namespace testing {

/// A point, a line, a rectangle, a circle and all three spots.
struct SampleTools : overlay::Tools, overlay::Spots
{
    SampleTools();
};

/// A report with a made-up scene from 20.0 to 52.5 °C and tools on the picture, in the given unit;
/// `toolCount` rows in the table, whose texts are in `language` ("CH", "EN", "RU" or "KO").
analysis::Report sampleReport(const QString& language, int unitIndex, int toolCount);

} // namespace testing
