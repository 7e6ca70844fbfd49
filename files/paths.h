// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <filesystem>

/// Names and paths that strangers may have chosen: they can begin with ":", hold line breaks or
/// look like mark-up.
namespace files {

/// A path as somebody wrote it, for use with files: one that begins with ":" would mean what is
/// built into the program, so it gets "./" before it. Any other stays as it is.
QString localPath(const QString& path);

/// The same path for the standard library, to which ":" means nothing.
std::filesystem::path nativePath(const QString& path);

/// The path of a name inside a folder. The name is taken as it stands, whatever it begins with; an
/// empty folder is the current one.
QString pathIn(const QString& folder, const QString& name);

/// A name as a tool tip: shown as it is, never as mark-up, which could name other files to be
/// shown.
QString toolTipOf(const QString& name);

} // namespace files
