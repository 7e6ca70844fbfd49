#pragma once

#include <QtGlobal>

#include <vector>

/// The loops behind live::convertPicture(), one per instruction set. They all give the same bytes.
///
/// Y is whole, so truncating and clamping Y + c is the same as clamping Y + floor(c), and floor(c)
/// depends on the chroma of a pixel pair alone: three small whole numbers per pair, then saturating
/// additions.
namespace live {

/// Converts `pixels` pixels of YUYV (a multiple of 32) to R, G, B bytes.
using ColourKernel = void (*)(const uchar* yuyv, int pixels, uchar* rgb);

struct NamedKernel
{
    const char* name;
    ColourKernel convert;
};

/// What this machine can run, slowest first; never empty.
std::vector<NamedKernel> colourKernels();

/// Plain C++, for every machine.
void convertPlain(const uchar* yuyv, int pixels, uchar* rgb);
/// x86-64 with 16-byte vectors.
void convertSsse3(const uchar* yuyv, int pixels, uchar* rgb);
/// x86-64 with 32-byte vectors; not built for Windows, where the compiler keeps the stack aligned
/// to 16 bytes only.
void convertAvx2(const uchar* yuyv, int pixels, uchar* rgb);

} // namespace live
