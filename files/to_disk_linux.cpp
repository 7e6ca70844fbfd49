// SPDX-License-Identifier: MIT
#include "files/to_disk.h"

#include <QFileDevice>

#include <cerrno>
#include <unistd.h>

namespace files {

std::error_code toDisk(QFileDevice& file)
{
    if (fsync(file.handle()) == 0 || errno == EINVAL)
        return {};
    return {errno, std::generic_category()};
}

} // namespace files
