// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/photograph/correction.h"
#include "analysis/photograph/photograph_reader.h"

#include <QByteArray>

#include <vector>

namespace analysis {

/// Values from the top left corner on as one sample of 32-bit float: a baseline TIFF with
/// everything in its plainest form: a header, the values as one strip, texts, one directory. All
/// numbers are little-endian. Its description says that they are corrected, if they are.
QByteArray tiffOf(const std::vector<float>& values, const ShownUnit& unit,
                  const Parameters& parameters, const std::optional<Correction>& correction = {});

} // namespace analysis
