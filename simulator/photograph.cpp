// SPDX-License-Identifier: MIT
#include "simulator/photograph.h"

#include "analysis/photograph/layouts.h"

#include <QtEndian>

#include <algorithm>
#include <cmath>

namespace simulator {
namespace {

namespace format = analysis::format;

constexpr int bitmapHeaderBytes = 54;
constexpr int fileSizeOffset = 2;
constexpr QPoint centre(format::columns / 2, format::rows / 2);

/// Overwrites bytes of the file with a number, least significant byte first.
template<typename T>
void put(QByteArray& file, int offset, T value)
{
    const T littleEndian = qToLittleEndian(value);
    file.replace(offset, sizeof value, reinterpret_cast<const char*>(&littleEndian), sizeof value);
}

/// A bottom-up bitmap without colour masks: 24 bits a pixel (BGR) or 16 (five bits a channel). In
/// both, rows end at multiples of four bytes, as in a QImage.
QByteArray bitmap(const QImage& picture, int bitsPerPixel)
{
    const int pixelBytes = format::columns * format::rows * bitsPerPixel / 8;
    QByteArray file(bitmapHeaderBytes, '\0');
    file.replace(0, 2, "BM");
    put<quint32>(file, 10, bitmapHeaderBytes);
    put<quint32>(file, 14, 40);
    put<qint32>(file, 18, format::columns);
    put<qint32>(file, 22, format::rows);
    put<quint16>(file, 26, 1);
    put<quint16>(file, 28, quint16(bitsPerPixel));
    put<quint32>(file, 34, quint32(pixelBytes));
    QImage pixels = picture.mirrored().convertToFormat(bitsPerPixel == 24 ? QImage::Format_BGR888
                                                                          : QImage::Format_RGB555);
    if (bitsPerPixel == 16)
        qToLittleEndian<quint16>(pixels.constBits(), pixelBytes / 2, pixels.bits());
    return file.append(reinterpret_cast<const char*>(pixels.constBits()), pixelBytes);
}

qint16 tenths(double degrees)
{
    return qint16(std::clamp(std::lround(degrees * 10), -32768L, 32767L));
}

QByteArray rawImage(const Field& celsius)
{
    QByteArray block(format::rawRows * format::rawColumns * 2, '\0');
    for (int row = 0; row < format::rawRows; ++row) {
        for (int column = 0; column < format::rawColumns; ++column) {
            // The first pixel of the 240 × 320 picture that this one is shown in.
            const int y = (5 * row + 3) / 4;
            const int x = (5 * column + 3) / 4;
            const double kelvin = double(celsius[fieldIndex(x, y)]) + 273.15;
            put(block, 2 * (row * format::rawColumns + column),
                quint16(std::clamp(std::lround(kelvin * 16), 0L, 65535L)));
        }
    }
    return block;
}

} // namespace

QByteArray photograph(const Field& celsius, const PhotographSettings& settings)
{
    const format::Layout& layout = format::layoutOf(settings.modelIndex);

    Field field = celsius;
    if (settings.fahrenheit)
        std::transform(field.begin(), field.end(), field.begin(),
                       [](float degrees) { return degrees * 1.8F + 32; });
    const GrayPicture picture = grayPicture(field);
    const PaletteTable& palette = paletteTable(settings.palette);

    QByteArray file = bitmap(falseColour(picture.gray, palette), 8 * layout.pixelBytes);
    // Between picture and gray image model index 1 leaves three bytes; unused bytes are zero.
    const int end = settings.raw ? format::rawFileBytes
                                 : layout.parameters + (layout.hasFirmware
                                                            ? format::parameter::firmwareVersion + 2
                                                            : format::parameter::markerC + 4);
    file.append(end - file.size(), '\0');
    put<quint32>(file, fileSizeOffset, quint32(end));

    QByteArray gray = picture.gray;
    if (layout.isTurned)
        std::reverse(gray.begin(), gray.end());
    file.replace(layout.gray, format::grayBytes, gray);
    for (int i = 0; i < format::paletteEntries; ++i)
        put(file, layout.palette + 2 * i, palette[std::size_t(i)]);

    namespace parameter = format::parameter;
    const int base = layout.parameters;
    const auto putMarker = [&file, base](int offset, QPoint place) {
        put(file, base + offset, quint16(place.x()));
        put(file, base + offset + 2, quint16(place.y()));
    };
    // Who looks through a sensor that hangs upside down does so in the markers, too.
    const auto stored = [&layout](QPoint place) {
        return layout.isTurned ? QPoint(format::columns - 1, format::rows - 1) - place : place;
    };
    put(file, base + parameter::unit, quint8(settings.fahrenheit ? 1 : 0));
    put(file, base + parameter::maximum, qint16(picture.maximum10));
    put(file, base + parameter::minimum, qint16(picture.minimum10));
    put(file, base + parameter::grayMaximum, picture.grayMaximum);
    put(file, base + parameter::grayMinimum, picture.grayMinimum);
    put(file, base + parameter::centre, tenths(double(field[fieldIndex(centre.x(), centre.y())])));
    put(file, base + parameter::emissivity, quint8(std::lround(settings.emissivity * 100)));
    put(file, base + parameter::machineId, settings.machineId);
    putMarker(parameter::markerA, stored(picture.coldest));
    putMarker(parameter::markerB, stored(picture.hottest));
    // Counted from one; turning 240 − x and counting from one cancel each other.
    putMarker(parameter::markerC, layout.isTurned ? stored(centre) : centre + QPoint(1, 1));
    if (layout.hasFirmware)
        put(file, base + parameter::firmwareVersion, quint16(settings.firmware10));

    if (settings.raw)
        file.replace(format::rawOffset, format::rawRows * format::rawColumns * 2,
                     rawImage(celsius));
    return file;
}

} // namespace simulator
