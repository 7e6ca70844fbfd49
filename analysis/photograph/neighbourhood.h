// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/photograph/layouts.h"

#include <QPoint>
#include <QRect>

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

} // namespace analysis
