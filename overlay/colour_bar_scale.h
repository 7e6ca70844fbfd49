// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <optional>

/// The colour bar's arithmetic: palette steps 0 … 255, counted from the top, against the height of
/// a marker in widget pixels. The travel leaves `scaleMargin` pixels free at either end, so that a
/// marker's whole triangle stays on the widget.
namespace overlay {

constexpr int paletteSteps = 256;
constexpr int scaleMargin = 10;
constexpr int scaleLabels = 11;

/// The value of a marker at y on a bar of the given height. Outside the travel it is below 0 or
/// above 255: clamp it with paletteStep() before indexing. Nothing when the bar is too low (20
/// pixels or less) to have any travel: keep the value there is.
std::optional<int> valueAt(int y, int height);

/// The y of a marker with this value on a bar of the given height.
int markerY(int value, int height);

/// A value as an index into a palette table.
int paletteStep(int value);

/// The eleven temperatures beside the bar, top first, in single precision. The last is exactly
/// `bottom`.
std::array<float, scaleLabels> scaleTemperatures(float top, float bottom);

} // namespace overlay
