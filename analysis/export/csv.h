// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/photograph/photograph_reader.h"

#include <QByteArray>

#include <optional>
#include <vector>

namespace analysis {

/// Numbers have a decimal point whatever the locale.
struct CsvOptions
{
    char separator = ',';
    /// Digits behind the point, 0 … maximumDecimals, rounded as the windows do; without it nine
    /// significant digits, from which the very same 32-bit float can be read back.
    std::optional<int> decimals;
    static constexpr int maximumDecimals = 9;
    bool header = false; ///< a first line "# unit=C columns=240 rows=320"
};

/// Values from the top left corner on as text, a row of the picture on each line.
QByteArray csvOf(const std::vector<float>& values, const ShownUnit& unit,
                 const CsvOptions& options);

} // namespace analysis
