// SPDX-License-Identifier: MIT
#include "tests/support/wine_drive.h"

#include <QByteArray>

#include <cstring>
#include <windows.h>
#include <winioctl.h>

namespace testing {
namespace {

// Wine's mount manager and what it wants to be told, see its ddk/mountmgr.h.
constexpr wchar_t mountManager[] = L"\\\\.\\MountPointManager";
constexpr DWORD defineUnixDrive =
    CTL_CODE(DWORD('m'), 32, METHOD_BUFFERED, FILE_READ_ACCESS | FILE_WRITE_ACCESS);

struct UnixDrive
{
    ULONG size;
    ULONG type; ///< as GetDriveType() gives it; DRIVE_NO_ROOT_DIR takes the drive away
    ULONG fileSystem;
    DWORD serial;
    ULONGLONG unixDevice;
    WCHAR letter;
    USHORT mountPointOffset; ///< of a zero-terminated unix path behind this record; 0: none
    USHORT deviceOffset;
    USHORT labelOffset;
};

bool define(char letter, ULONG type, const QByteArray& unixFolder)
{
    UnixDrive drive = {};
    drive.letter = WCHAR(letter - 'A' + 'a');
    drive.type = type;
    drive.mountPointOffset = unixFolder.isEmpty() ? 0 : sizeof drive;
    QByteArray record(sizeof drive, '\0');
    if (!unixFolder.isEmpty())
        record.append(unixFolder).append('\0');
    drive.size = ULONG(record.size());
    std::memcpy(record.data(), &drive, sizeof drive);

    const HANDLE manager =
        CreateFileW(mountManager, GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                    nullptr, OPEN_EXISTING, 0, nullptr);
    if (manager == INVALID_HANDLE_VALUE)
        return false;
    DWORD returned = 0;
    const bool defined = DeviceIoControl(manager, defineUnixDrive, record.data(), drive.size,
                                         nullptr, 0, &returned, nullptr);
    CloseHandle(manager);
    return defined;
}

/// The folder as the system under Wine calls it; empty without Wine.
QByteArray unixPath(const QString& folder)
{
    using Converter = char*(CDECL*)(const WCHAR*);
    const auto convert = reinterpret_cast<Converter>(reinterpret_cast<void*>(
        GetProcAddress(GetModuleHandleW(L"kernel32"), "wine_get_unix_file_name")));
    if (!convert)
        return {};
    char* const path = convert(reinterpret_cast<const WCHAR*>(folder.utf16()));
    const QByteArray copy(path);
    HeapFree(GetProcessHeap(), 0, path);
    return copy;
}

} // namespace

WineDrive::WineDrive(char letter) : m_letter(letter)
{
    unplug();
}

WineDrive::~WineDrive()
{
    unplug();
}

QString WineDrive::root() const
{
    return QLatin1Char(m_letter) + QStringLiteral(":/");
}

bool WineDrive::plug(const QString& folder, Kind kind)
{
    const QByteArray path = unixPath(folder);
    ULONG type = DRIVE_REMOVABLE;
    switch (kind) {
    case Kind::Removable:
        break;
    case Kind::Fixed:
        type = DRIVE_FIXED;
        break;
    case Kind::CdRom:
        type = DRIVE_CDROM;
        break;
    case Kind::Network:
        type = DRIVE_REMOTE;
        break;
    }
    return !path.isEmpty() && define(m_letter, type, path);
}

void WineDrive::unplug()
{
    define(m_letter, DRIVE_NO_ROOT_DIR, {});
}

} // namespace testing
