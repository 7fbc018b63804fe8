// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/CheckBox.h"
#include "controls/ComboBox.h"
#include "controls/IsButton.h"
#include "controls/Label.h"
#include "controls/ProgressBar.h"
#include "controls/TextBox.h"
#include "tools/listing/FolderListing.h"
#include "tools/listing/RecentPaths.h"

namespace tressel {

class Steps;

/// The tool that lists a folder tree into a report, which stays as a file or becomes the folder list.
class ListingPage {
public:
    ListingPage(const ToolContext &context, FolderListFile &listFile);

    /// Fills the recent paths from the settings.
    void LoadRecentPaths();
    /// Raises SaveRenameSettings, then puts the present path among the recent ones.
    void SaveRecentPath();
    /// Puts back what else the settings hold, and lets the path take drops.
    void Restore(Steps &steps);
    /// Writes what Restore reads.
    void Save(Steps &steps);
    /// Asks for the folder to list. A failure is ignored.
    void BrowseListFolder();
    /// What a click on btnGBResult does: opens the report in an editor, or loads it into the list again.
    void OpenResult();

    Label lblFilePath;
    ComboBox CboFilePath;
    IsButton btnGBBrowse;
    Label lblRSaved;
    TextBox txtReport;
    CheckBox ChckValg;
    CheckBox ChckDir;
    IsButton btnGBMakeList;
    IsButton btnGBResult;
    Label lblWStatus;
    ProgressBar ProgressBar1;

    // What a run has other tools do.
    Event<> SaveRenameSettings; ///< the rename page's settings are to be written
    Event<> ResetEmptyFolderPage; ///< the empty-folder page's tools are to be as at the start

private:
    void btnGBBrowse_Click();
    void btnGBMakeList_Click();

    Machine machine;
    const ClickSound &clickSound;
    FolderListFile &listFile;
    Settings &settings;
    Session &session;
    RecentPaths recent;
    FolderListing run;
};

} // namespace tressel
