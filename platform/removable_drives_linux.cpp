// SPDX-License-Identifier: MIT
#include "platform/mounted_volumes_linux.h"
#include "platform/removable_drives.h"

#include <QFile>
#include <QFileInfo>
#include <QList>
#include <QSet>

namespace platform {
namespace {

/// The kernel writes blank, tab, line feed and backslash in mount points as "\040" and the like.
QByteArray unescaped(const QByteArray& field)
{
    QByteArray plain;
    for (int i = 0; i < field.size(); ++i) {
        bool isOctal = false;
        const int code = field.at(i) == '\\' ? field.mid(i + 1, 3).toInt(&isOctal, 8) : 0;
        if (isOctal && i + 3 < field.size()) {
            plain.append(char(code));
            i += 3;
        } else {
            plain.append(field.at(i));
        }
    }
    return plain;
}

bool isSystemMountPoint(const QString& mountPoint)
{
    return mountPoint == QLatin1String("/") || mountPoint == QLatin1String("/boot") ||
           mountPoint.startsWith(QLatin1String("/boot/"));
}

bool isRemovable(const QString& sysDevBlock, const QString& deviceNumber)
{
    const QString device =
        QFileInfo(sysDevBlock + QLatin1Char('/') + deviceNumber).canonicalFilePath();
    if (device.isEmpty())
        return false;
    if (device.contains(QLatin1String("/usb")))
        return true;
    // A partition's folder lies inside its disk's, and only the disk tells whether it is removable.
    for (const QString& folder : {device, QFileInfo(device).path()}) {
        QFile file(folder + QStringLiteral("/removable"));
        if (file.open(QIODevice::ReadOnly))
            return file.read(1) == "1";
    }
    return false;
}

} // namespace

QStringList removableMountPoints(const QByteArray& mountInfo, const QString& sysDevBlock)
{
    QStringList roots;
    QSet<QString> seenDevices;
    for (const QByteArray& line : mountInfo.split('\n')) {
        const QList<QByteArray> fields = line.split(' ');
        if (fields.size() < 5)
            continue;
        const QString deviceNumber = QString::fromLatin1(fields.at(2));
        const QString mountPoint = QFile::decodeName(unescaped(fields.at(4)));
        if (isSystemMountPoint(mountPoint) || seenDevices.contains(deviceNumber) ||
            !isRemovable(sysDevBlock, deviceNumber))
            continue;
        seenDevices.insert(deviceNumber);
        roots.append(mountPoint + QLatin1Char('/'));
    }
    return roots;
}

QStringList systemRemovableDrives()
{
    QFile file(QStringLiteral("/proc/self/mountinfo"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return removableMountPoints(file.readAll(), QStringLiteral("/sys/dev/block"));
}

} // namespace platform
