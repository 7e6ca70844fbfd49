// SPDX-License-Identifier: MIT
#include "analysis/photograph/histogram.h"

#include "analysis/photograph/details.h"

#include <algorithm>
#include <cmath>

namespace analysis {
namespace {

/// No photograph tells finer temperatures apart.
constexpr double finest = 0.001;

/// From the multiple of the width at or below `low` to the one above `high`.
std::optional<Bins> onMultiples(double low, double high, double width)
{
    const double first = std::floor(low / width);
    const double count = std::floor(high / width) + 1.0 - first;
    if (!(width > 0.0 && count <= Bins::most))
        return std::nullopt;
    // Products are rounded: the extremes themselves stay inside.
    return binsByCount(std::min(low, first * width), std::max(high, (first + count) * width),
                       int(count));
}

} // namespace

double Bins::edge(int bin) const
{
    return bin == count ? to : from + (to - from) * bin / count;
}

std::optional<int> Bins::binOf(double value) const
{
    if (!(value >= from && value <= to))
        return std::nullopt;
    // Rounded: what decides are the edges as they are told.
    int bin = std::clamp(int((value - from) / (to - from) * count), 0, count - 1);
    while (bin > 0 && value < edge(bin))
        --bin;
    while (bin < count - 1 && value >= edge(bin + 1))
        ++bin;
    return bin;
}

std::optional<Bins> binsByCount(double from, double to, int count)
{
    if (!(std::isfinite(to - from) && to > from && count >= 1 && count <= Bins::most))
        return std::nullopt;
    return Bins{from, to, count};
}

std::optional<Bins> binsByWidth(double from, double to, double width)
{
    // A range of three tenths holds three bins of a tenth, whatever the last digit says.
    constexpr double slack = 1e-9;
    const double count = std::ceil((to - from) / width - slack);
    if (!(width > 0.0 && count >= 1.0 && count <= Bins::most))
        return std::nullopt;
    return binsByCount(from, std::max(to, from + count * width), int(count));
}

std::optional<Bins> binsByCount(const Area& area, int count)
{
    const std::optional<Details> details = detailsOf(area);
    if (!details)
        return std::nullopt;
    const double low = details->low.value;
    return binsByCount(low, std::max(details->high.value, low + finest), count);
}

std::optional<Bins> binsByWidth(const Area& area, double width)
{
    const std::optional<Details> details = detailsOf(area);
    return details ? onMultiples(details->low.value, details->high.value, width) : std::nullopt;
}

std::optional<Bins> suitingBins(const Area& area, int most)
{
    const std::optional<Details> details = detailsOf(area);
    if (!details || most < 2)
        return std::nullopt;
    double power = finest;
    while (true) {
        for (const double digit : {1.0, 2.0, 5.0}) {
            const std::optional<Bins> bins =
                onMultiples(details->low.value, details->high.value, digit * power);
            if (bins && bins->count <= most)
                return bins;
        }
        power *= 10.0;
    }
}

Histogram histogramOf(const Area& area, const Bins& bins)
{
    Histogram histogram{bins, std::vector<int>(std::size_t(bins.count)), 0, 0, 0};
    for (const Reading& reading : area.readings) {
        const std::optional<int> bin = bins.binOf(reading.value);
        if (!reading.isNumber())
            ++histogram.withoutReading;
        else if (bin)
            ++histogram.counts[std::size_t(*bin)];
        else
            ++(reading.value < bins.from ? histogram.below : histogram.above);
    }
    return histogram;
}

double shareBetween(const Area& area, double limit, double other)
{
    const double lower = asReading(std::min(limit, other));
    const double upper = asReading(std::max(limit, other));
    int pixels = 0;
    int inside = 0;
    for (const Reading& reading : area.readings) {
        if (!reading.isNumber())
            continue;
        ++pixels;
        if (reading.value >= lower && reading.value <= upper)
            ++inside;
    }
    return pixels > 0 ? double(inside) / pixels : 0.0;
}

} // namespace analysis
