// SPDX-License-Identifier: MIT
#include "overlay/label_geometry.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace overlay {
namespace {

/// Toward zero, as the conversion to int does, but defined for every number.
int truncated(double value)
{
    constexpr double lowest = std::numeric_limits<int>::min();
    constexpr double highest = std::numeric_limits<int>::max();
    return int(std::clamp(value, lowest, highest));
}

/// value × count / extent in integers, toward zero. The extent is above 0.
std::int64_t scaled(std::int64_t value, int count, int extent)
{
    return value * count / extent;
}

int clamped(std::int64_t value, int last)
{
    return int(std::clamp<std::int64_t>(value, 0, last));
}

/// Along the direction that has margins. Between the margins nothing is clamped.
int acrossMargins(int position, int label, int image, int count)
{
    const std::int64_t begin = std::int64_t{label / 2} - image / 2;
    const std::int64_t end = std::int64_t{label / 2} + image / 2;
    if (position < begin)
        return 0;
    if (position > end)
        return count - 1;
    return int(scaled(position - begin, count, image));
}

/// Along the other direction, which is taken to have none.
int alongside(int position, int image, int count)
{
    return clamped(scaled(position, count, image), count - 1);
}

} // namespace

Box toImage(const Geometry& geometry, const Box& widget, const Box& before)
{
    if (geometry.imageWidth <= 0 || geometry.imageHeight <= 0)
        return before;
    Box image = before;
    if (geometry.labelWidth > geometry.imageWidth) {
        image.x = acrossMargins(widget.x, geometry.labelWidth, geometry.imageWidth, imageColumns);
        image.y = alongside(widget.y, geometry.imageHeight, imageRows);
    }
    if (geometry.labelHeight > geometry.imageHeight) {
        image.y = acrossMargins(widget.y, geometry.labelHeight, geometry.imageHeight, imageRows);
        image.x = alongside(widget.x, geometry.imageWidth, imageColumns);
    }
    image.w = int(scaled(widget.w, imageColumns, geometry.imageWidth));
    image.h = int(scaled(widget.h, imageRows, geometry.imageHeight));
    return image;
}

Box toWidget(const Geometry& geometry, const Box& image)
{
    const double width = geometry.imageWidth;
    const double height = geometry.imageHeight;
    const double x = image.x * width / imageColumns;
    const double y = image.y * height / imageRows;
    Box widget;
    widget.x = truncated(geometry.labelWidth > geometry.imageWidth
                             ? x + (geometry.labelWidth - width) * 0.5 + 0.5
                             : x + 0.5);
    widget.y = truncated(geometry.labelHeight > geometry.imageHeight
                             ? y + (geometry.labelHeight - height) * 0.5 + 0.5
                             : y);
    widget.w = truncated(width * image.w / imageColumns + 0.5);
    widget.h = truncated(height * image.h / imageRows + 0.5);
    return widget;
}

} // namespace overlay
