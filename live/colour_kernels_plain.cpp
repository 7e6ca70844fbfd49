#include "live/colour_kernels.h"

#include <cstddef>

namespace live {
namespace {

/// floor(millionths / 1,000,000). The formula's coefficients have six decimals, so this is exact.
constexpr int wholePart(int millionths)
{
    // Moved above zero first, where division truncates downward; no sum is below −256.
    return (millionths + 256 * 1'000'000) / 1'000'000 - 256;
}

constexpr uchar clamped(int value)
{
    return uchar(value < 0 ? 0 : value > 255 ? 255 : value);
}

} // namespace

void convertPlain(const uchar* yuyv, int pixels, uchar* rgb)
{
    for (const uchar* const end = yuyv + 2 * std::ptrdiff_t(pixels); yuyv != end;
         yuyv += 4, rgb += 6) {
        const int u = yuyv[1] - 128;
        const int v = yuyv[3] - 128;
        const int red = wholePart(1'370'705 * v);
        const int green = wholePart(-698'001 * v - 337'633 * u);
        const int blue = wholePart(1'732'446 * u);
        for (std::ptrdiff_t pixel = 0; pixel < 2; ++pixel) {
            const int luma = yuyv[2 * pixel];
            rgb[3 * pixel] = clamped(luma + red);
            rgb[3 * pixel + 1] = clamped(luma + green);
            rgb[3 * pixel + 2] = clamped(luma + blue);
        }
    }
}

} // namespace live
