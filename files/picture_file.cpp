// SPDX-License-Identifier: MIT
#include "files/picture_file.h"

#include "files/paths.h"
#include "files/reading.h"

#include <QBuffer>
#include <QImageReader>
#include <QtEndian>

#include <algorithm>
#include <cstdlib>

namespace files {

namespace {

/// What a picture may claim. What the imager makes has 240 × 320 pixels.
constexpr qint64 longestBitmapSide = 4096;
constexpr qint64 mostPixels = 4'000'000;
/// A progressive JPEG is gone through once for each of its scans; cameras write ten.
constexpr qint64 mostProgressivePixels = 1'000'000;
constexpr int mostScans = 40;
/// Of a PNG or JPEG and all that follows it in its file.
constexpr qint64 mostPackedBytes = 64'000'000;

const QByteArray bitmapStart = QByteArrayLiteral("BM");
const QByteArray jpegStart = QByteArrayLiteral("\xFF\xD8");
const QByteArray pngStart = QByteArrayLiteral("\x89PNG\r\n\x1A\n");

/// A big-endian number; 0 beyond the end.
template<typename Number>
Number numberAt(const QByteArray& bytes, qint64 offset)
{
    return offset + qint64(sizeof(Number)) <= bytes.size()
               ? qFromBigEndian<Number>(bytes.constData() + offset)
               : Number(0);
}

/// Without the format, the reader would ask the file's name and every plug-in there is.
QPixmap decoded(QIODevice& device, const char* format)
{
    QImageReader reader(&device, format);
    reader.setAutoDetectImageFormat(false);
    return QPixmap::fromImageReader(&reader);
}

QPixmap decoded(QByteArray bytes, const char* format)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    return decoded(buffer, format);
}

/// Where the pixels of a bitmap end, in bytes from the start of its file; −1 for a header that is
/// none, claims too much, or packs the pixels so that it cannot tell. A negative height means that
/// the rows stand from the top down. The reader leaves whatever was in memory where a file has no
/// pixels, so it must have them all.
qint64 endOfBitmap(const QByteArray& header)
{
    constexpr int smallestHeader = 54;
    if (header.size() < smallestHeader)
        return -1;
    const auto number = [&header](int offset) {
        return qint64(qFromLittleEndian<quint32>(header.constData() + offset));
    };
    const qint64 pixels = number(10);
    const qint64 headerBytes = number(14);
    const qint64 width = qint32(number(18));
    const qint64 height = std::abs(qint64(qint32(number(22))));
    const qint64 bits = number(28) & 0xFFFF;
    const qint64 packing = number(30);
    constexpr int plain = 0;
    constexpr int masked = 3;
    if (width < 1 || height < 1 || std::max(width, height) > longestBitmapSide ||
        headerBytes < 40 || (packing != plain && packing != masked))
        return -1;
    const qint64 colours = bits > 8 ? 0 : number(46) > 0 ? number(46) : 1 << bits;
    const qint64 masks = packing == masked && headerBytes < 108 ? 12 : 0; // or in the header
    const qint64 rowBytes = (width * bits + 31) / 32 * 4;
    return std::max(pixels, 14 + headerBytes + masks + 4 * colours) + rowBytes * height;
}

/// What the markers of a JPEG say, without unfolding anything.
struct JpegOutline
{
    qint64 pixels = 0;
    bool progressive = false;
    int scans = 0;
    bool ends = false; ///< with its end marker
};

JpegOutline outlineOfJpeg(const QByteArray& bytes)
{
    constexpr uchar lead = 0xFF; // in what is packed, it comes only before 0 and restart markers
    JpegOutline outline;
    qint64 at = jpegStart.size();
    while (at + 1 < bytes.size()) {
        const uchar marker = uchar(bytes.at(int(at + 1)));
        if (uchar(bytes.at(int(at))) != lead || marker == lead) {
            ++at;
            continue;
        }
        at += 2;
        const bool hasNoLength = marker <= 0x01 || (marker >= 0xD0 && marker <= 0xD8);
        if (hasNoLength)
            continue;
        if (marker == 0xD9) {
            outline.ends = true;
            return outline;
        }
        const bool isFrame = marker >= 0xC0 && marker <= 0xCF && marker % 4 != 0;
        if (isFrame || marker == 0xC0) {
            const qint64 pixels =
                qint64(numberAt<quint16>(bytes, at + 3)) * numberAt<quint16>(bytes, at + 5);
            outline.pixels = std::max(outline.pixels, pixels);
            outline.progressive = outline.progressive || marker % 4 == 2;
        } else if (marker == 0xDA) {
            ++outline.scans;
        }
        at += numberAt<quint16>(bytes, at);
    }
    return outline;
}

/// A file that ends early is filled with grey by the reader, so the end must be there.
QPixmap jpeg(const QByteArray& bytes)
{
    const JpegOutline outline = outlineOfJpeg(bytes);
    if (!outline.ends || outline.scans > mostScans ||
        outline.pixels > (outline.progressive ? mostProgressivePixels : mostPixels))
        return {};
    return decoded(bytes, "jpg");
}

/// Texts and colour profiles of a few bytes unfold to gigabytes; the reader is given only the
/// chunks that make the picture. Nothing if their end is not there.
QByteArray pictureOfPng(const QByteArray& bytes)
{
    QByteArray picture = pngStart;
    qint64 at = pngStart.size();
    while (at + 12 <= bytes.size()) {
        const qint64 chunk = 12 + qint64(numberAt<quint32>(bytes, at));
        if (chunk > bytes.size() - at)
            break;
        const QByteArray type = bytes.mid(int(at + 4), 4);
        const bool critical = type.at(0) >= 'A' && type.at(0) <= 'Z';
        if (critical || type == "tRNS")
            picture += bytes.mid(int(at), int(chunk));
        if (type == "IEND")
            return picture;
        at += chunk;
    }
    return {};
}

QPixmap png(const QByteArray& bytes)
{
    const QByteArray picture = pictureOfPng(bytes);
    const qint64 width = numberAt<quint32>(picture, 16);
    const qint64 height = numberAt<quint32>(picture, 20);
    if (width < 1 || width > mostPixels || height > mostPixels || width * height > mostPixels)
        return {};
    return decoded(picture, "png");
}

} // namespace

QPixmap pictureInFile(const QString& path)
{
    QFile file(localPath(path));
    if (!openForReading(file).isGood())
        return {};
    const QByteArray start = file.peek(54);
    if (start.startsWith(bitmapStart)) {
        const qint64 end = endOfBitmap(start);
        return end > 0 && end <= file.size() ? decoded(file, "bmp") : QPixmap();
    }
    if (file.size() > mostPackedBytes)
        return {};
    if (start.startsWith(jpegStart))
        return jpeg(file.read(file.size()));
    if (start.startsWith(pngStart))
        return png(file.read(file.size()));
    return {};
}

QByteArray encoded(const QImage& picture, const char* format)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    return picture.save(&buffer, format) ? bytes : QByteArray();
}

} // namespace files
