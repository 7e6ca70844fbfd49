// SPDX-License-Identifier: MIT
#include "tests/analysis/pdf_reader.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QXmlStreamReader>

namespace testing {
namespace {

/// What the program prints; empty when it fails.
QByteArray output(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments, QIODevice::ReadOnly);
    const bool well = process.waitForFinished(-1) && process.exitStatus() == QProcess::NormalExit &&
                      process.exitCode() == 0;
    return well ? process.readAllStandardOutput() : QByteArray();
}

} // namespace

QVector<QVector<PdfWord>> pdfWords(const QString& path)
{
    QVector<QVector<PdfWord>> pages;
    QXmlStreamReader xml(output(QStringLiteral("pdftotext"), {"-bbox", path, "-"}));
    while (!xml.atEnd()) {
        xml.readNext();
        if (!xml.isStartElement())
            continue;
        if (xml.name() == QLatin1String("page"))
            pages.append(QVector<PdfWord>());
        if (xml.name() == QLatin1String("word") && !pages.isEmpty()) {
            const QXmlStreamAttributes at = xml.attributes();
            const QRectF box(QPointF(at.value("xMin").toDouble(), at.value("yMin").toDouble()),
                             QPointF(at.value("xMax").toDouble(), at.value("yMax").toDouble()));
            pages.last().append({xml.readElementText(), box});
        }
    }
    return pages;
}

QString pdfText(const QString& path)
{
    return QString::fromUtf8(output(QStringLiteral("pdftotext"), {"-layout", path, "-"}));
}

QString pdfInfo(const QString& path, const QString& key)
{
    const QStringList lines =
        QString::fromUtf8(output(QStringLiteral("pdfinfo"), {path})).split(QLatin1Char('\n'));
    for (const QString& line : lines) {
        if (line.startsWith(key + QLatin1Char(':')))
            return line.mid(key.size() + 1).trimmed();
    }
    return {};
}

QStringList pdfFonts(const QString& path)
{
    return QString::fromUtf8(output(QStringLiteral("pdffonts"), {path}))
        .split(QLatin1Char('\n'), Qt::SkipEmptyParts)
        .mid(2); // headings
}

QImage pdfPage(const QString& path, int page, int resolution, const QRect& area)
{
    const QString number = QString::number(page);
    QStringList arguments{"-r",         QString::number(resolution), "-f", number, "-l", number,
                          "-singlefile"};
    if (!area.isNull())
        arguments += {"-x", QString::number(area.x()),     "-y", QString::number(area.y()),
                      "-W", QString::number(area.width()), "-H", QString::number(area.height())};
    return QImage::fromData(output(QStringLiteral("pdftoppm"), arguments << path));
}

QVector<QImage> pdfImages(const QString& path)
{
    const QTemporaryDir folder;
    output(QStringLiteral("pdfimages"), {"-png", path, folder.filePath("image")});
    QVector<QImage> images;
    const QStringList files = QDir(folder.path()).entryList({"*.png"}, QDir::Files, QDir::Name);
    for (const QString& file : files) {
        const QImage image(folder.filePath(file));
        if (!image.isGrayscale()) // masks are
            images.append(image);
    }
    return images;
}

} // namespace testing
