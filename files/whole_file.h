// SPDX-License-Identifier: MIT
#pragma once

#include "files/outcome.h"

#include <QByteArray>
#include <QDateTime>
#include <QFile>

namespace files {

/// What becomes of a file that has the name already.
enum class Existing
{
    Refuse, ///< it stays, even one that another program makes meanwhile
    Replace ///< it stays until the new one is whole and on the disk; links lead on to their file
};

/// A file that becomes complete or stays absent: its bytes go into a hidden file beside it, which
/// takes the name only when all of them are there. Whatever fails, or an object that goes before
/// finish(), leaves nothing behind, and what had the name before stays. Only regular files that may
/// be written to are ever replaced, and what replaces one has its permissions. The folder must
/// exist.
///
/// A program that is killed can leave ".thermadesk-*.part" behind, which is in nobody's way.
/// Threads may write side by side.
class WholeFile
{
public:
    WholeFile(const QString& path, Existing existing);
    ~WholeFile();
    WholeFile(const WholeFile&) = delete;
    WholeFile& operator=(const WholeFile&) = delete;

    // In this order, until one of them fails.
    Outcome open();
    Outcome write(const QByteArray& bytes);
    void setModified(const QDateTime& time); ///< where the file system can; otherwise it is now
    Outcome finish();

private:
    const QString m_path; ///< what is to be written, links followed
    const Existing m_existing;
    QFile m_aside;
};

/// Makes a folder with all folders above it; good when it is there already.
Outcome makeFolder(const QString& path);

/// Whether the name is taken and its file stays: then the work on a new one can be saved.
bool isRefused(const QString& path, Existing existing);

/// Writes a whole file in one go.
Outcome writeWholeFile(const QString& path, const QByteArray& bytes, Existing existing);

} // namespace files
