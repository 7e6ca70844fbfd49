// SPDX-License-Identifier: MIT
#pragma once

#include "files/whole_file.h"
#include "tools/ordered_work.h"
#include "tools/photograph_list.h"

/// The files that a command writes, one for each photograph.
namespace tools {

class CommandLine;

/// What becomes of files that are there already.
struct TargetRules
{
    files::Existing existing = files::Existing::Refuse;
    bool skipsExisting = false; ///< one that stays is no failure of its photograph
};

/// --output, --force and --skip-existing. Without a default the folder must be named.
void addTargetOptions(CommandLine& line, const QString& defaultFolder);

TargetRules readTargetRules(CommandLine& line);

/// Decides on each entry's target and makes the folders: the photograph's name with another suffix,
/// in the output folder, below which the way from the folder that the user named is kept. Entries
/// whose file would replace one of this run, or one of its photographs, get their failure. False,
/// after an error line, when the output folder itself cannot be had.
bool prepareTargets(const CommandLine& line, const QString& suffix, std::vector<Entry>& entries);

/// What became of a photograph whose file was to be written; a failure names that file where it is
/// about it.
Result targetResult(const files::Outcome& outcome, const QString& target, const TargetRules& rules);

} // namespace tools
