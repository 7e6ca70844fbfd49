// SPDX-License-Identifier: MIT
#pragma once

#include "overlay/label_geometry.h"
#include "overlay/spots.h"
#include "overlay/tools.h"

#include <QImage>

namespace testing {

/// Tools, spots and the picture they lie on, made up.
struct PaintingScene : overlay::Tools, overlay::Spots
{
    overlay::Geometry geometry;
};

/// So many of them are compared.
constexpr unsigned scenes = 200;

/// The same for the same number on every machine: tools of all kinds, many on top of each other,
/// some unplaced or reaching out of the picture, sometimes one selected; labels of all shapes,
/// margins on some sides or none.
PaintingScene madeUpScene(unsigned number);

/// The scene drawn stroke by stroke from a description of it, in the order in which things lie over
/// each other; `ratio` pixels a label pixel, white margins if asked for. Drawn by other code than
/// the product's, with the same paint engine and fonts, so that the two must agree in every pixel.
QImage drawnByDescription(const PaintingScene& scene, double ratio, bool margins);

/// Empty when the pictures are the same in every pixel; else where they differ first. Then both are
/// saved beside the program.
QString difference(const QImage& actual, const QImage& expected, unsigned number, double ratio);

} // namespace testing
