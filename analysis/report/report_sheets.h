// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/report/report.h"

class QPagedPaintDevice;

namespace analysis {

/// Paints all pages, and returns every character on them.
///
/// The device is A4 at 1200 dots per inch, with margins of 10 points. Positions are its pixels,
/// counted from the corner inside the margins, as a QPrinter in high resolution has them; texts
/// stand with their baseline on y.
QString paintReport(const Report& report, QPagedPaintDevice& device);

} // namespace analysis
