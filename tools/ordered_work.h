// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QStringList>

#include <functional>

/// Work on many photographs at once whose results come out in order.
namespace tools {

/// What became of one photograph.
struct Result
{
    QByteArray output;      ///< for the standard output
    QString failure;        ///< a line for the error output; empty when all went well
    bool isLeftOut = false; ///< nothing was done
    QStringList findings{}; ///< lines for the error output that are no failures
    bool isFound = false;   ///< what the command was looking for is there
};

using Work = std::function<Result(int index)>;

/// How many of the wanted threads the system gives: fewer, or none, where a user may start no more.
/// Who does not ask may wait for ever for what was given to a thread that never began.
int threadsToBeHad(int wanted);

/// Runs work on 0 … count − 1 in so many threads, at least one, and hands the results over in this
/// order, one after another, in the calling thread. The threads stay the same, so what work keeps
/// from one photograph to the next can be thread_local. Threads run only so far ahead of `deliver`
/// that memory stays small. When `deliver` returns false no new work is begun; what was begun is
/// still handed over.
void inOrder(int count, int threads, const Work& work,
             const std::function<bool(int index, const Result&)>& deliver);

} // namespace tools
