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
#include "tools/emptyfolders/EmptyFolderSearch.h"

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

    /// The selected folder, empty if none is.
    QString GetSelectedFolder() const { return ListRemove.Text(); }

private:
    void PlaceIcons();
    void TieHandlers();
    void btnGBToolbarSearch_Click();
    void btnGBToolbarOpenDir_Click();
    void btnGBToolbarDelDir_Click();
    void btnGBToolbarDeleteAll_Click();
    void btnGBToolbarCopy_Click();
    void ListRemove_DoubleClick();

    void StopSearch();
    void Search(const QString &root);
    void EndSearch(const QString &root);
    void DeleteListed();
    void DeleteSelected(const QString &folder);
    /// Removes one folder that is empty; what isn't stays with all that it holds.
    void RemoveFolder(const QString &folder);
    void SetFoundButtonsEnabled(bool enabled);
    void OpenFolder(const QString &folder);
    void AskForSelection();

    const Machine machine;
    const ClickSound &clickSound;
    Settings &settings;
    RunWatch &watch;
    WorkArea &area;
    FolderChoice choice;
    EmptyFolderSearch search;
    QString searchedBelow; ///< where the listed folders were found
};

} // namespace tressel
