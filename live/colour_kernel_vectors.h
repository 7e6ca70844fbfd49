#pragma once

#include <QtGlobal>

#include <array>
#include <cstddef>

/// The vector form of the conversion, written once for every width. `Vector` names a register type
/// and a handful of instructions that work on each 16-byte lane by itself.
namespace live {

/// Shuffle indices of two equal lanes, so that a register of either width can take them as they
/// lie.
using Shuffle = std::array<char, 32>;

constexpr char nothing = char(0x80); ///< a shuffle index that gives 0

/// Repeats one 16-bit half of each 32-bit element in both halves.
constexpr Shuffle repeatHalf(int half)
{
    Shuffle shuffle{};
    for (int i = 0; i < 16; ++i)
        shuffle[std::size_t(i)] = shuffle[std::size_t(i) + 16] = char(i / 4 * 4 + half * 2 + i % 2);
    return shuffle;
}

/// Sixteen pixels become 48 bytes R, G, B …, in three pieces of a lane each. What the R and G of
/// eight of these pixels, eight R followed by eight G, give to a piece. `firstPixel` is 0 or 8.
constexpr Shuffle fromRedGreen(int piece, int firstPixel)
{
    Shuffle shuffle{};
    for (int i = 0; i < 16; ++i) {
        const int byte = 16 * piece + i;
        const int pixel = byte / 3 - firstPixel;
        const bool here = byte % 3 < 2 && pixel >= 0 && pixel < 8;
        shuffle[std::size_t(i)] = shuffle[std::size_t(i) + 16] =
            here ? char(byte % 3 * 8 + pixel) : nothing;
    }
    return shuffle;
}

/// What the sixteen B give to a piece.
constexpr Shuffle fromBlue(int piece)
{
    Shuffle shuffle{};
    for (int i = 0; i < 16; ++i) {
        const int byte = 16 * piece + i;
        shuffle[std::size_t(i)] = shuffle[std::size_t(i) + 16] =
            byte % 3 == 2 ? char(byte / 3) : nothing;
    }
    return shuffle;
}

/// Coefficients for a chroma value of 4 (C − 128). The high half of a 16 × 16 bit product is then
/// floor(c (C − 128)) for c × 2^14, and these two are exact for all 256 values.
constexpr short redOfV = 22458;
constexpr short blueOfU = 28384;
/// Green mixes both, and 16 bits are too few: −0.698001 and −0.337633 × 2^28, cut into high and low
/// 14 bits. The high half of the sum is exact for all 65,536 pairs.
constexpr short greenOfVHigh = -11437;
constexpr short greenOfVLow = 15591;
constexpr short greenOfUHigh = -5532;
constexpr short greenOfULow = 3619;

/// Eight pixels a lane, 16 bits each.
template<typename Register>
struct Channels
{
    Register red;
    Register green;
    Register blue;
};

template<typename Vector>
Channels<typename Vector::Register> channels(typename Vector::Register yuyv)
{
    // Bytes Y, C times 0, 4: four times the chroma.
    const auto chroma = Vector::subtract16(Vector::sumOfBytes(yuyv, Vector::pairs(0x0400, 0x0400)),
                                           Vector::pairs(512, 512));
    const auto blueRed = Vector::highProduct(chroma, Vector::pairs(blueOfU, redOfV));
    const auto green =
        Vector::add32(Vector::sumOfProducts(chroma, Vector::pairs(greenOfUHigh, greenOfVHigh)),
                      Vector::template shiftRight32<14>(
                          Vector::sumOfProducts(chroma, Vector::pairs(greenOfULow, greenOfVLow))));
    const auto luma = Vector::bitAnd(yuyv, Vector::pairs(0x00FF, 0x00FF));
    alignas(32) static constexpr Shuffle low = repeatHalf(0);
    alignas(32) static constexpr Shuffle high = repeatHalf(1);
    return {Vector::add16(luma, Vector::shuffle(blueRed, high)),
            Vector::add16(luma, Vector::shuffle(green, high)),
            Vector::add16(luma, Vector::shuffle(blueRed, low))};
}

/// Converts sixteen pixels a lane, one lane's behind the other's.
template<typename Vector>
void convertBlock(const uchar* yuyv, uchar* rgb)
{
    alignas(32) static constexpr Shuffle redGreen0 = fromRedGreen(0, 0);
    alignas(32) static constexpr Shuffle redGreen1A = fromRedGreen(1, 0);
    alignas(32) static constexpr Shuffle redGreen1B = fromRedGreen(1, 8);
    alignas(32) static constexpr Shuffle redGreen2 = fromRedGreen(2, 8);
    alignas(32) static constexpr Shuffle blue0 = fromBlue(0);
    alignas(32) static constexpr Shuffle blue1 = fromBlue(1);
    alignas(32) static constexpr Shuffle blue2 = fromBlue(2);

    const auto a = channels<Vector>(Vector::load(yuyv));
    const auto b = channels<Vector>(Vector::load(yuyv + 16));
    const auto redGreenA = Vector::saturate(a.red, a.green);
    const auto redGreenB = Vector::saturate(b.red, b.green);
    const auto blue = Vector::saturate(a.blue, b.blue);
    Vector::store(
        rgb, Vector::bitOr(Vector::shuffle(redGreenA, redGreen0), Vector::shuffle(blue, blue0)),
        Vector::bitOr(Vector::bitOr(Vector::shuffle(redGreenA, redGreen1A),
                                    Vector::shuffle(redGreenB, redGreen1B)),
                      Vector::shuffle(blue, blue1)),
        Vector::bitOr(Vector::shuffle(redGreenB, redGreen2), Vector::shuffle(blue, blue2)));
}

template<typename Vector>
void convertVectors(const uchar* yuyv, int pixels, uchar* rgb)
{
    constexpr std::ptrdiff_t block = 16 * Vector::lanes;
    for (std::ptrdiff_t pixel = 0; pixel < pixels; pixel += block) {
        convertBlock<Vector>(yuyv, rgb);
        yuyv += 2 * block;
        rgb += 3 * block;
    }
}

} // namespace live
