// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tools/WatchedPaths.h"

#include <QSet>
#include <QString>

namespace tressel {

class Console;
class FileSystem;
class Tally;

/// Makes folders, each with the levels above it that aren't there, and tells a tally; for a dry run it only
/// says which ones it would make, as if those before had been made.
class FolderMaker {
public:
    FolderMaker(Console &console, Tally &tally, bool isDryRun);

    /// True if the folder is there by now, or would be.
    bool IsThere(const QString &folder);
    /// Makes a folder, as MakeFolderPathTelling does.
    PathEnd Make(const QString &folder);
    /// The short way for a folder that mostly isn't there while the one above it is: true if it was made,
    /// false if it was left at that. Never true in a dry run.
    bool MadeAtOnce(const QString &folder);

private:
    PathEnd Plan(const QString &folder);

    Console &console;
    FileSystem &files;
    Tally &tally;
    bool isDryRun;
    QSet<QString> planned;
};

} // namespace tressel
