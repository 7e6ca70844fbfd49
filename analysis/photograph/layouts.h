// SPDX-License-Identifier: MIT
#pragma once

#include "platform/imager_picture.h"

#include <array>
#include <cstdint>

/// Where the imager keeps what in one of its photographs.
///
/// A photograph is an ordinary bitmap that any viewer opens (240 × 320, three bytes a pixel for
/// model index 0, two for model index 1), followed by the imager's own blocks: an 8-bit gray image,
/// a palette, a parameter block and, in one variant, a 16-bit raw image. All offsets are bytes from
/// the start of the file, all numbers little-endian.
namespace analysis::format {

constexpr int columns = platform::pictureColumns;
constexpr int rows = platform::pictureRows;
constexpr int grayBytes = columns * rows; ///< 76,800
constexpr int paletteEntries = 256;       ///< RGB565, 16 bits each

/// One of the imagers' ways to lay out a photograph.
struct Layout
{
    int modelIndex;     ///< what the windows call it …
    const char* name;   ///< … and what users of the command line write
    const char* folder; ///< on the imager's disk
    bool isLookedFor;   ///< a disk that has the folder is taken to hold such photographs
    int pixelBytes;     ///< of the ordinary bitmap in front
    int gray;           ///< 76,800 bytes
    int palette;        ///< 512 bytes
    int parameters;     ///< base of the parameter block
    /// The sensor hangs upside down: the gray image is stored in reverse pixel order, and markers
    /// are counted from the last pixel.
    bool isTurned;
    bool hasFirmware; ///< parameter::firmwareVersion is there
    /// The imagers that are supported with this layout.
    std::array<std::uint32_t, 2> machineIds;
};

/// All of them. The first also reads the photographs of an unknown model index.
constexpr std::array<Layout, 2> layouts{{
    {0, "0", "DCIM_100", true, 3, 230454, 307254, 307766, false, false, {5, 6}},
    {1, "1", "Images", false, 2, 153657, 230457, 230969, true, true, {5, 6}},
}};

constexpr bool isKnown(int modelIndex)
{
    for (const Layout& layout : layouts) {
        if (layout.modelIndex == modelIndex)
            return true;
    }
    return false;
}

/// The layout of a model index; the first one for an unknown index.
constexpr const Layout& layoutOf(int modelIndex)
{
    for (const Layout& layout : layouts) {
        if (layout.modelIndex == modelIndex)
            return layout;
    }
    return layouts.front();
}

constexpr bool isSupported(const Layout& layout, std::uint32_t machineId)
{
    for (const std::uint32_t id : layout.machineIds) {
        if (id == machineId)
            return true;
    }
    return false;
}

/// The raw image: 256 rows of 192 columns, 16 bits in sixteenths of a kelvin. It counts only when
/// exactly rawFileBytes were read, that is when the file ends right behind it.
constexpr int rawOffset = 307792;
constexpr int rawRows = 256;
constexpr int rawColumns = 192;
constexpr int rawFileBytes = 406096;

/// Fields of the parameter block, relative to its base. Temperatures are signed tenths of a degree.
namespace parameter {
constexpr int unit = 0;             ///< u8: 0 °C, 1 °F
constexpr int maximum = 1;          ///< i16
constexpr int minimum = 3;          ///< i16
constexpr int grayMaximum = 5;      ///< u8: gray value that stands for the maximum
constexpr int grayMinimum = 6;      ///< u8
constexpr int centre = 7;           ///< i16
constexpr int emissivity = 9;       ///< u8, hundredths
constexpr int machineId = 10;       ///< u32; 5 and 6 are supported
constexpr int markerA = 14;         ///< x, y: u16 each
constexpr int markerB = 18;         ///< x, y: u16 each
constexpr int markerC = 22;         ///< x, y: u16 each, one-based
constexpr int firmwareVersion = 42; ///< u16, tenths; model index 1 only
} // namespace parameter

} // namespace analysis::format
