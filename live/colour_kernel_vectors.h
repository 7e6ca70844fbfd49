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

/// The first 16 of the 24 bytes R, G, B … of eight pixels, or the last 8 in the lower or upper
/// half.
struct Piece
{
    int firstByte; ///< among the 24
    int from;      ///< where in the lane it begins
    int count;
};
constexpr Piece head{0, 0, 16};
constexpr Piece tailBelow{16, 0, 8};
constexpr Piece tailAbove{16, 8, 8};

/// What eight R followed by eight G give to a piece.
constexpr Shuffle fromRedGreen(Piece piece)
{
    Shuffle shuffle{};
    for (int i = 0; i < 16; ++i) {
        const int byte = piece.firstByte + i - piece.from;
        const bool here = i >= piece.from && i < piece.from + piece.count && byte % 3 < 2;
        shuffle[std::size_t(i)] = shuffle[std::size_t(i) + 16] =
            here ? char(byte % 3 * 8 + byte / 3) : nothing;
    }
    return shuffle;
}

/// What eight B give, which stand at `first` of the lane.
constexpr Shuffle fromBlue(Piece piece, int first)
{
    Shuffle shuffle{};
    for (int i = 0; i < 16; ++i) {
        const int byte = piece.firstByte + i - piece.from;
        const bool here = i >= piece.from && i < piece.from + piece.count && byte % 3 == 2;
        shuffle[std::size_t(i)] = shuffle[std::size_t(i) + 16] =
            here ? char(first + byte / 3) : nothing;
    }
    return shuffle;
}

/// Both, where each gives what the other leaves out.
constexpr Shuffle merged(Shuffle shuffle, const Shuffle& other)
{
    for (std::size_t i = 0; i < shuffle.size(); ++i)
        if (shuffle[i] == nothing)
            shuffle[i] = other[i];
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

/// Converts `block` pixels: in each lane eight from the first half, eight from the second.
template<typename Vector>
void convertBlock(const uchar* yuyv, uchar* rgb)
{
    alignas(32) static constexpr Shuffle redGreenHead = fromRedGreen(head);
    alignas(32) static constexpr Shuffle redGreenTailA = fromRedGreen(tailBelow);
    alignas(32) static constexpr Shuffle redGreenTailB = fromRedGreen(tailAbove);
    alignas(32) static constexpr Shuffle blueHeadA = fromBlue(head, 0);
    alignas(32) static constexpr Shuffle blueHeadB = fromBlue(head, 8);
    alignas(32) static constexpr Shuffle blueTails =
        merged(fromBlue(tailBelow, 0), fromBlue(tailAbove, 8));

    const auto a = channels<Vector>(Vector::load(yuyv));
    const auto b = channels<Vector>(Vector::load(yuyv + 16 * Vector::lanes));
    const auto redGreenA = Vector::saturate(a.red, a.green);
    const auto redGreenB = Vector::saturate(b.red, b.green);
    const auto blue = Vector::saturate(a.blue, b.blue);
    uchar* const second = rgb + 24 * Vector::lanes;
    Vector::storeHeads(rgb, Vector::bitOr(Vector::shuffle(redGreenA, redGreenHead),
                                          Vector::shuffle(blue, blueHeadA)));
    Vector::storeHeads(second, Vector::bitOr(Vector::shuffle(redGreenB, redGreenHead),
                                             Vector::shuffle(blue, blueHeadB)));
    Vector::storeTails(rgb, second,
                       Vector::bitOr(Vector::bitOr(Vector::shuffle(redGreenA, redGreenTailA),
                                                   Vector::shuffle(redGreenB, redGreenTailB)),
                                     Vector::shuffle(blue, blueTails)));
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
