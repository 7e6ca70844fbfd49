// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QPixmap>
#include <QString>

/// Pictures in files that anyone may have made.
namespace files {

/// The picture in a file: a BMP, JPEG or PNG, whatever its name says. Null when it is none of
/// these, is not a regular file or a link to one, or cannot be read; when the file ends before its
/// pixels do; and when it claims so much that unfolding it would take seconds or gigabytes. The
/// limits: a bitmap of 4096 × 4096 pixels, not packed by run lengths; 4 million pixels of a PNG or
/// JPEG, 1 million of a progressive JPEG. Texts in a PNG are left out.
QPixmap pictureInFile(const QString& path);

/// The bytes of a picture file in a format ("png"); empty when there is no such format, or no
/// picture.
QByteArray encoded(const QImage& picture, const char* format);

} // namespace files
