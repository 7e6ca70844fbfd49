// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QRectF>
#include <QString>
#include <QStringList>
#include <QVector>

/// Looks at PDF files with poppler's tools, which know nothing of how ours are made.
namespace testing {

/// A word as it stands on a page; points from the page's top left corner.
struct PdfWord
{
    QString text;
    QRectF box;
};

/// One list of words for each page.
QVector<QVector<PdfWord>> pdfWords(const QString& path);

/// The text of all pages.
QString pdfText(const QString& path);

/// "Pages" → "2" and so on; dates in local time.
QString pdfInfo(const QString& path, const QString& key);

/// One line for each font: name, type, encoding, emb, sub, uni, object ID.
QStringList pdfFonts(const QString& path);

/// A page (from 1) as a picture with the given dots per inch, or an area of it, in these dots.
QImage pdfPage(const QString& path, int page, int resolution, const QRect& area = {});

/// The pictures embedded in the file, without their masks.
QVector<QImage> pdfImages(const QString& path);

} // namespace testing
