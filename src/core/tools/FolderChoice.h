// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/DriveList.h"
#include "controls/FolderList.h"

namespace tressel {

/// Ties a list of drives and a list of folders on a page, so that each follows the other: a drive that is
/// chosen, also the one that is there already, takes the folders to its root, and wherever the folders go
/// the drive follows. A drive that follows never moves the folders.
class FolderChoice {
public:
    /// What becomes of a chosen drive that can't be entered.
    enum class Unready {
        IsLeftAgain, ///< the drive list goes back to the drive of the folders
        Fails, ///< the failure leaves the event
    };

    FolderChoice(DriveList &drives, FolderList &folders, Unready unready);
    FolderChoice(const FolderChoice &) = delete;
    FolderChoice &operator=(const FolderChoice &) = delete;

    /// Takes both lists to a folder that was stored. Fails with 76 if it has gone; the lists then show the
    /// folder in which they stand, as there must be something to pick from.
    void GoTo(const QString &folder);
    /// Lists the folder in which they stand.
    void ShowPresent();

    Event<> DriveChosen; ///< the folders stand in the root of the drive that was chosen

private:
    void TakeDrive();

    DriveList &drives;
    FolderList &folders;
    Unready unready;
};

} // namespace tressel
