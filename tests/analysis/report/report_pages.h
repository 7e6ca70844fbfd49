// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/report/report.h"
#include "tests/analysis/pdf_reader.h"

#include <QStringList>
#include <QVector>

/// What the tests of the report's pages share: the words that belong on them, and where.
namespace testing {

constexpr double halfMillimetre = 0.5 / 25.4 * 72.0; // points
constexpr double dotsPerPoint = 1200.0 / 72.0;

/// Device pixels of the page's painter to points of the page.
constexpr double points(double device)
{
    constexpr double margin = 10.0; // points
    return margin + device / dotsPerPoint;
}

/// The texts of one language as its users read them.
struct Words
{
    QString imageInformation, time, fileName, fileSize, size, emissivity, unit, centre, average,
        maximum, minimum, measurements;
    QStringList header;
};

/// Of "CH", "EN", "RU" or "KO".
Words words(const QString& language);

/// A text, where its baseline starts, in device pixels, and its weight.
struct Text
{
    QString text;
    int x;
    int y;
    int weight = 50;
};

/// What stands on the first page.
QVector<Text> firstPage(const QString& language, const analysis::Report& report);

/// One text after another on pages of their own, by a printer that writes to `path`: where a
/// printer puts them.
QVector<QVector<PdfWord>> asPrinted(const QVector<Text>& texts, const QString& language,
                                    const QString& path);

/// True when the page holds the text with its first word's left edge and baseline at the place that
/// the printer gave it, within half a millimetre, and as wide as there: in its size and weight.
bool stands(const QVector<PdfWord>& page, const QString& text, const QRectF& printed);

/// True when two words of a page lie over each other.
bool overlapping(const QVector<PdfWord>& page);

} // namespace testing
