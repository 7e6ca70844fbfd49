// SPDX-License-Identifier: MIT
#include "files/reading.h"

#include "files/paths.h"

#include <QFileInfo>

namespace files {

Outcome openForReading(QFile& file, QIODevice::OpenMode mode)
{
    const QFileInfo info(file);
    if (info.exists() && !info.isFile())
        return {Problem::NotAFile, {}};
    if (!file.open(mode))
        return {Problem::CannotRead, file.errorString()};
    return {};
}

Outcome readWhole(const QString& path, qint64 most, QByteArray& bytes)
{
    QFile file(localPath(path));
    const Outcome opened = openForReading(file);
    if (!opened.isGood())
        return opened;
    if (file.size() > most)
        return {Problem::TooLarge, QStringLiteral("%1/%2").arg(file.size()).arg(most)};
    QByteArray read = file.read(most);
    if (file.error() != QFile::NoError)
        return {Problem::CannotRead, file.errorString()};
    bytes = std::move(read);
    return {};
}

} // namespace files
