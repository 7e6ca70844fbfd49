// SPDX-License-Identifier: MIT
#pragma once

#include "fuzz/support/input.h"

#include <QString>

/// How an input of some hundred bytes stands for a photograph of some hundred thousand, so that
/// what is changed at random is what matters.
namespace fuzz {

/// A photograph's bytes, one at a time: the next one made takes their place.
struct PhotographFile
{
    int modelIndex; ///< what the caller passes: 0 and 1 mostly
    /// analysis::FileBuffer::size bytes: the file, then what a buffer holds behind it: zeros.
    const std::uint8_t* bytes;
    int size;   ///< of the file, as far as anyone reads it: at most the above
    int beyond; ///< further bytes, all zeros
};

/// Takes from the input, in this order:
///   u8       model index: 0, 1 or any other
///   u8, u24  size of the file: as the imager makes it, with or without raw image, or nearly so,
///            any up to 450,000, or so large that it is not read to its end
///   46 bytes parameter block
///   54 bytes bitmap header, of which the first two are the file's type
///   u16      n, then n bytes (at most 512): the beginning of the palette
///   u16      n, then n bytes: a piece that is repeated from the beginning to the end of the file,
///            beneath all of the above
PhotographFile takePhotograph(Input& input);

/// A file in memory with the same bytes; its path. The next one takes its place.
QString putInMemory(const PhotographFile& photograph);

} // namespace fuzz
