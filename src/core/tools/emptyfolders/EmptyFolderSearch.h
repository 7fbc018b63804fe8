// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tools/ToolContext.h"

#include <QString>

#include <cstdint>

namespace tressel {

class EmptyFoldersPage;

/// The walk that finds the folders that hold nothing at all: hidden entries and links count as content, and
/// so do empty folders.
class EmptyFolderSearch {
public:
    EmptyFolderSearch(const ToolContext &context, EmptyFoldersPage &page);

    static constexpr std::int16_t runOn = 0;
    static constexpr std::int16_t stop = -1;
    /// Looked at before each entry: `stop` ends the walk there, and no folder is found any more.
    std::int16_t stopFlag = runOn;

    /// Adds each empty folder below the path, the folder itself included, to the page's list, depth first in
    /// the order of the listings. The path ends in the separator. A folder that can't be read is taken for an
    /// empty one.
    void FindEmptyFolders(const QString &Path);

private:
    /// False if the entry has gone since its folder was listed, which ends that listing.
    bool WalkInto(const QString &folder);
    void AddFound(const QString &Path);

    EmptyFoldersPage &page;
    WorkArea &area;
    FileSystem &files;
    Events &events;
    RunWatch &watch;
};

} // namespace tressel
