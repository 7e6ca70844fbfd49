// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <vector>

namespace analysis {

/// Values from the top left corner on in NumPy's own format: little-endian 32-bit float, shape
/// (320, 240).
QByteArray npyOf(const std::vector<float>& values);

} // namespace analysis
