// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QFont>
#include <QString>

namespace analysis {

/// Qt's PDF engine names every embedded glyph after the first character that has it. Fonts for
/// Chinese share glyphs between words and radicals, so a reader that searches for 大小 would find
/// nothing: the file says ⼤⼩ (U+2F24, U+2F29). This names them as they were written:
/// `written` are all characters of the file, `font` is what they were set in. All names
/// have four digits, so nothing in the file moves. Where Qt writes its tables in another way one
/// day, they stay as Qt writes them.
void nameGlyphsAsWritten(QByteArray& pdf, const QString& written, const QFont& font);

} // namespace analysis
