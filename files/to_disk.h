// SPDX-License-Identifier: MIT
#pragma once

#include <system_error>

class QFileDevice;

namespace files {

/// Waits until the disk has what was written to an open file: after a power failure a name can be
/// there without its bytes otherwise. Good where a file system cannot be asked.
std::error_code toDisk(QFileDevice& file);

} // namespace files
