// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/DriveList.h"
#include "controls/FileList.h"
#include "controls/FolderList.h"
#include "controls/Frame.h"
#include "tools/ToolContext.h"

namespace tressel {

class FolderListFile;
class FolderTree;

/// The page on which one goes to a folder and takes its file names into the list.
class BrowsePage {
public:
    BrowsePage(const ToolContext &context, FolderTree &tree, FolderListFile &listFile);

    /// Takes over all file names on show, in place of what the list held, and saves them.
    void LoadAllNames();

    Frame page;
    DriveList DrvList;
    FolderList DirList;
    tressel::FileList FileList;

private:
    void DrvList_Click();
    void DirList_Click();
    void DirList_Change();
    void FileList_DoubleClick();

    WorkArea &area;
    FolderTree &tree;
    FolderListFile &listFile;
    Session &session;
};

} // namespace tressel
