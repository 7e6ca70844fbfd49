// SPDX-License-Identifier: MIT
#pragma once

#include "simulator/simulated_camera.h"

#include <QCamera>
#include <QCameraInfo>

#include <memory>

/// What the tests of the simulated camera share: a second device, and cameras as users open them.
namespace testing {

inline const simulator::CameraIdentity webcam{QStringLiteral("\\\\?\\usb#vid_046d&pid_0825#1"),
                                              QStringLiteral("Webcam")};

inline simulator::SimulatedCamera& simulated()
{
    return simulator::SimulatedCamera::instance();
}

/// How often Qt lists it.
inline int countOf(const simulator::CameraIdentity& identity)
{
    int count = 0;
    for (const QCameraInfo& info : QCameraInfo::availableCameras())
        count +=
            info.deviceName() == identity.deviceName && info.description() == identity.description
                ? 1
                : 0;
    return count;
}

inline QCameraInfo infoOf(const simulator::CameraIdentity& identity)
{
    return QCameraInfo(identity.deviceName.toUtf8());
}

/// A camera as a user opens one, started.
inline std::unique_ptr<QCamera>
startedCamera(QAbstractVideoSurface* surface,
              const simulator::CameraIdentity& identity = simulator::imagerIdentity())
{
    auto camera = std::make_unique<QCamera>(infoOf(identity));
    camera->setViewfinder(surface);
    camera->start();
    return camera;
}

} // namespace testing
