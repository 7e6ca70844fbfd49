// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/// The thinking half of removableDrives() on Linux, apart from the real /proc and /sys so that it
/// can be tried on made-up ones.
namespace platform {

/// The mount points, each ending in "/", whose block device is removable or hangs on a USB bus.
/// `mountInfo` is the text of /proc/self/mountinfo (see proc(5)); `sysDevBlock` is the folder in
/// which "8:17" leads to a block device, normally "/sys/dev/block". Lines that make no sense are
/// passed over; a device mounted twice counts once, at its first place.
QStringList removableMountPoints(const QByteArray& mountInfo, const QString& sysDevBlock);

} // namespace platform
