// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/photograph/photograph_reader.h"

#include <QByteArray>

#include <vector>

namespace analysis {

/// Values from the top left corner on as one sample of 32-bit float: a baseline TIFF with
/// everything in its plainest form: a header, the values as one strip, texts, one directory. All
/// numbers are little-endian.
QByteArray tiffOf(const std::vector<float>& values, const ShownUnit& unit,
                  const Parameters& parameters);

} // namespace analysis
