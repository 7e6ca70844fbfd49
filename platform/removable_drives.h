// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

#include <functional>

/// What the operating system knows about disks that come and go.
namespace platform {

/// The roots of the mounted removable drives, in the system's order, absolute and ending in "/"
/// ("E:/", "/media/user/IMAGER/"). Windows: drives of type DRIVE_REMOVABLE. Linux: volumes mounted
/// from removable or USB-attached block devices, except those the system itself runs from.
/// A failed enumeration yields an empty list. Cheap enough to be asked several times a second.
QStringList removableDrives();

using DriveProvider = std::function<QStringList()>;

/// Lets the simulated disk answer removableDrives() in the system's place; an empty provider gives
/// the question back to the system. GUI thread only.
void setDriveProvider(DriveProvider provider);

/// The system's own answer, whatever provider is installed (one source file per system).
QStringList systemRemovableDrives();

} // namespace platform
