// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/report/report.h"

namespace analysis {

constexpr QSize canvasSize(930, 960);

/// A temperature beside the colour strip: baseline start on the canvas, and its text.
struct ScaleText
{
    int x;
    int y;
    QString text;
};

/// The eleven temperatures of the scale, hottest first, in single precision throughout. The
/// conversion's offset is part of the distance between two of them, too, so in °F all but the first
/// and the last are off: reports have always shown them like this. What is below 100 by value, not
/// by its text, starts ten pixels further right.
std::vector<ScaleText> reportScale(qint16 maximum10, qint16 minimum10, Conversion conversion);

/// The picture with overlay, colour strip and scale, canvasSize, transparent where nothing is.
QImage reportCanvas(const Report& report);

} // namespace analysis
