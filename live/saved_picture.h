// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QString>

namespace live {

/// Saves a picture under the name that a user chose, in the format that its suffix names: the whole
/// file, or what was there before. A suffix that names no picture format gets a PNG. One that names
/// a format nobody here can write would be a lie, so the PNG's own suffix follows ("a.gif.png"),
/// and a number where that name is taken: nobody was asked whether it may be replaced.
///
/// Returns the path of the file; empty when none was written, a null picture's case. Any thread.
QString savePicture(const QString& path, const QImage& picture);

} // namespace live
