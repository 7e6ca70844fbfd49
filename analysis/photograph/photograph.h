// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/photograph/layouts.h"
#include "overlay/spots.h"

#include <QtGlobal>

#include <algorithm>
#include <array>

/// What the imager stores with a photograph, and the temperatures that follow from it. Pure: bytes
/// in, values out.
namespace analysis {

/// Three bytes a colour, in this order; arrays of it are what OpenCV takes as three channels.
struct Rgb
{
    uchar red = 0;
    uchar green = 0;
    uchar blue = 0;
    friend bool operator==(const Rgb& a, const Rgb& b)
    {
        return a.red == b.red && a.green == b.green && a.blue == b.blue;
    }
};
static_assert(sizeof(Rgb) == 3, "a palette is handed to OpenCV as packed bytes");

/// Indexed by gray value: hottest at 255.
using Palette = std::array<Rgb, format::paletteEntries>;

/// The temperature matrix in degrees of the file's scale, indexed [x][y] with x 0 … 239 across and
/// y 0 … 319 down: the transpose of the gray image.
using Temperatures = std::array<float, format::grayBytes>;

/// Where the temperature of pixel (x, y) stands. Inside the picture only.
constexpr std::size_t temperatureIndex(int x, int y)
{
    return std::size_t(x * format::rows + y);
}

/// The temperature at (x, y), or of the nearest pixel inside for a position outside the picture.
inline float nearestTemperature(const Temperatures& temperatures, int x, int y)
{
    return temperatures[temperatureIndex(std::clamp(x, 0, format::columns - 1),
                                         std::clamp(y, 0, format::rows - 1))];
}

/// The parameter block. Temperatures are tenths of a degree.
struct Parameters
{
    quint8 unit = 0; ///< 0 °C, 1 °F; anything else says nothing
    qint16 maximum10 = 0;
    qint16 minimum10 = 0;
    quint8 grayMaximum = 0; ///< gray value that stands for the maximum
    quint8 grayMinimum = 0;
    qint16 centre10 = 0;
    quint8 emissivity100 = 0;
    quint32 machineId = 0;
    quint16 firmware10 = 0; ///< model index 1 only
};

/// One photograph, about 385 KB. Reading replaces its parts one after another in the order of the
/// members, the spots after the parameters; reading stops at a photograph of another make, and the
/// parts behind stay as they were. The reticle is zero-based, unlike in the file.
struct Photograph : overlay::Spots
{
    std::array<uchar, format::grayBytes> gray{}; ///< 320 rows of 240 pixels
    Palette palette{};                           ///< file order
    Parameters parameters;
    Temperatures temperatures{};
    double mean = 0; ///< of all temperatures
};

/// True when so many bytes read mean that the photograph ends in a raw image and takes its
/// temperatures, in °C, from there.
constexpr bool hasRawImage(int readCount)
{
    return readCount == format::rawFileBytes;
}

/// Reads the gray image, the palette and the unit. `bytes` are the FileBuffer::size bytes of a file
/// buffer, however many of them the file filled. `modelIndex` picks the layout: 1, or 0 and any
/// other; the gray image stays as it was unless it is 0 or 1.
void readPicture(const uchar* bytes, int modelIndex, Photograph& photograph);

/// Reads the rest: parameters, markers, temperatures, mean. False, with nothing but the parameters
/// replaced, unless the machine ID is 5 or 6. Call readPicture() first: temperatures without a raw
/// image come from the gray image.
bool readMeasurements(const uchar* bytes, int readCount, int modelIndex, Photograph& photograph);

/// Both of the above.
bool read(const uchar* bytes, int readCount, int modelIndex, Photograph& photograph);

} // namespace analysis
