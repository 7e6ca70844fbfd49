#pragma once

/// Where the imager keeps what in one of its photographs.
///
/// A photograph is an ordinary bitmap that any viewer opens (240 × 320, three bytes a pixel for
/// model index 0, two for model index 1), followed by the imager's own blocks: an 8-bit gray image,
/// a palette, a parameter block and, in one variant, a 16-bit raw image. All offsets are bytes from
/// the start of the file, all numbers little-endian.
namespace analysis::format {

constexpr int columns = 240;
constexpr int rows = 320;
constexpr int grayBytes = columns * rows; ///< 76,800
constexpr int paletteEntries = 256;       ///< RGB565, 16 bits each

struct Layout
{
    int gray;       ///< 76,800 bytes; stored in reverse pixel order for model index 1
    int palette;    ///< 512 bytes
    int parameters; ///< base of the parameter block
};

constexpr Layout modelZero{230454, 307254, 307766}; ///< model index 0 and any other than 1
constexpr Layout modelOne{153657, 230457, 230969};

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
