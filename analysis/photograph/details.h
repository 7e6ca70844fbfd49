// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/photograph/area.h"

#include <array>
#include <optional>

/// What an area hides behind its three numbers in the tool table.
namespace analysis {

/// Exact where the tool table is not: no extreme starts from a fixed value, and sums are in double
/// precision, so that highest, lowest and average may differ from the table's.
struct Details
{
    Reading high; ///< the hottest pixel; of several, the first in reading order
    Reading low;
    double mean = 0.0;
    double deviation = 0.0; ///< of the population: 0 for a single pixel
    double median = 0.0;    ///< of an even number, the mean of the two in the middle
    int pixels = 0;         ///< with a reading
    int withoutReading = 0; ///< infinite or not a number; in none of the above
};

/// Nothing for an area in which no pixel has a reading.
std::optional<Details> detailsOf(const Area& area);

/// How much of the area, 0 … 1, is strictly above or strictly below the threshold (as asReading()).
/// Pixels without a reading do not count; 0 where there is no other.
double shareAbove(const Area& area, double threshold);
double shareBelow(const Area& area, double threshold);

/// The single numbers of an area.
enum class Figure
{
    High,
    Low,
    Average,
    Deviation,
    Median
};

struct FigureRow
{
    Figure figure;
    const char* name; ///< in files and on the command line
};

constexpr std::array<FigureRow, 5> figures{{
    {Figure::High, "high"},
    {Figure::Low, "low"},
    {Figure::Average, "average"},
    {Figure::Deviation, "deviation"},
    {Figure::Median, "median"},
}};

double valueOf(const Details& details, Figure figure);

/// What is compared where nobody says otherwise: an inspection looks for what is too hot.
constexpr Figure usuallyCompared = Figure::High;

/// How much hotter one area is than another, or than a reference of the same unit. Nothing where
/// an area has no reading, or the reference is not a number.
std::optional<double> differenceOf(const std::optional<Details>& details, Figure figure,
                                   const std::optional<Details>& other, Figure otherFigure);
std::optional<double> differenceOf(const std::optional<Details>& details, Figure figure,
                                   double reference);

} // namespace analysis
