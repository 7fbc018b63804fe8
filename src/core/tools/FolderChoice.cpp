// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/FolderChoice.h"

namespace tressel {

FolderChoice::FolderChoice(DriveList &driveList, FolderList &folderList, Unready whenUnready)
    : drives(driveList)
    , folders(folderList)
    , unready(whenUnready)
{
    drives.Click.Handle([this] { TakeDrive(); });
    folders.Change.Also([this] { drives.SetDrive(folders.Path()); });
}

void FolderChoice::GoTo(const QString &folder)
{
    try {
        folders.SetPath(folder);
    } catch (const Failure &) {
        ShowPresent();
        throw;
    }
    drives.SetDrive(folders.Path());
}

void FolderChoice::ShowPresent()
{
    folders.Refresh();
    drives.SetDrive(folders.Path());
}

void FolderChoice::TakeDrive()
{
    try {
        folders.SetPath(drives.Drive());
        DriveChosen.Raise();
    } catch (const Failure &) {
        if (unready == Unready::Fails)
            throw;
        drives.SetDrive(folders.Path());
    }
}

} // namespace tressel
