// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/CheckBox.h"
#include "controls/ComboBox.h"
#include "controls/DriveList.h"
#include "controls/FolderList.h"
#include "controls/Frame.h"
#include "controls/IsButton.h"
#include "controls/Label.h"
#include "controls/TextBox.h"
#include "tools/FolderChoice.h"
#include "tools/numbered/NumberedFolders.h"

namespace tressel {

class Steps;

/// The page that makes, or deletes, a series of folders whose names end in a running number.
class NumberedPage {
public:
    /// `DirList` is the folder list of the page for browsing.
    NumberedPage(const ToolContext &context, FolderList &DirList);

    /// Fills both combos with the numbers 1 to 999.
    void FillNumberCombos();
    /// Puts back what the settings hold. The two lists of drives and folders follow the folder of the
    /// series only if no step before has failed; no failure stays pending.
    void Restore(Steps &steps);
    /// Writes what Restore reads. A number that isn't one is not written.
    void Save(Steps &steps);

    Frame page;
    DriveList DrvBox;
    FolderList DirBox;
    TextBox txtFeltDir;
    TextBox txtFeltDirSub;
    Label lblFrom;
    ComboBox cboFrom;
    Label lblTo;
    ComboBox cboTo;
    CheckBox chkMain_Sub;
    CheckBox Chck_MakeDel;
    IsButton btnGBMake;
    IsButton btnGBDelete;

    QString NumberedFolderPath; ///< the folder of the series, which follows DirBox

private:
    void TakeFolder();
    void Chck_MakeDel_Click();
    void btnGBMake_Click();
    void btnGBDelete_Click();

    const ClickSound &clickSound;
    FileSystem &files;
    Settings &settings;
    FolderChoice choice;
    NumberedFolders run;
};

} // namespace tressel
