// SPDX-License-Identifier: MIT
#include "analysis/photograph/photograph.h"

#include <QtEndian>

namespace analysis {
namespace {

using namespace format;

template<typename T>
T number(const uchar* bytes)
{
    return qFromLittleEndian<T>(bytes);
}

/// RGB565 to eight bits a channel; the low bits stay zero.
Rgb widened(quint16 entry)
{
    return {uchar((entry >> 8) & 0xF8), uchar((entry >> 3) & 0xFC), uchar((entry << 3) & 0xFF)};
}

Parameters readParameters(const uchar* block, const Layout& layout)
{
    Parameters parameters;
    parameters.unit = block[parameter::unit];
    parameters.maximum10 = number<qint16>(block + parameter::maximum);
    parameters.minimum10 = number<qint16>(block + parameter::minimum);
    parameters.grayMaximum = block[parameter::grayMaximum];
    parameters.grayMinimum = block[parameter::grayMinimum];
    parameters.centre10 = number<qint16>(block + parameter::centre);
    parameters.emissivity100 = block[parameter::emissivity];
    parameters.machineId = number<quint32>(block + parameter::machineId);
    if (layout.hasFirmware)
        parameters.firmware10 = number<quint16>(block + parameter::firmwareVersion);
    return parameters;
}

/// `file` holds x and y. A turned layout counts from `lastX`, `lastY`.
overlay::Marker readMarker(const uchar* file, bool turned, int lastX, int lastY)
{
    const int x = number<quint16>(file);
    const int y = number<quint16>(file + 2);
    return turned ? overlay::Marker{qint16(lastX - x), qint16(lastY - y)}
                  : overlay::Marker{qint16(x), qint16(y)};
}

void readMarkers(const uchar* block, bool turned, Photograph& photograph)
{
    photograph.markerA = readMarker(block + parameter::markerA, turned, columns - 1, rows - 1);
    photograph.markerB = readMarker(block + parameter::markerB, turned, columns - 1, rows - 1);
    // The reticle counts from one, and being turned does not change that.
    const overlay::Marker reticle = readMarker(block + parameter::markerC, turned, columns, rows);
    photograph.markerC = {qint16(reticle.x - 1), qint16(reticle.y - 1)};
}

/// Fills the matrix from valueAt(row, column) and takes the mean on the way: the sum of doubles
/// depends on the order, and the order is that of the gray image.
template<typename ValueAt>
void fillTemperatures(Photograph& photograph, ValueAt valueAt)
{
    double sum = 0;
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            const float value = valueAt(row, column);
            photograph.temperatures[temperatureIndex(column, row)] = value;
            sum += double(value);
        }
    }
    photograph.mean = sum / double(grayBytes);
}

void fillFromRawImage(const uchar* raw, Photograph& photograph)
{
    fillTemperatures(photograph, [raw](int row, int column) {
        const int pixel = (4 * row / 5) * rawColumns + 4 * column / 5;
        return float(number<quint16>(raw + 2 * pixel) * 0.0625 - 273.15);
    });
}

void fillFromGrayImage(Photograph& photograph)
{
    const Parameters& p = photograph.parameters;
    const double maximum = p.maximum10 / 10.0;
    const double span = maximum - p.minimum10 / 10.0;
    const auto graySpan = float(p.grayMaximum - p.grayMinimum);
    // A pixel's temperature depends on its gray value alone. Without a gray span these are
    // infinities and not-a-number, as meaningless as the photograph.
    std::array<float, 256> temperatureOf;
    for (int gray = 0; gray < 256; ++gray) {
        const float ratio = (float(p.grayMaximum) - float(gray)) / graySpan;
        temperatureOf[std::size_t(gray)] = float(maximum - double(ratio) * span);
    }
    const uchar* gray = photograph.gray.data();
    fillTemperatures(photograph, [gray, &temperatureOf](int row, int column) {
        return temperatureOf[gray[row * columns + column]];
    });
}

} // namespace

void readPicture(const uchar* bytes, int modelIndex, Photograph& photograph)
{
    const Layout& layout = layoutOf(modelIndex);
    const uchar* gray = bytes + layout.gray;
    if (isKnown(modelIndex) && layout.isTurned)
        std::reverse_copy(gray, gray + grayBytes, photograph.gray.begin());
    else if (isKnown(modelIndex))
        std::copy_n(gray, grayBytes, photograph.gray.begin());

    const uchar* entry = bytes + layout.palette;
    for (Rgb& colour : photograph.palette) {
        colour = widened(number<quint16>(entry));
        entry += 2;
    }
    photograph.parameters.unit = bytes[layout.parameters + parameter::unit];
}

bool readMeasurements(const uchar* bytes, int readCount, int modelIndex, Photograph& photograph)
{
    const Layout& layout = layoutOf(modelIndex);
    const uchar* block = bytes + layout.parameters;
    photograph.parameters = readParameters(block, layout);
    if (!isSupported(layout, photograph.parameters.machineId))
        return false;
    readMarkers(block, layout.isTurned, photograph);
    if (hasRawImage(readCount))
        fillFromRawImage(bytes + rawOffset, photograph);
    else
        fillFromGrayImage(photograph);
    return true;
}

bool read(const uchar* bytes, int readCount, int modelIndex, Photograph& photograph)
{
    readPicture(bytes, modelIndex, photograph);
    return readMeasurements(bytes, readCount, modelIndex, photograph);
}

} // namespace analysis
