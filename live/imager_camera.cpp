// SPDX-License-Identifier: MIT
#include "live/imager_camera.h"

#include "platform/camera_identity.h"

#include <algorithm>

namespace live {

bool isImager(const QString& usbIdentity, const QString& description)
{
    return usbIdentity.contains(QLatin1String("usb#vid_1d6b")) &&
           usbIdentity.contains(QLatin1String("pid_0102")) &&
           description == QLatin1String("UVC Camera");
}

bool isImager(const QCameraInfo& camera)
{
    return isImager(platform::cameraUsbIdentity(camera), camera.description());
}

std::optional<QCameraInfo> findImager()
{
    const QList<QCameraInfo> cameras = QCameraInfo::availableCameras();
    const auto imager = std::find_if(cameras.begin(), cameras.end(),
                                     [](const QCameraInfo& camera) { return isImager(camera); });
    if (imager == cameras.end())
        return std::nullopt;
    return *imager;
}

} // namespace live
