// SPDX-License-Identifier: MIT
#include "platform/removable_drives.h"

#include <QDir>

#include <windows.h>

namespace platform {

QStringList systemRemovableDrives()
{
    QStringList roots;
    const QFileInfoList drives = QDir::drives();
    for (const QFileInfo& drive : drives) {
        const QString path = drive.absolutePath();
        if (GetDriveTypeW(reinterpret_cast<LPCWSTR>(path.utf16())) == DRIVE_REMOVABLE)
            roots.append(path);
    }
    return roots;
}

} // namespace platform
