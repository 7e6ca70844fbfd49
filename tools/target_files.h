#pragma once

#include "files/whole_file.h"
#include "tools/photograph_list.h"

#include <optional>

/// The files that a command writes, one for each photograph.
namespace tools {

class CommandLine;

/// --output and --force.
void addTargetOptions(CommandLine& line);

/// What --force says.
files::Existing existing(const CommandLine& line);

/// Decides on the path of each entry's file and makes the folders: the photograph's name with
/// another suffix, in the output folder, below which the way from the folder that the user named is
/// kept. Entries whose file would replace one of this run, or one of its photographs, get their
/// failure. Nothing, after an error line, when the output folder itself cannot be had.
std::optional<QStringList> prepareTargets(const CommandLine& line, const QString& suffix,
                                          std::vector<Entry>& entries);

/// What went wrong, naming the file to be written where it is about that; empty if nothing did.
QString targetReason(const files::Outcome& outcome, const QString& target);

} // namespace tools
