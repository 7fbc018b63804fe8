// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/DriveList.h"
#include "controls/FolderList.h"
#include "controls/Frame.h"
#include "controls/IsButton.h"
#include "controls/ListBox.h"

namespace tressel {

/// The page that finds empty folders and removes them.
class EmptyFoldersPage {
public:
    EmptyFoldersPage(Form &form, FileSystem &files);

    Frame page;
    DriveList DrvListRemove;
    FolderList DirListRemove;
    ListBox ListRemove;
    IsButton btnGBToolbarSearch;
    IsButton btnGBToolbarOpenDir;
    IsButton btnGBToolbarDelDir;
    IsButton btnGBToolbarDeleteAll;
    IsButton btnGBToolbarCopy;
};

} // namespace tressel
