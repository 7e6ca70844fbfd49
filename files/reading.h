// SPDX-License-Identifier: MIT
#pragma once

#include "files/outcome.h"

#include <QByteArray>
#include <QFile>

/// Reading files that strangers may have put there. Only regular files, and links to them, are ever
/// opened: a pipe would make the program wait for ever, a device give bytes without end.
namespace files {

/// Opens a file for reading; the file must not be open. Nothing is open unless the outcome is good.
Outcome openForReading(QFile& file, QIODevice::OpenMode mode = QIODevice::ReadOnly);

/// All bytes of a file of at most `most` bytes. Memory is only asked for once the size is known.
/// `bytes` stays as it was unless the outcome is good.
Outcome readWhole(const QString& path, qint64 most, QByteArray& bytes);

} // namespace files
