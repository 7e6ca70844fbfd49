// SPDX-License-Identifier: MIT
// live::convertPixels(), compiled once for every instruction set that a machine may have:
// foreach_target.h includes this file again for each of them, under another HWY_NAMESPACE.
#include "live/live_frame.h"

// On Windows the compiler keeps the stack aligned to 16 bytes only: no wider vectors there.
#ifdef _WIN32
#define HWY_DISABLED_TARGETS (HWY_SSE4 - 1)
#endif
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "live/frame_kernels.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();

namespace live::HWY_NAMESPACE {
namespace {

// Y is whole, so truncating and clamping Y + c is the same as clamping Y + floor(c), and floor(c)
// depends on the chroma of a pixel pair alone. These fractions give it exactly for every chroma.
constexpr int redOfV = 22458;    // 1.370705 x 2^14
constexpr int blueOfU = 28384;   // 1.732446 x 2^14
constexpr int greenOfV = 731907; // 0.698001 x 2^20
constexpr int greenOfU = 354034; // 0.337633 x 2^20
constexpr int greyChroma = 128;

#if HWY_TARGET == HWY_SCALAR

uchar clamped(int value)
{
    return uchar(value < 0 ? 0 : value > 255 ? 255 : value);
}

void convert(const uchar* yuyv, std::size_t pixels, uchar* rgb)
{
    for (std::size_t pair = 0; pair < pixels / 2; ++pair, yuyv += 4) {
        const int u = yuyv[1] - greyChroma;
        const int v = yuyv[3] - greyChroma;
        for (const int luma : {yuyv[0], yuyv[2]}) {
            *rgb++ = clamped(luma + (redOfV * v >> 14));
            *rgb++ = clamped(luma + (-(greenOfV * v + greenOfU * u) >> 20));
            *rgb++ = clamped(luma + (blueOfU * u >> 14));
        }
    }
}

#else

namespace hn = hwy::HWY_NAMESPACE;

// The same registers, seen as bytes (pixels), 16-bit words (pixel pairs) or 32-bit ones.
using Bytes = hn::ScalableTag<uint8_t>;
using Words = hn::Repartition<int16_t, Bytes>;
using Longs = hn::Repartition<int32_t, Bytes>;
constexpr Bytes bytes;
constexpr Words words;
constexpr Longs longs;
using Pairs = hn::Vec<Words>;

Pairs lowByte(Pairs pairs)
{
    return hn::And(pairs, hn::Set(words, 0xFF));
}

Pairs highByte(Pairs pairs)
{
    return lowByte(hn::ShiftRight<8>(pairs));
}

/// floor(fraction x (chroma - 128)) for a fraction of 2^14: the high half of a product.
Pairs partOf(Pairs chroma, int fraction)
{
    const Pairs fourTimes = hn::ShiftLeft<2>(hn::Sub(chroma, hn::Set(words, greyChroma)));
    return hn::MulHigh(fourTimes, hn::Set(words, int16_t(fraction)));
}

hn::Vec<Longs> greenOf(hn::Vec<Longs> u, hn::Vec<Longs> v)
{
    const auto grey = hn::Set(longs, greyChroma * (greenOfV + greenOfU));
    const auto chroma =
        hn::Add(hn::Mul(v, hn::Set(longs, greenOfV)), hn::Mul(u, hn::Set(longs, greenOfU)));
    return hn::ShiftRight<20>(hn::Sub(grey, chroma));
}

/// Green mixes both chroma values and needs 32 bits: every other pair at a time.
Pairs greenOf(Pairs u, Pairs v)
{
    const auto low = hn::Set(longs, 0xFFFF);
    const auto us = hn::BitCast(longs, u);
    const auto vs = hn::BitCast(longs, v);
    const auto even = greenOf(hn::And(us, low), hn::And(vs, low));
    const auto odd = greenOf(hn::ShiftRight<16>(us), hn::ShiftRight<16>(vs));
    return hn::BitCast(words, hn::Or(hn::And(even, low), hn::ShiftLeft<16>(odd)));
}

Pairs clamped(Pairs values)
{
    return hn::Min(hn::Max(values, hn::Zero(words)), hn::Set(words, 0xFF));
}

/// One colour of all pixels: both lumas of a pair with what the pair's chroma adds to them.
hn::Vec<Bytes> colour(Pairs lumas, Pairs part)
{
    const Pairs first = clamped(hn::Add(lowByte(lumas), part));
    const Pairs second = clamped(hn::Add(highByte(lumas), part));
    return hn::BitCast(bytes, hn::Or(first, hn::ShiftLeft<8>(second)));
}

void convert(const uchar* yuyv, std::size_t pixels, uchar* rgb)
{
    const std::size_t atOnce = hn::Lanes(bytes);
    for (std::size_t pixel = 0; pixel < pixels; pixel += atOnce) {
        hn::Vec<Bytes> luma;
        hn::Vec<Bytes> chroma;
        hn::LoadInterleaved2(bytes, yuyv + 2 * pixel, luma, chroma);
        const Pairs lumas = hn::BitCast(words, luma);
        const Pairs u = lowByte(hn::BitCast(words, chroma));
        const Pairs v = highByte(hn::BitCast(words, chroma));
        hn::StoreInterleaved3(colour(lumas, partOf(v, redOfV)), colour(lumas, greenOf(u, v)),
                              colour(lumas, partOf(u, blueOfU)), bytes, rgb + 3 * pixel);
    }
}

#endif

} // namespace
} // namespace live::HWY_NAMESPACE

HWY_AFTER_NAMESPACE();

#if HWY_ONCE

namespace live {

HWY_EXPORT(convert);

void convertPixels(const uchar* yuyv, int pixels, uchar* rgb)
{
    HWY_DYNAMIC_DISPATCH(convert)(yuyv, std::size_t(pixels), rgb);
}

} // namespace live

#endif
