// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/DriveList.h"
#include "controls/FileList.h"
#include "controls/FolderList.h"
#include "controls/Frame.h"
#include "tools/FolderChoice.h"
#include "tools/ToolContext.h"

namespace tressel {

class FolderListFile;
class FolderTree;
class Steps;

/// The page on which one goes to a folder and takes its file names into the list.
class BrowsePage {
public:
    BrowsePage(const ToolContext &context, FolderTree &tree, FolderListFile &listFile);

    /// Takes over all file names on show, in place of what the list held, and saves them.
    void LoadAllNames();
    /// Goes to the folder that the settings hold; the file names follow.
    void Restore(Steps &steps);
    /// Writes what Restore reads.
    void Save();

    Frame page;
    DriveList DrvList;
    FolderList DirList;
    tressel::FileList FileList;

private:
    void DirList_Click();
    void DirList_Change();
    void FileList_DoubleClick();

    Settings &settings;
    WorkArea &area;
    FolderTree &tree;
    FolderListFile &listFile;
    Session &session;
    FolderChoice choice;
};

} // namespace tressel
