// SPDX-License-Identifier: MIT
#include "analysis/photograph/details.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace analysis {
namespace {

/// Reorders the values.
double medianOf(std::vector<double>& values)
{
    const auto middle = values.begin() + std::ptrdiff_t(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    if (values.size() % 2 == 1)
        return *middle;
    return (*std::max_element(values.begin(), middle) + *middle) / 2.0;
}

/// In a pass of its own, because sums of squares would cancel each other out.
double deviationOf(const std::vector<double>& values, double mean)
{
    double squares = 0.0;
    for (const double value : values)
        squares += (value - mean) * (value - mean);
    return std::sqrt(squares / double(values.size()));
}

template<typename Counts>
double shareOf(const Area& area, Counts counts)
{
    int pixels = 0;
    int counted = 0;
    for (const Reading& reading : area.readings) {
        pixels += reading.isNumber() ? 1 : 0;
        counted += reading.isNumber() && counts(reading.value) ? 1 : 0;
    }
    return pixels > 0 ? double(counted) / pixels : 0.0;
}

} // namespace

std::optional<Details> detailsOf(const Area& area)
{
    std::vector<double> values;
    values.reserve(area.readings.size());
    Details details;
    for (const Reading& reading : area.readings) {
        if (!reading.isNumber())
            continue;
        const auto isFirst = [&](const Reading& best) {
            return values.empty() || (reading.value == best.value && reading.isBefore(best));
        };
        if (reading.value > details.high.value || isFirst(details.high))
            details.high = reading;
        if (reading.value < details.low.value || isFirst(details.low))
            details.low = reading;
        values.push_back(reading.value);
    }
    if (values.empty())
        return std::nullopt;
    details.pixels = int(values.size());
    details.withoutReading = int(area.readings.size()) - details.pixels;
    details.mean = std::accumulate(values.begin(), values.end(), 0.0) / details.pixels;
    details.deviation = deviationOf(values, details.mean);
    details.median = medianOf(values);
    return details;
}

double shareAbove(const Area& area, double threshold)
{
    return shareOf(area, [limit = asReading(threshold)](double value) { return value > limit; });
}

double shareBelow(const Area& area, double threshold)
{
    return shareOf(area, [limit = asReading(threshold)](double value) { return value < limit; });
}

double valueOf(const Details& details, Figure figure)
{
    switch (figure) {
    case Figure::High:
        return details.high.value;
    case Figure::Low:
        return details.low.value;
    case Figure::Average:
        return details.mean;
    case Figure::Deviation:
        return details.deviation;
    case Figure::Median:
        return details.median;
    }
    return details.mean;
}

std::optional<double> differenceOf(const std::optional<Details>& details, Figure figure,
                                   const std::optional<Details>& other, Figure otherFigure)
{
    if (!other)
        return std::nullopt;
    return differenceOf(details, figure, valueOf(*other, otherFigure));
}

std::optional<double> differenceOf(const std::optional<Details>& details, Figure figure,
                                   double reference)
{
    if (!details || !std::isfinite(reference))
        return std::nullopt;
    return valueOf(*details, figure) - reference;
}

} // namespace analysis
