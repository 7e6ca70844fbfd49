// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/photograph/photograph.h"
#include "analysis/photograph/photograph_reader.h"

#include <QColor>
#include <QImage>

#include <opencv2/core.hpp>

/// One colour for all pixels on one side of limits, over a picture in false colours. It is seen,
/// and changes no number. Any thread.
namespace analysis {

/// A light blue. The palettes go from dark to light through red and yellow, and so they do for the
/// eyes of those who see two colours only; those three kinds of eyes confuse red with green or blue
/// with green, so green and red would be lost to many. This blue is far from every colour of the
/// iron palette and from every gray for all four kinds of eyes, with a distance of more than 30
/// where 2 is just noticed. A rainbow has something like it, as like any colour.
constexpr QRgb isothermColour = qRgb(85, 187, 255);

struct Isotherm
{
    enum class Side
    {
        Above,  ///< higher than `from`
        Below,  ///< lower than `to`
        Inside, ///< from `from` to `to`, both included
        Outside ///< lower than `from` or higher than `to`
    };
    Side side = Side::Above;
    double from = 0; ///< limits are readings in `unit`
    double to = 0;
    Unit unit = Unit::Celsius;
    QColor colour = QColor(isothermColour); ///< an invalid one is black

    friend bool operator==(const Isotherm& a, const Isotherm& b)
    {
        return a.side == b.side && a.from == b.from && a.to == b.to && a.unit == b.unit &&
               a.colour == b.colour;
    }
    friend bool operator!=(const Isotherm& a, const Isotherm& b) { return !(a == b); }
};

/// Whether the side has this limit.
constexpr bool hasFrom(Isotherm::Side side)
{
    return side != Isotherm::Side::Below;
}
constexpr bool hasTo(Isotherm::Side side)
{
    return side != Isotherm::Side::Above;
}

/// What is wrong with the limits that the side has. No pixel lies on the side of wrong ones.
enum class IsothermProblem
{
    None,
    NotANumber,
    Crossed ///< from > to
};
IsothermProblem problemOf(const Isotherm& isotherm);

/// The same isotherm with limits in another unit.
Isotherm inUnit(const Isotherm& isotherm, Unit unit);

/// Whether a reading in the isotherm's unit lies on its side; not-a-number lies on none.
bool covers(const Isotherm& isotherm, double reading);

/// Colours the pixels whose readings, as they are shown in `unit`, lie on the isotherm's side; how
/// many these are. `colours` are 320 rows of 240 pixels of three bytes, red first; of any other
/// shape they stay as they are.
int paint(const Isotherm& isotherm, const Temperatures& temperatures, const ShownUnit& unit,
          cv::Mat& colours);
/// The same on a picture of 240 × 320, Format_RGB888.
int paint(const Isotherm& isotherm, const Temperatures& temperatures, const ShownUnit& unit,
          QImage& picture);

} // namespace analysis
