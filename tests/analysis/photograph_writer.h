// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <array>
#include <functional>

/// Photographs as the imager would have stored them, for tests: written byte by byte from what a
/// test wants to find again, with numbers of its own, so that a reader's mistake cannot hide here.
namespace testing {

struct Shot
{
    int model = 0;
    /// Gray value of the upright picture at x 0 … 239, y 0 … 319.
    std::function<int(int x, int y)> gray = [](int, int) {
        return 0;
    };
    /// RGB565 for gray value v.
    std::function<int(int v)> palette = [](int v) {
        return (v >> 3) << 11 | (v >> 2) << 5 | v >> 3;
    };
    int unit = 0;
    int maximum10 = 500;
    int minimum10 = 200;
    int grayMaximum = 255;
    int grayMinimum = 0;
    int centre10 = 350;
    int emissivity100 = 95;
    quint32 machineId = 5;
    std::array<int, 6> markers{}; ///< as stored: A x, y, B x, y, C x, y
    int firmware10 = 0;           ///< model index 1 only
    /// Sixteenths of a kelvin at row 0 … 255, column 0 … 191; makes the file end in a raw image.
    std::function<int(int row, int column)> raw;
};

inline void put(QByteArray& file, int offset, quint32 value, int width)
{
    for (int i = 0; i < width; ++i)
        file[offset + i] = char(value >> (8 * i));
}

/// The whole file. Ordinary viewers show its picture: blue-ish, brighter where it is hotter.
inline QByteArray photographBytes(const Shot& shot)
{
    const bool one = shot.model == 1;
    const int gray = one ? 153657 : 230454;
    const int palette = one ? 230457 : 307254;
    const int block = one ? 230969 : 307766;
    QByteArray file(shot.raw ? 406096 : block + 200, '\0');

    const int pixelBytes = one ? 2 : 3;
    file[0] = 'B';
    file[1] = 'M';
    put(file, 2, quint32(54 + 76800 * pixelBytes), 4);
    put(file, 10, 54, 4);
    put(file, 14, 40, 4);
    put(file, 18, 240, 4);
    put(file, 22, 320, 4);
    put(file, 26, 1, 2);
    put(file, 28, quint32(8 * pixelBytes), 2);

    for (int y = 0; y < 320; ++y) {
        for (int x = 0; x < 240; ++x) {
            const int value = shot.gray(x, y);
            // Bitmaps stand on their head.
            const int pixel = 54 + ((319 - y) * 240 + x) * pixelBytes;
            if (one)
                put(file, pixel, quint32(value >> 3), 2);
            else
                put(file, pixel, quint32(value), 3);
            const int place = y * 240 + x;
            file[gray + (one ? 76799 - place : place)] = char(value);
        }
    }
    for (int v = 0; v < 256; ++v)
        put(file, palette + 2 * v, quint32(shot.palette(v)), 2);

    file[block] = char(shot.unit);
    put(file, block + 1, quint32(shot.maximum10), 2);
    put(file, block + 3, quint32(shot.minimum10), 2);
    file[block + 5] = char(shot.grayMaximum);
    file[block + 6] = char(shot.grayMinimum);
    put(file, block + 7, quint32(shot.centre10), 2);
    file[block + 9] = char(shot.emissivity100);
    put(file, block + 10, shot.machineId, 4);
    // The raw image of this make begins 26 bytes into the block, right behind the markers.
    for (int i = 0; i < 6; ++i)
        put(file, block + 14 + 2 * i, quint32(shot.markers[std::size_t(i)]), 2);
    if (one)
        put(file, block + 42, quint32(shot.firmware10), 2);
    if (shot.raw) {
        for (int row = 0; row < 256; ++row) {
            for (int column = 0; column < 192; ++column)
                put(file, 307792 + 2 * (row * 192 + column), quint32(shot.raw(row, column)), 2);
        }
    }
    return file;
}

} // namespace testing
