// SPDX-License-Identifier: MIT
#pragma once

#include "simulator/scene.h"

#include <QByteArray>
#include <QImage>
#include <QPoint>

#include <array>

/// What the imager's own electronics make of a temperature field: gray values, false colour, the
/// live frame and the photograph file.
namespace simulator {

enum class Palette
{
    Iron,
    Rainbow,
    WhiteHot
};

/// 256 entries RGB565, coldest first.
using PaletteTable = std::array<quint16, 256>;

const PaletteTable& paletteTable(Palette palette);
QString paletteTitle(Palette palette);

/// A field as 8-bit gray, 320 rows of 240, linear between the field's extremes.
struct GrayPicture
{
    QByteArray gray;
    int maximum10 = 0; ///< hottest and coldest place in tenths of a degree of the field's scale,
    int minimum10 = 0; ///< rounded to the nearest
    quint8 grayMaximum = 0; ///< the gray values that stand for them
    quint8 grayMinimum = 0;
    QPoint hottest; ///< the first such place, row by row
    QPoint coldest;
};

/// The gray values the imager gives to the coldest and the hottest place; it keeps clear of both
/// ends.
constexpr quint8 usualGrayMinimum = 8;
constexpr quint8 usualGrayMaximum = 247;

/// A field of one temperature becomes grayMaximum everywhere.
GrayPicture grayPicture(const Field& field, quint8 grayMinimum = usualGrayMinimum,
                        quint8 grayMaximum = usualGrayMaximum);

/// The gray picture in false colour, RGB888.
QImage falseColour(const QByteArray& gray, const PaletteTable& palette);

/// What the imager sends with each picture, in degrees and as a fraction.
struct LiveReadings
{
    double maximum = 0;
    double threshold = 0;
    double emissivity = 0;
};

/// One live frame of live::frameBytes: the gray picture in false colour as YUYV, then the readings.
/// Readings that do not fit their unsigned words are sent as the nearest that does.
QByteArray liveFrame(const QByteArray& gray, const PaletteTable& palette,
                     const LiveReadings& readings);

/// The live frame of a field; its maximum is the field's.
QByteArray liveFrame(const Field& field, Palette palette, double threshold, double emissivity);

} // namespace simulator
