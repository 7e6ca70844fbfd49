// SPDX-License-Identifier: MIT
#pragma once

#include "overlay/my_label.h"

#include <QColor>
#include <QImage>
#include <QLineF>
#include <QPixmap>

#include <vector>

/// What the label draws, checked pixel by pixel against a plain description of it: every pixel well
/// inside a stroke has the stroke's colour, every pixel well away from all strokes the
/// background's. Nothing depends on fonts (the names are empty) or on how edges are smoothed, and
/// the same description holds at every device pixel ratio: CTest runs these programs at several.
namespace testing {

inline const QColor background(90, 110, 130);
inline const QColor red(255, 0, 0);
inline const QColor blue(0, 0, 255);
inline const QColor selected(0, 255, 0);

struct Stroke
{
    QLineF line;
    QColor colour;
};

struct Ring
{
    QPointF centre;
    double radius;
    QColor colour;
};

/// In the label's pixels.
struct Description
{
    double penWidth = 2;
    std::vector<Stroke> strokes;
    std::vector<Ring> rings;
    QRect picture;
    std::vector<QRect> unknown; ///< not looked at: letters
};

/// Fails with the first pixel that is not as described, and leaves the picture beside the program.
void compare(const QImage& image, double ratio, const Description& description);

bool alike(const QColor& actual, const QColor& expected);

QPixmap plainPicture(const QSize& size, const QColor& colour = background);

/// Shows the label with a plain picture and all markers out of sight.
void prepare(MyLabel& label, const QSize& size, const QSize& picture);

/// A tool of every kind, none selected, and an unplaced one of two.
void placeTools(MyLabel& label);

/// A point's cross on a label with two pixels each image pixel.
void addPoint(Description& description, const QPointF& centre, const QColor& colour);

void addRect(Description& description, const QRectF& rect, const QColor& colour);

} // namespace testing
