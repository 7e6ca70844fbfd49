// SPDX-License-Identifier: MIT
#include "simulator/imager_model.h"

#include "live/live_frame.h"

#include <QColor>
#include <QtEndian>

#include <algorithm>
#include <cmath>
#include <vector>

namespace simulator {
namespace {

struct ColourStop
{
    double position; ///< 0 … 1
    int red;
    int green;
    int blue;
};

quint16 rgb565(double red, double green, double blue)
{
    return quint16((std::lround(red * 31 / 255) << 11) | (std::lround(green * 63 / 255) << 5) |
                   std::lround(blue * 31 / 255));
}

PaletteTable interpolated(const std::vector<ColourStop>& stops)
{
    PaletteTable table{};
    std::size_t next = 1;
    for (std::size_t i = 0; i < table.size(); ++i) {
        const double position = double(i) / 255;
        while (position > stops[next].position)
            ++next;
        const ColourStop& from = stops[next - 1];
        const ColourStop& to = stops[next];
        const double part = (position - from.position) / (to.position - from.position);
        const auto mix = [part](int a, int b) {
            return a + part * (b - a);
        };
        table[i] =
            rgb565(mix(from.red, to.red), mix(from.green, to.green), mix(from.blue, to.blue));
    }
    return table;
}

QColor colour(quint16 entry)
{
    return QColor((entry >> 11) * 255 / 31, ((entry >> 5) & 63) * 255 / 63,
                  (entry & 31) * 255 / 31);
}

struct Yuv
{
    quint8 y;
    int u; ///< not yet offset, so that two can be averaged
    int v;
};

Yuv yuv(const QColor& rgb)
{
    const double y = 0.299 * rgb.red() + 0.587 * rgb.green() + 0.114 * rgb.blue();
    return {quint8(std::lround(y)), int(std::lround((rgb.blue() - y) / 1.732446)),
            int(std::lround((rgb.red() - y) / 1.370705))};
}

void appendWord(QByteArray& frame, double value)
{
    const auto word = qToLittleEndian(quint16(std::clamp(std::lround(value), 0L, 65535L)));
    frame.append(reinterpret_cast<const char*>(&word), sizeof word);
}

struct PaletteRow
{
    const char* title;
    PaletteTable table;
};

const PaletteRow& rowOf(Palette palette)
{
    static const std::array<PaletteRow, 3> rows{
        {{"Iron", interpolated({{0.00, 0, 0, 10},
                                {0.14, 30, 0, 110},
                                {0.32, 130, 0, 155},
                                {0.50, 205, 45, 95},
                                {0.66, 240, 105, 20},
                                {0.82, 255, 180, 10},
                                {0.93, 255, 235, 110},
                                {1.00, 255, 255, 245}})},
         {"Rainbow", interpolated({{0.00, 10, 0, 80},
                                   {0.17, 0, 40, 230},
                                   {0.36, 0, 200, 215},
                                   {0.52, 25, 190, 40},
                                   {0.68, 240, 230, 0},
                                   {0.86, 240, 50, 0},
                                   {1.00, 255, 225, 225}})},
         {"White hot", interpolated({{0.0, 0, 0, 0}, {1.0, 255, 255, 255}})}}};
    return rows.at(std::size_t(palette));
}

} // namespace

const PaletteTable& paletteTable(Palette palette)
{
    return rowOf(palette).table;
}

QString paletteTitle(Palette palette)
{
    return QString::fromLatin1(rowOf(palette).title);
}

GrayPicture grayPicture(const Field& field, quint8 grayMinimum, quint8 grayMaximum)
{
    const auto coldest = std::min_element(field.begin(), field.end());
    const auto hottest = std::max_element(field.begin(), field.end());
    const auto place = [&field](Field::const_iterator found) {
        const int at = int(found - field.begin());
        return QPoint(at % fieldColumns, at / fieldColumns);
    };

    GrayPicture picture;
    picture.maximum10 = int(std::lround(*hottest * 10.0));
    picture.minimum10 = int(std::lround(*coldest * 10.0));
    picture.grayMaximum = grayMaximum;
    picture.grayMinimum = grayMinimum;
    picture.hottest = place(hottest);
    picture.coldest = place(coldest);
    picture.gray.resize(fieldSize);
    if (picture.maximum10 == picture.minimum10) {
        picture.gray.fill(char(grayMaximum));
        return picture;
    }
    const float lowest = float(picture.minimum10) / 10.0F;
    const float perDegree =
        float(grayMaximum - grayMinimum) * 10.0F / float(picture.maximum10 - picture.minimum10);
    const float darker = std::min(grayMinimum, grayMaximum);
    const float lighter = std::max(grayMinimum, grayMaximum);
    for (int i = 0; i < fieldSize; ++i) {
        const float value = float(grayMinimum) + (field[std::size_t(i)] - lowest) * perDegree;
        picture.gray[i] = char(std::lround(std::clamp(value, darker, lighter)));
    }
    return picture;
}

QImage falseColour(const QByteArray& gray, const PaletteTable& palette)
{
    QVector<QRgb> colours;
    for (const quint16 entry : palette)
        colours.append(colour(entry).rgb());
    QImage indexed(reinterpret_cast<const uchar*>(gray.constData()), fieldColumns, fieldRows,
                   fieldColumns, QImage::Format_Indexed8);
    indexed.setColorTable(colours);
    return indexed.convertToFormat(QImage::Format_RGB888);
}

QByteArray liveFrame(const QByteArray& gray, const PaletteTable& palette,
                     const LiveReadings& readings)
{
    std::array<Yuv, 256> table{};
    std::transform(palette.begin(), palette.end(), table.begin(),
                   [](quint16 entry) { return yuv(colour(entry)); });
    QByteArray frame(live::pictureBytes, Qt::Uninitialized);
    frame.reserve(live::frameBytes);
    auto* out = reinterpret_cast<uchar*>(frame.data());
    for (int i = 0; i < fieldSize; i += 2) {
        const Yuv& first = table[quint8(gray[i])];
        const Yuv& second = table[quint8(gray[i + 1])];
        *out++ = first.y;
        *out++ = uchar(std::clamp(128 + (first.u + second.u) / 2, 0, 255));
        *out++ = second.y;
        *out++ = uchar(std::clamp(128 + (first.v + second.v) / 2, 0, 255));
    }
    appendWord(frame, readings.maximum * 10);
    appendWord(frame, readings.threshold * 10);
    appendWord(frame, readings.emissivity * 100);
    return frame;
}

QByteArray liveFrame(const Field& field, Palette palette, double threshold, double emissivity)
{
    const GrayPicture picture = grayPicture(field);
    return liveFrame(picture.gray, paletteTable(palette),
                     {picture.maximum10 / 10.0, threshold, emissivity});
}

} // namespace simulator
