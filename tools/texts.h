// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QJsonObject;

/// Texts for people and for programs.
namespace tools {

/// A text that stays on its line and says nothing to the terminal: control characters, which names
/// of files can hold, become "?".
QString printable(QString text);

/// The object on one line, in UTF-8. Control characters are written as escapes, all of them.
QByteArray jsonLine(const QJsonObject& object);

} // namespace tools
