// SPDX-License-Identifier: MIT
#pragma once

#include <QProcess>
#include <QString>
#include <QTemporaryDir>

#include <memory>

/// Disks that are really mounted, in a mount namespace of this process alone: nobody else sees
/// them, and they go with it, whatever happens. Mounting is for root.
namespace testing {

/// Takes this process into a mount namespace of its own. Before any thread starts. Returns the
/// reason why mounting is not possible, empty when it is.
QString enterPrivateMounts();

class MountedDisk
{
public:
    enum class Kind
    {
        Folder, ///< not mounted at all: an ordinary folder that is moved away and back
        Fat,    ///< a FAT image, through a driver in user space; that driver hangs once it is full
        ExFat,  ///< an exFAT image, through a driver in user space
        Ext2,   ///< an ext2 image, through the kernel's loop device
        Faulty  ///< a folder shown by faulty_disk, read-only
    };

    /// A disk of so many megabytes, not yet plugged in. A Folder has no limit.
    MountedDisk(Kind kind, int megabytes);
    ~MountedDisk();
    MountedDisk(const MountedDisk&) = delete;
    MountedDisk& operator=(const MountedDisk&) = delete;

    /// What this kind needs and this machine does not have; empty when all is there.
    static QString missing(Kind kind);

    /// The root as the drive list names it, ending in "/". Always the same.
    QString root() const { return m_place + QLatin1Char('/'); }

    /// Mounts. A Folder cannot be read-only. Waits until the disk is there; fails the run if it
    /// does not come.
    void plug(bool readOnly = false);
    /// Pulls the disk out in the middle of whatever goes on: open files stay readable where the
    /// system keeps them, the folder is empty at once. Any thread, while plugged in.
    void pullOut();
    /// Behind pullOut(): waits for the driver to end, so that the disk can be plugged in again.
    void settle();
    /// The driver is killed: from now on everything ends in an error, until unplugged. Not for Ext2
    /// and Folder, which have none.
    void killDriver();

    /// For Faulty: what fails from now on, as faulty_disk knows it; empty for nothing. Any thread.
    void setFault(const char* fault);
    /// For Faulty: where the files it shows are kept and can be written.
    QString source() const { return m_files.path() + QStringLiteral("/source"); }

private:
    void makeImage(int megabytes);
    void waitForMount() const;

    const Kind m_kind;
    QTemporaryDir m_files;
    QString m_place;
    std::unique_ptr<QProcess> m_driver; ///< Fat, ExFat and Faulty, while plugged in
    bool m_plugged = false;
};

} // namespace testing
