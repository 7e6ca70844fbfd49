#pragma once

#include <QPixmap>
#include <QString>

/// Pictures in files that anyone may have made.
namespace platform {

/// A few bytes can claim to be a picture that takes seconds and gigabytes to unfold. What the
/// imager makes has 240 × 320 pixels; this is two hundred times as many, and 64 MB.
constexpr int mostPicturePixels = 4096 * 4096;

/// The picture in a file, in whatever format its content says. Null when it cannot be read, or
/// claims to have more than mostPicturePixels.
QPixmap pictureInFile(const QString& path);

} // namespace platform
