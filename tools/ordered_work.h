#pragma once

#include <QByteArray>
#include <QString>

#include <functional>

/// Work on many photographs at once whose results come out in order.
namespace tools {

/// What became of one photograph.
struct Result
{
    QByteArray output;      ///< for the standard output
    QString failure;        ///< a line for the error output; empty when all went well
    bool isLeftOut = false; ///< nothing was done
};

using Work = std::function<Result(int index)>;

/// Runs work on 0 … count − 1 in `jobs` threads and hands the results over in this order, one after
/// another, in the calling thread. Each thread gets its own work from `makeWork`, so that it can
/// keep its own buffers. Threads run only so far ahead of `deliver` that memory stays small. When
/// `deliver` returns false no new work is begun; what was begun is still handed over.
void inOrder(int count, int jobs, const std::function<Work()>& makeWork,
             const std::function<bool(int index, const Result&)>& deliver);

} // namespace tools
