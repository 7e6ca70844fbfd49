// SPDX-License-Identifier: MIT
#include "simulator/simulated_disk.h"

#include "analysis/photograph/layouts.h"
#include "files/paths.h"
#include "files/whole_file.h"
#include "platform/removable_drives.h"

#include <QDir>
#include <QFile>
#include <QLocale>

namespace simulator {
namespace {

struct Drives
{
    int disks = 0;
    QStringList pluggedRoots;
};

Drives& drives()
{
    static Drives instance;
    return instance;
}

QString folderOf(int modelIndex)
{
    return QString::fromLatin1(analysis::format::layoutOf(modelIndex).folder);
}

} // namespace

SimulatedDisk::SimulatedDisk(QObject* parent)
    : QObject(parent), m_root(m_temporary.path() + QStringLiteral("/IMAGER/"))
{
    QDir(m_temporary.path()).mkpath(QStringLiteral("out/") + folderOf(0));
    ++drives().disks;
    platform::setDriveProvider([] { return drives().pluggedRoots; });
}

SimulatedDisk::~SimulatedDisk()
{
    drives().pluggedRoots.removeOne(m_root);
    if (--drives().disks == 0)
        platform::setDriveProvider({});
}

void SimulatedDisk::plug()
{
    if (m_plugged)
        return;
    QDir(m_temporary.path()).rename(QStringLiteral("out"), QStringLiteral("IMAGER"));
    m_plugged = true;
    drives().pluggedRoots.append(m_root);
    emit pluggedChanged(true);
}

void SimulatedDisk::unplug()
{
    if (!m_plugged)
        return;
    QDir(m_temporary.path()).rename(QStringLiteral("IMAGER"), QStringLiteral("out"));
    m_plugged = false;
    drives().pluggedRoots.removeOne(m_root);
    emit pluggedChanged(false);
}

QString SimulatedDisk::store(const QByteArray& photograph, int modelIndex, const QDateTime& takenAt)
{
    const QString folder = m_root + folderOf(modelIndex);
    if (!m_plugged || !QDir().mkpath(folder))
        return {};
    const QString name =
        files::pathIn(folder, QLocale::c().toString(takenAt, QStringLiteral("yyyyMMdd_hhmmss")));
    QString path = name + QStringLiteral(".bmp");
    for (int number = 2; QFile::exists(path); ++number)
        path = name + QStringLiteral("_%1.bmp").arg(number);
    return files::writeWholeFile(path, photograph, files::Existing::Refuse).isGood() ? path
                                                                                     : QString();
}

} // namespace simulator
