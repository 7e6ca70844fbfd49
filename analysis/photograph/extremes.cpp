// SPDX-License-Identifier: MIT
#include "analysis/photograph/extremes.h"

#include "overlay/tool_rules.h"

#include <algorithm>
#include <array>

namespace analysis {
namespace {

using namespace format;

/// Neighbouring pixels of one value.
struct Patch
{
    std::vector<const Reading*> pixels;
    bool isHot = true;  ///< no neighbour is hotter
    bool isCold = true; ///< none is colder

    /// The pixel nearest to the middle of all, in whole numbers: the middle times the count.
    Reading middle() const
    {
        qint64 sumX = 0;
        qint64 sumY = 0;
        for (const Reading* pixel : pixels) {
            sumX += pixel->x;
            sumY += pixel->y;
        }
        const auto fromMiddle = [&](const Reading& pixel) {
            const qint64 dx = qint64(pixels.size()) * pixel.x - sumX;
            const qint64 dy = qint64(pixels.size()) * pixel.y - sumY;
            return dx * dx + dy * dy;
        };
        return **std::min_element(pixels.begin(), pixels.end(),
                                  [&](const Reading* one, const Reading* other) {
                                      const qint64 near = fromMiddle(*one);
                                      const qint64 far = fromMiddle(*other);
                                      return near != far ? near < far : one->isBefore(*other);
                                  });
    }
};

/// The area laid out as the picture; nothing where it has no reading.
class Map
{
public:
    explicit Map(const Area& area) : m_pixels(grayBytes), m_isTaken(grayBytes)
    {
        for (const Reading& reading : area.readings) {
            if (reading.isNumber())
                m_pixels[temperatureIndex(reading.x, reading.y)] = &reading;
        }
    }

    /// The patch that this pixel belongs to; empty when it was handed out before.
    Patch takePatch(const Reading& first)
    {
        Patch patch;
        take(first, patch);
        for (std::size_t next = 0; next < patch.pixels.size(); ++next)
            lookRound(*patch.pixels[next], patch);
        return patch;
    }

private:
    void take(const Reading& pixel, Patch& patch)
    {
        const std::size_t index = temperatureIndex(pixel.x, pixel.y);
        if (m_pixels[index] == nullptr || m_isTaken[index])
            return;
        m_isTaken[index] = true;
        patch.pixels.push_back(&pixel);
    }

    void lookRound(const Reading& pixel, Patch& patch)
    {
        for (int x = std::max(pixel.x - 1, 0); x <= std::min(pixel.x + 1, columns - 1); ++x) {
            for (int y = std::max(pixel.y - 1, 0); y <= std::min(pixel.y + 1, rows - 1); ++y) {
                const Reading* const neighbour = m_pixels[temperatureIndex(x, y)];
                if (neighbour == nullptr)
                    continue;
                if (neighbour->value == pixel.value)
                    take(*neighbour, patch);
                patch.isHot = patch.isHot && neighbour->value <= pixel.value;
                patch.isCold = patch.isCold && neighbour->value >= pixel.value;
            }
        }
    }

    std::vector<const Reading*> m_pixels;
    std::vector<bool> m_isTaken;
};

template<typename ComesFirst>
std::vector<Reading> chosen(std::vector<Reading> all, int count, double distance,
                            ComesFirst comesFirst)
{
    std::sort(all.begin(), all.end(), [&](const Reading& one, const Reading& other) {
        return one.value != other.value ? comesFirst(one.value, other.value) : one.isBefore(other);
    });
    const double squared = distance > 0.0 ? distance * distance : 0.0;
    std::vector<Reading> far;
    for (const Reading& next : all) {
        if (int(far.size()) >= count)
            break;
        const bool isFar = std::all_of(far.begin(), far.end(), [&](const Reading& before) {
            return overlay::squaredDistance(before.x, before.y, next.x, next.y) > squared;
        });
        if (isFar)
            far.push_back(next);
    }
    return far;
}

} // namespace

Extremes extremesOf(const Area& area, int count, double distance)
{
    Map map(area);
    Extremes all;
    for (const Reading& reading : area.readings) {
        const Patch patch = map.takePatch(reading);
        if (patch.pixels.empty() || !(patch.isHot || patch.isCold))
            continue;
        const Reading spot = patch.middle();
        if (patch.isHot)
            all.hottest.push_back(spot);
        if (patch.isCold)
            all.coldest.push_back(spot);
    }
    return {chosen(std::move(all.hottest), count, distance, std::greater<>()),
            chosen(std::move(all.coldest), count, distance, std::less<>())};
}

} // namespace analysis
