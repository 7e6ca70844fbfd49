// SPDX-License-Identifier: MIT
#include "analysis/report/pdf_glyph_names.h"

#include <QHash>
#include <QRawFont>
#include <QRegularExpression>

namespace analysis {
namespace {

quint32 glyphOf(const QRawFont& font, QChar character)
{
    quint32 glyph = 0;
    int count = 1;
    return font.glyphIndexesForChars(&character, 1, &glyph, &count) ? glyph : 0;
}

} // namespace

void nameGlyphsAsWritten(QByteArray& pdf, const QString& written, const QFont& font)
{
    const QRawFont rawFont = QRawFont::fromFont(font);
    QHash<quint32, QChar> byGlyph;
    for (const QChar character : written)
        byGlyph.insert(glyphOf(rawFont, character), character);

    // One glyph after another: <first> <last> [<name> <name> …], or <glyph> <glyph> <name>.
    static const QRegularExpression ranges(QStringLiteral(
        R"(<[0-9A-F]{4}> <[0-9A-F]{4}> \[[^]]*\]|<([0-9A-F]{4})> <\1> <[0-9A-F]{4}>)"));
    static const QRegularExpression name(QStringLiteral("<([0-9A-F]{4})>"));
    constexpr int twoGlyphs = 14; // "<0001> <0004> "

    const QByteArray begin("beginbfrange");
    const QByteArray end("endbfrange");
    for (int from = pdf.indexOf(begin); from >= 0; from = pdf.indexOf(begin, from + 1)) {
        const int to = pdf.indexOf(end, from);
        if (to < 0)
            return;
        const QString table = QString::fromLatin1(pdf.mid(from, to - from));
        for (auto range = ranges.globalMatch(table); range.hasNext();) {
            const QRegularExpressionMatch entry = range.next();
            for (auto names = name.globalMatch(entry.captured().mid(twoGlyphs)); names.hasNext();) {
                const QRegularExpressionMatch old = names.next();
                const QChar first(old.captured(1).toUShort(nullptr, 16));
                if (written.contains(first))
                    continue;
                const QChar character = byGlyph.value(glyphOf(rawFont, first), first);
                pdf.replace(from + entry.capturedStart() + twoGlyphs + old.capturedStart(1), 4,
                            QByteArray::number(character.unicode(), 16).rightJustified(4, '0'));
            }
        }
    }
}

} // namespace analysis
