// SPDX-License-Identifier: MIT
#pragma once

#include "platform/imager_picture.h"

#include <QtGlobal>

/// The live thermal frame: what the imager sends as one UVC frame.
///
/// A YUYV 4:2:2 picture of 240 × 320 (portrait), rows of 480 bytes without padding, already
/// rendered in false colour by the imager, followed by three little-endian unsigned 16-bit words.
/// The frame's own size and pixel format, as the multimedia backend reports them, are not
/// consulted.
///
/// Everything here is pure: no state, any thread.
namespace live {

constexpr int frameColumns = platform::pictureColumns;
constexpr int frameRows = platform::pictureRows;
constexpr int picturePixels = frameColumns * frameRows;
constexpr int pictureBytes = picturePixels * 2; ///< 153,600
/// Offsets of the three words: maximum temperature and alarm threshold in tenths of a degree,
/// emissivity in hundredths.
constexpr int maximumOffset = pictureBytes;
constexpr int thresholdOffset = pictureBytes + 2;
constexpr int emissivityOffset = pictureBytes + 4;
constexpr int frameBytes = pictureBytes + 6; ///< 153,606; a shorter frame is skipped

constexpr int rgbRowBytes = frameColumns * 3;     ///< 720, no padding
constexpr int rgbBytes = rgbRowBytes * frameRows; ///< 230,400

/// As many pixels as any machine converts at once.
constexpr int pixelsAtOnce = 64;
static_assert(picturePixels % pixelsAtOnce == 0);

/// Converts YUYV pixels, picturePixels or another multiple of pixelsAtOnce, to bytes of R, G, B,
/// with the widest vectors that the machine at hand has. The two buffers do not overlap and have
/// any alignment.
///
/// With u = U − 128 and v = V − 128, each value is truncated toward zero and clamped to 0 … 255:
///     R = Y + 1.370705 v,   G = Y − 0.698001 v − 0.337633 u,   B = Y + 1.732446 u
/// For all 2^24 (Y, U, V) the bytes are those of this formula in double precision.
void convertPixels(const uchar* yuyv, int pixels, uchar* rgb);

/// The three numbers behind the picture.
struct Readings
{
    float maximum;    ///< degrees of the scale the imager is set to; 0 … 6553.5
    float threshold;  ///< the same
    float emissivity; ///< 0 … 655.35
};

/// Reads the three words of a frame of at least frameBytes bytes, any alignment.
Readings readings(const uchar* frame);

} // namespace live
