// SPDX-License-Identifier: MIT
#include "platform/console.h"

#include <atomic>
#include <csignal>
#include <cstdlib>
#include <initializer_list>
#include <unistd.h>

namespace platform {
namespace {

std::atomic<int> request{0};
static_assert(std::atomic<int>::is_always_lock_free, "signal handlers may not wait for a lock");

void keep(int signal)
{
    request = signal;
    std::signal(signal, SIG_DFL);
}

} // namespace

bool isTerminal(std::FILE* stream)
{
    return isatty(fileno(stream)) == 1;
}

void deferInterruptions()
{
    std::signal(SIGPIPE, SIG_IGN);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        // Whoever started us with a request ignored (nohup does) wants it to stay so.
        if (std::signal(signal, keep) == SIG_IGN)
            std::signal(signal, SIG_IGN);
    }
}

bool isInterrupted()
{
    return request != 0;
}

const char* invisiblePlatform()
{
    return "offscreen";
}

void endAsInterrupted()
{
    std::signal(request, SIG_DFL);
    std::raise(request);
    std::_Exit(EXIT_FAILURE);
}

} // namespace platform
