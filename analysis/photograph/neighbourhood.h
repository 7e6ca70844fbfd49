// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/photograph/photograph_reader.h"

#include <QPoint>
#include <QRect>
#include <QString>

/// The pixels round one, as a magnifier shows them.
namespace analysis {

/// A square of pixels round the one in its middle, which lies inside the picture; the others may
/// lie outside. All positions are image coordinates.
class Neighbourhood
{
public:
    static constexpr int smallest = 5;
    static constexpr int usual = 11;
    static constexpr int largest = 41;

    QPoint centre() const { return m_centre; }
    /// Pixels along a side: odd, smallest … largest.
    int size() const { return m_size; }

    /// The whole square, and what of it lies inside the picture.
    QRect pixels() const;
    QRect pixelsInside() const;

    /// To the nearest pixel inside the picture.
    void moveTo(const QPoint& centre);
    /// By steps of one pixel on each side, as far as the limits.
    void growBy(int steps);

    friend bool operator==(const Neighbourhood& a, const Neighbourhood& b)
    {
        return a.m_centre == b.m_centre && a.m_size == b.m_size;
    }

private:
    QPoint m_centre{format::columns / 2, format::rows / 2};
    int m_size = usual;
};

/// What the pixel reads, as the window writes it but without its unit. Inside the picture only.
QString readingText(const Temperatures& temperatures, Conversion conversion, int x, int y);

/// "X: 120  Y: 160  36.5°C", for a position inside the picture.
QString readOutText(const Temperatures& temperatures, const ShownUnit& unit, const QPoint& pixel);

/// The readings as a matrix for spreadsheets: lines of tab-separated cells, the columns' x in the
/// first line and the rows' y in front, the unit in the corner. What lies outside the picture is
/// left out.
QString readingMatrix(const Neighbourhood& part, const Temperatures& temperatures,
                      const ShownUnit& unit);

} // namespace analysis
