// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/photograph/area.h"

#include <optional>
#include <vector>

/// How often which temperature occurs in an area.
namespace analysis {

/// Neighbouring ranges of equal width. Each holds its lower edge; the last one holds both.
struct Bins
{
    static constexpr int most = 100000;

    double from;
    double to;
    int count;

    double width() const { return (to - from) / count; }
    /// The lower edge of a bin; the end of the range for `count`.
    double edge(int bin) const;
    /// Nothing for a value outside the range.
    std::optional<int> binOf(double value) const;
};

/// From `from` to `to` in so many bins. Nothing for a range without extent or end, and for fewer
/// than one or more than Bins::most bins.
std::optional<Bins> binsByCount(double from, double to, int count);

/// As many bins of this width as the range needs; the last may reach beyond it. Nothing as above.
std::optional<Bins> binsByWidth(double from, double to, double width);

/// The same over the range of the area's readings: from the coldest to the hottest, or, by width,
/// from the multiple of the width below the coldest. Of a single temperature the range is a
/// thousandth of a degree. Nothing for an area without a reading, or bins as above.
std::optional<Bins> binsByCount(const Area& area, int count);
std::optional<Bins> binsByWidth(const Area& area, double width);

/// Bins that suit the area's readings: at most `most` of 1, 2 or 5 times a power of ten each,
/// beginning at a multiple of that. Nothing for an area without a reading, and fewer than two bins.
std::optional<Bins> suitingBins(const Area& area, int most);

struct Histogram
{
    Bins bins;
    std::vector<int> counts; ///< pixels in each bin
    int below = 0;           ///< pixels outside the range
    int above = 0;
    int withoutReading = 0; ///< infinite or not a number
};

Histogram histogramOf(const Area& area, const Bins& bins);

/// How much of the area, 0 … 1, lies between two limits (as asReading()), both included, in either
/// order. Pixels without a reading do not count; 0 where there is no other.
double shareBetween(const Area& area, double limit, double other);

} // namespace analysis
