#pragma once

/// The live thermal frame: what the imager sends as one UVC frame.
///
/// A YUYV 4:2:2 picture of 240 × 320 (portrait), rows of 480 bytes without padding, already
/// rendered in false colour by the imager, followed by three little-endian unsigned 16-bit words.
/// The frame's own size and pixel format, as the multimedia backend reports them, are not
/// consulted.
namespace live {

constexpr int frameColumns = 240;
constexpr int frameRows = 320;
constexpr int pictureBytes = frameColumns * frameRows * 2; ///< 153,600
/// Offsets of the three words: maximum temperature and alarm threshold in tenths of a degree,
/// emissivity in hundredths.
constexpr int maximumOffset = pictureBytes;
constexpr int thresholdOffset = pictureBytes + 2;
constexpr int emissivityOffset = pictureBytes + 4;
constexpr int frameBytes = pictureBytes + 6; ///< 153,606; a shorter frame is skipped

} // namespace live
