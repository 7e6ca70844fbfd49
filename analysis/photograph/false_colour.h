// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/photograph/photograph.h"

#include <QImage>

#include <opencv2/core.hpp>

namespace analysis {

/// The palette cut down to the span between the colour bar's two markers: beyond the span every
/// gray value takes the colour at the span's edge. Marker values count palette steps from the hot
/// end (0 … 255; others are taken as the nearest of these). When the markers are crossed, values up
/// to the start take the end's colour.
Palette lookupFor(const Palette& palette, int startValue, int endValue);

/// The whole palette as a strip of 30 × 256 pixels, hottest at the top.
QImage colourStrip(const Palette& palette);

/// Maps a gray picture (one channel of 8 bits) through the lookup into `colours` (three channels in
/// the order red, green, blue).
void mapColours(const cv::Mat& gray, const Palette& lookup, cv::Mat& colours);

/// A photograph's gray picture as the analysis window shows it with the markers at these values:
/// 240 × 320, Format_RGB888.
QImage falseColourPicture(const Photograph& photograph, int startValue, int endValue);

} // namespace analysis
