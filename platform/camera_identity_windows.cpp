// SPDX-License-Identifier: MIT
#include "platform/camera_identity.h"

#include <QCameraInfo>

namespace platform {

QString cameraUsbIdentity(const QCameraInfo& camera)
{
    return camera.deviceName();
}

} // namespace platform
