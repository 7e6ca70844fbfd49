// SPDX-License-Identifier: MIT
#include "live/live_camera.h"

#include "live/imager_camera.h"
#include "live/qt_camera_capture.h"

#include <QCamera>
#include <QCameraInfo>
#include <QDebug>

namespace live {

LiveCamera::LiveCamera() : capture(std::make_unique<QtCameraCapture>()) {}

LiveCamera::~LiveCamera() = default;

void LiveCamera::open()
{
    const auto imager = findImager();
    if (!imager)
        return;
    camera = std::make_unique<QCamera>(*imager);
    camera->setViewfinder(capture.get());
    camera->start();
}

void LiveCamera::reopen()
{
    stopCamera();
    const QList<QCameraInfo> cameras = QCameraInfo::availableCameras();
    for (const QCameraInfo& info : cameras) {
        qDebug().noquote() << QStringLiteral("可用相机:") << info.description();
        if (isImager(info))
            break;
    }
    open();
    if (camera)
        camera->start();
}

void LiveCamera::checkHealth()
{
    if (!camera)
        return;
    cameraRunning = camera->error() == QCamera::NoError;
    if (!cameraRunning)
        camera->stop();
}

void LiveCamera::stopCamera()
{
    if (camera)
        camera->stop();
}

} // namespace live
