// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace tressel {

class FileSystem;
class RunWatch;

/// What became of a path that was to be made.
enum class PathEnd {
    Made, ///< its last level came into being
    StoodThere, ///< it was a folder before
    NotThere, ///< it is no folder now either
};

/// MakeFolderPath for a run: tells the watch each folder that came into being, and as failed a path that
/// isn't there afterwards. That it stood there is the caller's to tell.
PathEnd MakeFolderPathTelling(FileSystem &files, const QString &path, RunWatch &watch);

/// RemoveFolderPath for a run: tells the watch each folder that went, and once what became of the path's
/// last level if it didn't go: not there, kept since it holds something or is protected, or failed.
void RemoveFolderPathTelling(FileSystem &files, const QString &path, RunWatch &watch);

} // namespace tressel
