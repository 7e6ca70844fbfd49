// SPDX-License-Identifier: MIT
#pragma once

#include "platform/imager_picture.h"

/// Between the label's pixels and the picture's.
///
/// Two coordinate systems meet here: *widget* coordinates are the label's own device-independent
/// pixels, origin top left, margins included; *image* coordinates are those of the thermal frame,
/// 240 across and 320 down, whatever size it is shown at. The picture is shown centred, with
/// margins left and right, or above and below, when the label's shape is not the picture's.
///
/// The roundings and the lack of symmetry below decide which pixel a press means and where a stroke
/// lies. They are relied upon; do not even them out.
namespace overlay {

/// The thermal frame, whatever size it is shown at.
constexpr int imageColumns = platform::pictureColumns;
constexpr int imageRows = platform::pictureRows;

/// What the conversions need to know, in widget pixels.
struct Geometry
{
    int labelWidth = 0;
    int imageWidth = 0; ///< the shown picture's, not 240
    int labelHeight = 0;
    int imageHeight = 0; ///< the shown picture's, not 320
};

constexpr bool operator==(const Geometry& left, const Geometry& right)
{
    return left.labelWidth == right.labelWidth && left.imageWidth == right.imageWidth &&
           left.labelHeight == right.labelHeight && left.imageHeight == right.imageHeight;
}

/// A position with an extent or a tolerance, in either system.
struct Box
{
    int x = 0;
    int y = 0;
    int w = 0;
    int h = 0;
};

constexpr bool operator==(const Box& left, const Box& right)
{
    return left.x == right.x && left.y == right.y && left.w == right.w && left.h == right.h;
}

/// The image position under a widget position, and a widget tolerance in image pixels.
///
/// In the margins, the nearest column or row of the picture. On the picture's very last edge the
/// result can be 240 or 320, one past the last pixel: whoever reads a temperature there guards the
/// read. When the picture leaves no margin at all, x and y of `before` (the previous result of
/// either conversion) are returned; only the tolerance is converted. Without a picture (a width or
/// height of 0 or less) the result is `before`.
Box toImage(const Geometry& geometry, const Box& widget, const Box& before);

/// The widget position of an image position, and an image extent in widget pixels. Defined for
/// every input; a result beyond the range of int ends at the range.
Box toWidget(const Geometry& geometry, const Box& image);

} // namespace overlay
