// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

/// What a fuzz target is to those who run it: libFuzzer, or the replay of known inputs as a test.
/// The names are libFuzzer's.

/// Called once, before all inputs.
extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv);
/// One input. Always 0; whatever must not happen ends the program.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size);

namespace fuzz {

/// Ends the program, with the current input as the finding, when something that must hold does not.
inline void mustHold(bool holds, const char* what)
{
    if (holds)
        return;
    std::fprintf(stderr, "does not hold: %s\n", what);
    std::abort();
}

} // namespace fuzz
