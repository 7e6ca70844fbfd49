// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// The thinking half of cameraUsbIdentity() on Linux, apart from the real /sys.
namespace platform {

/// The identity of the video device with the given file name ("video0"), read from the folder of
/// video devices, normally "/sys/class/video4linux". Empty when the device does not hang on USB.
QString usbIdentityOfVideoDevice(const QString& fileName, const QString& sysVideo4Linux);

} // namespace platform
