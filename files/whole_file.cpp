// SPDX-License-Identifier: MIT
#include "files/whole_file.h"

#include "files/paths.h"
#include "files/to_disk.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <atomic>
#include <filesystem>

namespace fs = std::filesystem;

namespace files {
namespace {

Outcome cannotWrite(std::errc error)
{
    return {Problem::CannotWrite, textOf(std::make_error_code(error))};
}

/// Where the bytes are to be in the end: replacing a link would leave its file as it was.
QString placeOf(const QString& path, Existing existing)
{
    const QFileInfo link(path);
    if (existing == Existing::Refuse || !link.isSymLink())
        return path;
    const QString file = link.canonicalFilePath();
    return file.isEmpty() ? link.symLinkTarget() : file;
}

/// A short name, whatever the length of the file's own, that no other thread or program uses. An
/// earlier program that was killed may have had our number.
QString nameAside(const QString& path)
{
    static std::atomic<int> counter{0};
    return pathIn(QFileInfo(path).path(), QStringLiteral(".thermadesk-%1-%2.part")
                                              .arg(QCoreApplication::applicationPid())
                                              .arg(counter++));
}

/// Gives a file a second name, if that is free. Where a file system has no such names, looking
/// first and renaming then is the best there is.
std::error_code moveToFreeName(const fs::path& from, const fs::path& to)
{
    std::error_code error;
    fs::create_hard_link(from, to, error);
    if (!error) {
        fs::remove(from, error);
        return {};
    }
    std::error_code ignored;
    if (fs::exists(fs::symlink_status(to, ignored)))
        return std::make_error_code(std::errc::file_exists);
    fs::rename(from, to, error);
    return error;
}

} // namespace

WholeFile::WholeFile(const QString& path, Existing existing)
    : m_path(placeOf(localPath(path), existing)), m_existing(existing)
{
}

WholeFile::~WholeFile()
{
    if (!m_aside.fileName().isEmpty())
        m_aside.remove();
}

Outcome WholeFile::open()
{
    if (isRefused(m_path, m_existing))
        return {Problem::AlreadyThere, {}};
    const QFileInfo target(m_path);
    if (target.exists()) {
        // Taking the name of a pipe or a device would remove it.
        if (!target.isFile())
            return cannotWrite(std::errc::file_exists);
        if (!target.isWritable())
            return cannotWrite(std::errc::permission_denied);
    }
    QString failure;
    do {
        m_aside.setFileName(nameAside(m_path));
        if (m_aside.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered)) {
            if (target.exists())
                m_aside.setPermissions(target.permissions());
            return {};
        }
        failure = m_aside.errorString();
    } while (QFileInfo::exists(m_aside.fileName()));
    m_aside.setFileName({});
    return {Problem::CannotWrite, failure};
}

Outcome WholeFile::write(const QByteArray& bytes)
{
    // A disk that is filling up takes a part of it first and tells the reason the next time.
    qint64 written = 0;
    while (written < bytes.size()) {
        const qint64 count = m_aside.write(bytes.constData() + written, bytes.size() - written);
        if (count <= 0)
            return {Problem::CannotWrite, m_aside.errorString()};
        written += count;
    }
    return {};
}

void WholeFile::setModified(const QDateTime& time)
{
    m_aside.setFileTime(time, QFileDevice::FileModificationTime);
}

Outcome WholeFile::finish()
{
    std::error_code error;
    if (m_existing == Existing::Replace)
        error = toDisk(m_aside);
    m_aside.close(); // the last moment at which a disk may refuse
    if (m_aside.error() != QFile::NoError)
        return {Problem::CannotWrite, m_aside.errorString()};
    if (error)
        return {Problem::CannotWrite, textOf(error)};

    if (m_existing == Existing::Replace)
        fs::rename(nativePath(m_aside.fileName()), nativePath(m_path), error);
    else
        error = moveToFreeName(nativePath(m_aside.fileName()), nativePath(m_path));
    if (error == std::errc::file_exists)
        return {Problem::AlreadyThere, {}};
    if (error)
        return {Problem::CannotWrite, textOf(error)};
    m_aside.setFileName({});
    return {};
}

Outcome makeFolder(const QString& path)
{
    std::error_code error;
    fs::create_directories(nativePath(path), error);
    return error ? Outcome{Problem::CannotWrite, textOf(error)} : Outcome();
}

bool isRefused(const QString& path, Existing existing)
{
    return existing == Existing::Refuse && QFileInfo::exists(localPath(path));
}

Outcome writeWholeFile(const QString& path, const QByteArray& bytes, Existing existing)
{
    WholeFile file(path, existing);
    Outcome outcome = file.open();
    if (outcome.isGood())
        outcome = file.write(bytes);
    return outcome.isGood() ? file.finish() : outcome;
}

} // namespace files
