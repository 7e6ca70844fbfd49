// SPDX-License-Identifier: MIT
#include "tests/faults/mounted_disk.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QStandardPaths>
#include <QThread>

#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>

namespace testing {
namespace {

constexpr int patience = 20'000; // ms

QString program(const char* name)
{
    const QString found = QStandardPaths::findExecutable(QLatin1String(name));
    return found.isEmpty()
               ? QStandardPaths::findExecutable(
                     QLatin1String(name), {QStringLiteral("/sbin"), QStringLiteral("/usr/sbin")})
               : found;
}

/// Returns what it printed.
QString runOrDie(const char* name, const QStringList& arguments)
{
    QProcess process;
    process.start(program(name), arguments);
    if (!process.waitForFinished(patience) || process.exitCode() != 0)
        qFatal("%s failed: %s", name, process.readAllStandardError().constData());
    return QString::fromLocal8Bit(process.readAllStandardOutput()).trimmed();
}

/// Of the file system on which the path lies.
dev_t device(const QString& path)
{
    struct stat found = {};
    return stat(path.toUtf8().constData(), &found) == 0 ? found.st_dev : 0;
}

} // namespace

QString enterPrivateMounts()
{
    if (unshare(CLONE_NEWNS) != 0 || mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0)
        return QStringLiteral("no mount namespace: %1").arg(qt_error_string());
    return {};
}

QString MountedDisk::missing(Kind kind)
{
    const auto need = [](std::initializer_list<const char*> names) {
        QStringList lacking;
        for (const char* name : names) {
            if (program(name).isEmpty())
                lacking.append(QLatin1String(name));
        }
        return lacking.isEmpty() ? QString()
                                 : QStringLiteral("no ") + lacking.join(QStringLiteral(", "));
    };
    const bool haveFuse = QFile::exists(QStringLiteral("/dev/fuse"));
    const QString noFuse = QStringLiteral("no /dev/fuse");
    switch (kind) {
    case Kind::Folder:
        break;
    case Kind::Fat:
        return haveFuse ? need({"fusefat", "mkfs.fat"}) : noFuse;
    case Kind::ExFat:
        return haveFuse ? need({"mount.exfat-fuse", "mkfs.exfat", "losetup"}) : noFuse;
    case Kind::Ext2:
        return QFile::exists(QStringLiteral("/dev/loop-control"))
                   ? need({"mount", "mkfs.ext2"})
                   : QStringLiteral("no loop devices");
    case Kind::Faulty:
        if (!haveFuse)
            return noFuse;
        return qstrlen(FAULTY_DISK) == 0 ? QStringLiteral("built without libfuse3") : QString();
    }
    return {};
}

MountedDisk::MountedDisk(Kind kind, int megabytes)
    : m_kind(kind), m_place(m_files.path() + QStringLiteral("/IMAGER"))
{
    QDir(m_files.path()).mkpath(QStringLiteral("source"));
    if (kind == Kind::Folder)
        return;
    QDir().mkpath(m_place);
    if (kind != Kind::Faulty)
        makeImage(megabytes);
    setFault("");
}

MountedDisk::~MountedDisk()
{
    if (m_plugged) {
        pullOut();
        settle();
    }
}

void MountedDisk::makeImage(int megabytes)
{
    const QString image = m_files.filePath(QStringLiteral("image"));
    QFile file(image);
    if (!file.open(QIODevice::WriteOnly) || !file.resize(qint64(megabytes) * 1024 * 1024))
        qFatal("no room for a disk image");
    file.close();
    if (m_kind == Kind::Fat)
        runOrDie("mkfs.fat", {image});
    else if (m_kind == Kind::ExFat)
        runOrDie("mkfs.exfat", {image});
    else
        runOrDie("mkfs.ext2",
                 {QStringLiteral("-q"), QStringLiteral("-m"), QStringLiteral("0"), image});
}

void MountedDisk::plug(bool readOnly)
{
    const QString image = m_files.filePath(QStringLiteral("image"));
    m_driver = std::make_unique<QProcess>();
    m_driver->setStandardOutputFile(QProcess::nullDevice());
    m_driver->setStandardErrorFile(QProcess::nullDevice());
    switch (m_kind) {
    case Kind::Folder:
        if (!QDir(m_files.path()).rename(QStringLiteral("source"), QStringLiteral("IMAGER")))
            qFatal("the folder did not come");
        break;
    case Kind::Fat:
        // "rw+" is how this driver is asked to write at all. One thread: it knows no more.
        m_driver->start(program("fusefat"),
                        {QStringLiteral("-f"), QStringLiteral("-s"), QStringLiteral("-o"),
                         readOnly ? QStringLiteral("ro") : QStringLiteral("rw+"), image, m_place});
        waitForMount();
        break;
    case Kind::ExFat: {
        const QString block =
            runOrDie("losetup", {QStringLiteral("--find"), QStringLiteral("--show"), image});
        m_driver->start(program("mount.exfat-fuse"),
                        {QStringLiteral("-d"), QStringLiteral("-o"),
                         readOnly ? QStringLiteral("ro") : QStringLiteral("rw"), block, m_place});
        waitForMount();
        runOrDie("losetup", {QStringLiteral("-d"), block}); // as soon as the driver lets go
        break;
    }
    case Kind::Ext2:
        runOrDie("mount",
                 {QStringLiteral("-t"), QStringLiteral("ext2"), QStringLiteral("-o"),
                  readOnly ? QStringLiteral("loop,ro") : QStringLiteral("loop"), image, m_place});
        break;
    case Kind::Faulty:
        m_driver->start(QStringLiteral(FAULTY_DISK),
                        {source(), m_files.filePath(QStringLiteral("control")), m_place});
        waitForMount();
        break;
    }
    m_plugged = true;
}

void MountedDisk::waitForMount() const
{
    // The driver stands for hardware, which does not queue for the processor on a busy machine.
    if (!m_driver->waitForStarted(patience) ||
        setpriority(PRIO_PROCESS, id_t(m_driver->processId()), -10) != 0)
        qFatal("no driver: %s", qPrintable(qt_error_string()));
    QElapsedTimer time;
    time.start();
    while (device(m_place) == device(m_files.path())) {
        if (time.hasExpired(patience))
            qFatal("the disk did not come");
        QThread::msleep(1);
    }
}

void MountedDisk::pullOut()
{
    m_plugged = false;
    if (m_kind == Kind::Folder)
        QDir(m_files.path()).rename(QStringLiteral("IMAGER"), QStringLiteral("source"));
    else if (umount2(m_place.toUtf8().constData(), MNT_DETACH) != 0)
        qFatal("cannot unmount: %s", qPrintable(qt_error_string()));
}

void MountedDisk::settle()
{
    if (m_driver && m_driver->state() != QProcess::NotRunning &&
        !m_driver->waitForFinished(patience))
        qFatal("the driver of the disk does not end: somebody holds a file open");
    m_driver.reset();
}

void MountedDisk::killDriver()
{
    m_driver->kill();
    m_driver->waitForFinished(patience);
}

void MountedDisk::setFault(const char* fault)
{
    // Renamed into place, so that the driver never reads half a word.
    QFile file(m_files.filePath(QStringLiteral("control-next")));
    if (!file.open(QIODevice::WriteOnly) || file.write(fault) < 0)
        qFatal("no control file");
    file.close();
    std::rename(file.fileName().toUtf8().constData(),
                m_files.filePath(QStringLiteral("control")).toUtf8().constData());
}

} // namespace testing
