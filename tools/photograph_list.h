// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace tools {

/// One photograph of a run, or a place where photographs were expected but cannot be had.
struct Entry
{
    QString path;      ///< as the user wrote it, or what the user wrote + "/" + the way from there
    QString subfolder; ///< the way from the folder the user named; empty for its own photographs
    QString failure;   ///< why there is nothing to work on; mostly empty
    QString target;    ///< the file to write, where prepareTargets() has chosen one
};

/// The photographs that the paths stand for, in the order of the paths. A folder stands for its
/// "*.bmp" files (in any letter case) in the order of their names and, if `recursive`, then for
/// those of its sub-folders; hidden ones, linked folders, pipes and the like are passed over.
/// Anything else stands for itself, whether it exists or not.
std::vector<Entry> listPhotographs(const QStringList& paths, bool recursive);

} // namespace tools
