#pragma once

#include "analysis/outcome.h"

#include <QByteArray>

namespace analysis {

/// Writes a file that is complete or absent: the bytes go into a hidden file beside it, which takes
/// the name only when all of them are there. Whatever fails leaves nothing behind, and a file that
/// had the name before stays. Unless `overwrite`, an existing file is never replaced, not even one
/// that another program makes meanwhile. The folder must exist.
///
/// A program that is killed can leave ".thermadesk-*.part" behind. Threads may write side by side.
Outcome writeWholeFile(const QString& path, const QByteArray& bytes, bool overwrite);

} // namespace analysis
