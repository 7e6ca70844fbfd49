// SPDX-License-Identifier: MIT
#include "bench/child_process.h"

#include <QElapsedTimer>
#include <QProcess>

#include <sys/resource.h>

namespace bench {
namespace {

/// Of all children that were waited for.
double processorSeconds()
{
    rusage usage{};
    getrusage(RUSAGE_CHILDREN, &usage);
    const auto seconds = [](const timeval& time) {
        return double(time.tv_sec) + double(time.tv_usec) * 1e-6;
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

} // namespace

ChildProcess run(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.setStandardErrorFile(QProcess::nullDevice());
    const double before = processorSeconds();
    QElapsedTimer clock;
    clock.start();
    process.start(program, arguments);
    const bool finished = process.waitForFinished(-1);
    const double elapsed = double(clock.nsecsElapsed()) * 1e-9;
    const bool succeeded =
        finished && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    return {succeeded, processorSeconds() - before, elapsed, process.readAllStandardOutput()};
}

QString pythonWithNumpy()
{
    static const QString found = [] {
        for (const char* name : {"/usr/bin/python3", "python3"}) {
            const QString python = QString::fromLatin1(name);
            if (run(python, {QStringLiteral("-c"), QStringLiteral("import numpy, PIL.Image")})
                    .succeeded)
                return python;
        }
        return QString();
    }();
    return found;
}

} // namespace bench
