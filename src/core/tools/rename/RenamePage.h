// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/CheckBox.h"
#include "controls/Frame.h"
#include "controls/IsButton.h"
#include "controls/Label.h"
#include "controls/OptionGroup.h"
#include "controls/ProgressBar.h"
#include "controls/TextBox.h"
#include "tools/ToolContext.h"
#include "tools/rename/CaseRun.h"
#include "tools/rename/ExtensionRun.h"
#include "tools/rename/RenameFrame.h"
#include "tools/rename/ReplaceRun.h"

namespace tressel {

struct KeyEntry;

/// The page that renames what stands in a folder: by case, by extension, by replacing a piece of text.
class RenamePage {
public:
    explicit RenamePage(const ToolContext &context);

    /// Reads the path.
    void Restore(Steps &steps);
    /// Writes the path.
    void Save();

    /// Puts the page at its start: what the settings hold, the program's folder where there is no path, and
    /// an empty bar, of which the status line tells too.
    void ResetRenamePage(Steps &steps);
    /// Writes the running total and the texts of the page.
    void SaveRenameSettings();

    /// Entries of optRename and optReplace.
    enum Kinds { Folders, Files, Both };
    /// Entries of optCase.
    enum Cases { NoChange, Uppercase, Lowercase };
    /// Entries of optExtensions.
    enum Extensions { Specific, All };
    /// Entries of optReplacePreset.
    enum Presets { None, MP3 };

    Frame page;
    Label lblPath;
    TextBox txtCurrentPath;
    IsButton btnGBBrowsePath;
    Frame Picture1; ///< the two lines that part the page
    Frame Picture2;

    Frame fraRenamingType;
    OptionGroup optRename; ///< optRenameFolder, optRenameFile, optRenameAll
    Frame fraRenamingCase;
    OptionGroup optCase; ///< optNoChange, optUppercase, optLowercase
    Frame fraRenamingCap;
    CheckBox chkCapFirstLetter;
    CheckBox chkCapAfterEverySpace;

    Frame fraExtensions;
    OptionGroup optExtensions; ///< optSpecificExtensions, optAllExtensions
    Frame fraExtensionsSpecific; ///< on show while optSpecificExtensions is selected
    Label lblExtensionsFrom;
    TextBox txtSpecificExtFrom;
    Label lblExtensionsTo;
    TextBox txtSpecificExtTo;
    Frame fraAllExtensions; ///< on show while optAllExtensions is selected
    Label lblExtensionsChangeAllTo;
    TextBox txtExtensionsChangeAllTo;

    Frame fraReplace;
    OptionGroup optReplacePreset; ///< optReplacePresetNone, optReplacePresetMP3
    Frame fraReplacePresets;
    Label lblReplaceEvery;
    TextBox txtReplaceFrom;
    Label lblReplaceWith;
    TextBox txtReplaceTo;
    Frame fraReplaceType;
    OptionGroup optReplace; ///< optReplaceFolder, optReplaceFile, optReplaceBoth

    IsButton btnGBRename;
    IsButton btnGBReplace;
    IsButton btnGBExtension;
    IsButton btnGBCancel;
    tressel::ProgressBar ProgressBar;

private:
    void SetToolTips();
    void SetFirstValues();
    void TieButtons();
    void ShowExtensionFrame();
    void txtCurrentPath_Drop(const QStringList &paths);
    void btnGBBrowsePath_Click();
    void btnGBCancel_Click();
    void optReplacePreset_Click(int preset);
    QString GetPresetValue(const KeyEntry &key) const;
    void StorePreset();

    ToolContext context;
    RenameFrame frame;
    CaseRun caseRun;
    ExtensionRun extensionRun;
    ReplaceRun replaceRun;
};

} // namespace tressel
