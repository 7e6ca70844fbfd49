// SPDX-License-Identifier: MIT
#include "files/to_disk.h"

#include <QFileDevice>

#include <cerrno>
#include <io.h>

namespace files {

std::error_code toDisk(QFileDevice& file)
{
    // Qt opens files by the system's own means here and may have no number for them.
    const int number = file.handle();
    if (number < 0 || _commit(number) == 0)
        return {};
    return {errno, std::generic_category()};
}

} // namespace files
