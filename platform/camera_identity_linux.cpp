// SPDX-License-Identifier: MIT
#include "platform/camera_identity.h"
#include "platform/device_tree_linux.h"

#include <QCameraInfo>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace platform {
namespace {

QString attribute(const QString& folder, const QString& name)
{
    QFile file(folder + QLatin1Char('/') + name);
    return file.open(QIODevice::ReadOnly) ? QString::fromLatin1(file.read(256)).trimmed()
                                          : QString();
}

} // namespace

QString usbIdentityOfVideoDevice(const QString& fileName, const QString& sysVideo4Linux)
{
    // The device link leads to a USB interface; the identifiers stand in the USB device above it.
    QString folder =
        QFileInfo(sysVideo4Linux + QLatin1Char('/') + fileName + QStringLiteral("/device"))
            .canonicalFilePath();
    for (; folder.count(QLatin1Char('/')) > 1; folder = QFileInfo(folder).path()) {
        const QString vendor = attribute(folder, QStringLiteral("idVendor"));
        const QString product = attribute(folder, QStringLiteral("idProduct"));
        if (!vendor.isEmpty() && !product.isEmpty())
            return QStringLiteral("\\\\?\\usb#vid_%1&pid_%2#%3")
                .arg(vendor.toLower(), product.toLower(), QFileInfo(folder).fileName());
    }
    return {};
}

QString cameraUsbIdentity(const QCameraInfo& camera)
{
    QString name = camera.deviceName();
    if (!name.startsWith(QLatin1String("/dev/")))
        return name;
    // A name under /dev may be a link ("/dev/v4l/by-id/..."); the device tree knows its target.
    const QString target = QFileInfo(name).canonicalFilePath();
    return usbIdentityOfVideoDevice(QFileInfo(target.isEmpty() ? name : target).fileName(),
                                    QStringLiteral("/sys/class/video4linux"));
}

} // namespace platform
