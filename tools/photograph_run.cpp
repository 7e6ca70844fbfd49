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
        return photographs.status(true, false);
    }
    const std::vector<Entry>& entries = photographs.entries;
    const int count = int(entries.size());
    ProgressBar bar(count, wantsProgressBar(photographs.writesFiles));
    int good = 0;
    int printed = 0;
    bool someFailed = false;
    bool someFound = false;
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
        const bool isGood = result.failure.isEmpty();
        if (isGood || !result.output.isEmpty()) {
            canPrint =
                canPrint && (printed == 0 || print(photographs.between)) && print(result.output);
            ++printed;
        }
        QStringList lines = result.findings;
        if (!isGood)
            lines.append(result.failure);
        for (const QString& line : lines) {
            bar.hide();
            printError(entries[std::size_t(index)].path + QStringLiteral(": ") + line);
        }
        good += isGood ? 1 : 0;
        someFailed |= !isGood;
        someFound |= result.isFound;
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
        someFailed = true;
    }
    return photographs.status(someFailed, someFound);
}

} // namespace tools
