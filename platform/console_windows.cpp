// SPDX-License-Identifier: MIT
#include "platform/console.h"

#include <atomic>
#include <csignal>
#include <cstdlib>
#include <initializer_list>
#include <io.h>

namespace platform {
namespace {

std::atomic<int> request{0};

// Windows has put the default back before it calls this.
void keep(int signal)
{
    request = signal;
}

} // namespace

bool isTerminal(std::FILE* stream)
{
    return _isatty(_fileno(stream)) != 0;
}

void deferInterruptions()
{
    for (const int signal : {SIGINT, SIGTERM, SIGBREAK})
        std::signal(signal, keep);
}

bool isInterrupted()
{
    return request != 0;
}

const char* invisiblePlatform()
{
    return "windows";
}

void endAsInterrupted()
{
    constexpr int endedByControlC = int(0xC000013AU);
    std::_Exit(endedByControlC);
}

} // namespace platform
