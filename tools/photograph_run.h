// SPDX-License-Identifier: MIT
#pragma once

#include "tools/ordered_work.h"
#include "tools/photograph_list.h"

namespace tools {

/// The same work for every photograph of a list: results in order on the standard output, a line on
/// the error output for each that failed.
struct PhotographRun
{
    std::vector<Entry> entries;
    int jobs = 1;
    /// True when the work writes files: then an interruption waits until those begun are whole.
    bool writesFiles = false;
    std::function<Work()> makeWork; ///< for one thread; entries that failed already never reach it

    // Around and between the outputs of the photographs that went well.
    QByteArray before;
    QByteArray between;
    QByteArray after;
};

/// Returns what the program ends with.
int run(const PhotographRun& photographs);

} // namespace tools
