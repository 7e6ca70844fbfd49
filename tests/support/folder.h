// SPDX-License-Identifier: MIT
#pragma once

#include <QDir>
#include <QTemporaryDir>

namespace testing {

/// Writes a file, making its folder; the run ends when that fails.
void putFile(const QString& path, const QByteArray& bytes);

/// All that a file holds; empty where it cannot be read.
QByteArray fileBytes(const QString& path);

/// A folder that is gone after the test.
class Folder
{
public:
    QString path() const { return m_folder.path(); }
    /// The path of any name in it, one that begins with ":" too.
    QString operator/(const QString& name) const { return path() + QLatin1Char('/') + name; }
    /// Writes a file, making its folder, and returns its whole path.
    QString write(const QString& name, const QByteArray& bytes) const;
    QByteArray read(const QString& name) const;
    /// Names of all files below, hidden ones too, sorted.
    QStringList files() const;

private:
    QTemporaryDir m_folder;
};

} // namespace testing
