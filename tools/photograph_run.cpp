// SPDX-License-Identifier: MIT
#include "tools/photograph_run.h"

#include "platform/console.h"
#include "tools/command_line.h"
#include "tools/messages.h"

namespace tools {
namespace {

/// Where the bar would get in between the results it is not drawn.
bool wantsProgressBar(bool writesFiles)
{
    return platform::isTerminal(stderr) && (writesFiles || !platform::isTerminal(stdout));
}

} // namespace

PhotographRun::PhotographRun(const CommandLine& line)
    : entries(listPhotographs(line.paths(), line.isRecursive())), jobs(line.jobs())
{
}

int run(const PhotographRun& photographs)
{
    if (photographs.writesFiles)
        platform::deferInterruptions();

    const int threads = threadsToBeHad(photographs.jobs);
    if (threads == 0) {
        printError(QStringLiteral("no thread can be started"));
        return status::someFailed;
    }
    const std::vector<Entry>& entries = photographs.entries;
    const int count = int(entries.size());
    ProgressBar bar(count, wantsProgressBar(photographs.writesFiles));
    int good = 0;
    int failed = 0;
    bool canPrint = print(photographs.before);

    const auto work = [&](int index) -> Result {
        thread_local analysis::PhotographReader reader;
        const Entry& entry = entries[std::size_t(index)];
        if (platform::isInterrupted())
            return {{}, {}, true};
        return entry.failure.isEmpty() ? photographs.work(entry, reader)
                                       : Result{{}, entry.failure};
    };
    const auto deliver = [&](int index, const Result& result) {
        if (result.isLeftOut)
            return false;
        if (result.failure.isEmpty()) {
            canPrint =
                canPrint && (good == 0 || print(photographs.between)) && print(result.output);
            ++good;
        } else {
            bar.hide();
            printError(entries[std::size_t(index)].path + QStringLiteral(": ") + result.failure);
            ++failed;
        }
        bar.step();
        return canPrint && !platform::isInterrupted();
    };
    inOrder(count, threads, work, deliver);

    bar.hide();
    if (platform::isInterrupted()) {
        printError(QStringLiteral("interrupted: %1 of %2 files are written").arg(good).arg(count));
        platform::endAsInterrupted();
    }
    if (!canPrint || !print(photographs.after) || !flushOutput()) {
        printOutputError();
        return status::someFailed;
    }
    return failed == 0 ? status::good : status::someFailed;
}

} // namespace tools
