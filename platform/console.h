// SPDX-License-Identifier: MIT
#pragma once

#include <cstdio>

/// What a program without windows asks of the system.
namespace platform {

/// True when a person reads what is written to the stream as it is written.
bool isTerminal(std::FILE* stream);

/// From now on Ctrl-C and other requests to end are kept for isInterrupted() instead of ending the
/// program in the middle of something, and writing into a closed pipe is a failed write. A second
/// request ends it at once.
void deferInterruptions();

/// True once such a request has come. Any thread.
bool isInterrupted();

/// Ends the program as the request that came would have ended it.
[[noreturn]] void endAsInterrupted();

/// The platform plugin for Qt programs that draw but show nothing. On Linux the one that needs no
/// display; Windows always has one.
const char* invisiblePlatform();

} // namespace platform
