// SPDX-License-Identifier: MIT
#include "tests/support/folder.h"

#include <QDirIterator>

namespace testing {

void putFile(const QString& path, const QByteArray& bytes)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(path));
}

QByteArray fileBytes(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString Folder::write(const QString& name, const QByteArray& bytes) const
{
    QString path = *this / name;
    putFile(path, bytes);
    return path;
}

QByteArray Folder::read(const QString& name) const
{
    return fileBytes(*this / name);
}

QStringList Folder::files() const
{
    QStringList names;
    QDirIterator file(path(), QDir::Files | QDir::Hidden | QDir::System,
                      QDirIterator::Subdirectories);
    while (file.hasNext())
        names.append(QDir(path()).relativeFilePath(file.next()));
    names.sort();
    return names;
}

} // namespace testing
