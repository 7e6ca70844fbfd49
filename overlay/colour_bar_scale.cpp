// SPDX-License-Identifier: MIT
#include "overlay/colour_bar_scale.h"

#include <algorithm>

namespace overlay {
namespace {

constexpr int lastStep = paletteSteps - 1;

constexpr int travel(int height)
{
    return height - 2 * scaleMargin;
}

} // namespace

std::optional<int> valueAt(int y, int height)
{
    if (travel(height) <= 0)
        return std::nullopt;
    const double product = (y - scaleMargin) * lastStep;
    return int(product / travel(height) + 0.5);
}

int markerY(int value, int height)
{
    const double product = value * travel(height);
    return int(product / lastStep + scaleMargin + 0.5);
}

int paletteStep(int value)
{
    return std::clamp(value, 0, lastStep);
}

std::array<float, scaleLabels> scaleTemperatures(float top, float bottom)
{
    const float step = (top - bottom) / 10.0F;
    std::array<float, scaleLabels> temperatures{};
    for (int k = 0; k < scaleLabels - 1; ++k)
        temperatures[std::size_t(k)] = top - float(k) * step;
    temperatures.back() = bottom;
    return temperatures;
}

} // namespace overlay
