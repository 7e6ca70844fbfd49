// SPDX-License-Identifier: MIT
#pragma once

#include <QCameraInfo>
#include <QString>

#include <optional>

/// Which of the system's cameras is the imager.
namespace live {

/// True for the imager: the USB identity (platform::cameraUsbIdentity()) holds "usb#vid_1d6b" and
/// "pid_0102", and the description is "UVC Camera", nothing more or less. Upper and lower case
/// matter.
bool isImager(const QString& usbIdentity, const QString& description);

/// The same, asked of a camera as the system lists it.
bool isImager(const QCameraInfo& camera);

/// The first imager among the cameras there are now, if any.
std::optional<QCameraInfo> findImager();

} // namespace live
