// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/DriveList.h"
#include "controls/FolderList.h"
#include "controls/Frame.h"
#include "controls/IsButton.h"
#include "controls/ListBox.h"
#include "tools/FolderChoice.h"
#include "tools/ToolContext.h"

namespace tressel {

class Steps;

/// The page that finds empty folders and removes them.
class EmptyFoldersPage {
public:
    explicit EmptyFoldersPage(const ToolContext &context);

    /// Nothing is found yet: empties the list, turns off the buttons that need one, and puts "Ready" into
    /// the status line.
    void ResetFoundList();
    /// Goes to the folder that the settings hold.
    void Restore(Steps &steps);
    /// Writes what Restore reads.
    void Save();

    Frame page;
    DriveList DrvListRemove;
    FolderList DirListRemove;
    ListBox ListRemove;
    IsButton btnGBToolbarSearch;
    IsButton btnGBToolbarOpenDir;
    IsButton btnGBToolbarDelDir;
    IsButton btnGBToolbarDeleteAll;
    IsButton btnGBToolbarCopy;

private:
    void PlaceIcons();

    Settings &settings;
    WorkArea &area;
    FolderChoice choice;
};

} // namespace tressel
