// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/photograph/photograph_reader.h"
#include "tools/command_line.h"
#include "tools/ordered_work.h"
#include "tools/photograph_list.h"

namespace tools {

/// The same work for every photograph of a list: results in order on the standard output, a line on
/// the error output for each that failed.
struct PhotographRun
{
    /// The photographs that the arguments name.
    explicit PhotographRun(const CommandLine& line);

    std::vector<Entry> entries;
    int jobs;
    /// True when the work writes files: then an interruption waits until those begun are whole.
    bool writesFiles = false;
    /// In several threads at once, each with its reader; entries that failed already never reach
    /// it.
    std::function<Result(const Entry& entry, analysis::PhotographReader& reader)> work;

    // Around and between the outputs of the photographs.
    QByteArray before;
    QByteArray between;
    QByteArray after;

    /// What the program ends with: of the photographs, some may have failed, and in some may have
    /// been found what was looked for.
    std::function<int(bool someFailed, bool someFound)> status = [](bool someFailed, bool) {
        return someFailed ? status::someFailed : status::good;
    };
};

/// Returns what the program ends with.
int run(const PhotographRun& photographs);

} // namespace tools
