// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tools/ToolContext.h"
#include "tools/numbered/NumberedTarget.h"

#include <functional>

namespace tressel {

class FolderList;
class NumberedPage;

/// The two runs over a numbered series. Both are silent: a step that fails is ignored and the next one
/// runs, and a first or last number that isn't one makes no folder. They don't let events run.
class NumberedFolders {
public:
    /// `DirList` is the other list of folders, refreshed with the page's own.
    NumberedFolders(const ToolContext &context, NumberedPage &page, FolderList &DirList);

    /// Makes each folder of the series, with the levels above it that aren't there.
    void MakeFolders();
    /// Removes what is empty when its turn comes: each level of each target, from the top down, the
    /// folders above the series included.
    void DeleteFolders();

private:
    void ForEachTarget(NumberedRun run, const std::function<void(const QString &)> &act);
    NumberedSeries Series(NumberedRun run) const;
    void ShowResult();

    NumberedPage &page;
    FolderList &DirList;
    LiveOptions options;
    FileSystem &files;
    Events &events;
    RunWatch &watch;
};

} // namespace tressel
