// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QCameraInfo;

namespace platform {

/// The camera's USB identity in the form that Windows gives to device paths, for instance
/// "\\?\usb#vid_1d6b&pid_0102&mi_00#...". On Windows it is the device name as it stands. Linux
/// names cameras "/dev/video0"; their identity is put together from the system's device tree. A
/// name of any other form (the simulated camera's) is returned as it is.
QString cameraUsbIdentity(const QCameraInfo& camera);

} // namespace platform
