// SPDX-License-Identifier: MIT
#include "platform/removable_drives.h"

#include <utility>

namespace platform {
namespace {

DriveProvider& installedProvider()
{
    static DriveProvider provider;
    return provider;
}

} // namespace

QStringList removableDrives()
{
    const DriveProvider& provider = installedProvider();
    return provider ? provider() : systemRemovableDrives();
}

void setDriveProvider(DriveProvider provider)
{
    installedProvider() = std::move(provider);
}

} // namespace platform
