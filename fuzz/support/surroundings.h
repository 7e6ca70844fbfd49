// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

namespace fuzz {

/// Before all inputs: a home folder of its own, no display, no audio device, no log. With
/// `windows`, an application object and the resources that windows ask for.
void prepare(bool windows = false);

/// Replaces a file, which must work.
void putFile(const QString& path, const QByteArray& bytes);

} // namespace fuzz
