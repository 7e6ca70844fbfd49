// SPDX-License-Identifier: MIT
#include "analysis/photograph/isotherm.h"

#include <cmath>

namespace analysis {

using Side = Isotherm::Side;

IsothermProblem problemOf(const Isotherm& isotherm)
{
    const Side side = isotherm.side;
    if ((hasFrom(side) && std::isnan(isotherm.from)) || (hasTo(side) && std::isnan(isotherm.to)))
        return IsothermProblem::NotANumber;
    return hasFrom(side) && hasTo(side) && isotherm.from > isotherm.to ? IsothermProblem::Crossed
                                                                       : IsothermProblem::None;
}

Isotherm inUnit(const Isotherm& isotherm, Unit unit)
{
    Isotherm same = isotherm;
    if (unit != isotherm.unit) {
        same.unit = unit;
        for (double* limit : {&same.from, &same.to})
            *limit = inUnit(celsiusOf(*limit, isotherm.unit), unit);
    }
    return same;
}

/// Not-a-number is neither higher nor lower than anything.
bool covers(const Isotherm& isotherm, double reading)
{
    if (problemOf(isotherm) != IsothermProblem::None)
        return false;
    switch (isotherm.side) {
    case Side::Above:
        return reading > isotherm.from;
    case Side::Below:
        return reading < isotherm.to;
    case Side::Inside:
        return reading >= isotherm.from && reading <= isotherm.to;
    case Side::Outside:
        return reading < isotherm.from || reading > isotherm.to;
    }
    return false;
}

int paint(const Isotherm& isotherm, const Temperatures& temperatures, const ShownUnit& unit,
          cv::Mat& colours)
{
    if (colours.rows != format::rows || colours.cols != format::columns ||
        colours.type() != CV_8UC3)
        return 0;
    const Isotherm limits = inUnit(isotherm, unit.unit);
    const Rgb colour{uchar(limits.colour.red()), uchar(limits.colour.green()),
                     uchar(limits.colour.blue())};
    int painted = 0;
    for (int y = 0; y < format::rows; ++y) {
        Rgb* const row = colours.ptr<Rgb>(y);
        for (int x = 0; x < format::columns; ++x) {
            const float temperature = temperatures[temperatureIndex(x, y)];
            if (covers(limits, double(shown(temperature, unit.conversion)))) {
                row[x] = colour;
                ++painted;
            }
        }
    }
    return painted;
}

int paint(const Isotherm& isotherm, const Temperatures& temperatures, const ShownUnit& unit,
          QImage& picture)
{
    if (picture.format() != QImage::Format_RGB888)
        return 0;
    cv::Mat colours(picture.height(), picture.width(), CV_8UC3, picture.bits(),
                    std::size_t(picture.bytesPerLine()));
    return paint(isotherm, temperatures, unit, colours);
}

} // namespace analysis
