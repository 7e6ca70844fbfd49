#include "analysis/whole_file.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <atomic>
#include <filesystem>

namespace fs = std::filesystem;

namespace analysis {
namespace {

fs::path native(const QString& path)
{
    return fs::u8path(path.toUtf8().constData());
}

QString textOf(const std::error_code& error)
{
    return QString::fromLocal8Bit(error.message().c_str());
}

/// A short name, whatever the length of the file's own, that no other thread or program uses.
QString nameAside(const QString& path)
{
    static std::atomic<int> counter{0};
    return QFileInfo(path).path() + QStringLiteral("/.thermadesk-%1-%2.part")
                                        .arg(QCoreApplication::applicationPid())
                                        .arg(counter++);
}

/// Writes and closes. Returns the system's reason when that fails, which may be as late as on
/// closing.
QString writeAll(QFile& file, const QByteArray& bytes)
{
    // A disk that is filling up takes a part of it first and tells the reason the next time.
    qint64 written = 0;
    while (written < bytes.size()) {
        const qint64 count = file.write(bytes.constData() + written, bytes.size() - written);
        if (count <= 0)
            return file.errorString();
        written += count;
    }
    file.close();
    return file.error() == QFile::NoError ? QString() : file.errorString();
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

Outcome writeWholeFile(const QString& path, const QByteArray& bytes, bool overwrite)
{
    // Taking the name of a pipe or a device would remove it.
    const QFileInfo target(path);
    if (overwrite && target.exists() && !target.isFile())
        return {Problem::CannotWrite, textOf(std::make_error_code(std::errc::file_exists))};
    QFile aside(nameAside(path));
    if (!aside.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered))
        return {Problem::CannotWrite, aside.errorString()};
    const QString failure = writeAll(aside, bytes);
    if (!failure.isEmpty()) {
        aside.remove();
        return {Problem::CannotWrite, failure};
    }

    std::error_code error;
    if (overwrite)
        fs::rename(native(aside.fileName()), native(path), error);
    else
        error = moveToFreeName(native(aside.fileName()), native(path));
    if (!error)
        return {};
    aside.remove();
    if (error == std::errc::file_exists)
        return {Problem::AlreadyThere, {}};
    return {Problem::CannotWrite, textOf(error)};
}

} // namespace analysis
