// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/CheckBox.h"
#include "controls/ComboBox.h"
#include "controls/CtlProgress.h"
#include "controls/Frame.h"
#include "controls/IsButton.h"
#include "controls/Label.h"
#include "controls/OptionGroup.h"
#include "controls/TextBox.h"
#include "tools/ToolContext.h"
#include "tools/splitter/PartFiles.h"

#include <array>

namespace tressel {

class Steps;

/// The page that cuts a file into parts and joins them again.
class SplitterPage {
public:
    explicit SplitterPage(const ToolContext &context);

    /// Fills the list of part sizes.
    void FillSplitSizes();
    /// Puts back what the settings hold. A setting that can't be taken ends it with 6, 13 or 380; what was
    /// done stays.
    void Restore();
    /// Writes what Restore reads.
    void Save();

    /// Entries of optSplit: the cut is by the size of a part or by the number of parts.
    enum Cuts { FileSize, FileCount };

    Frame page;
    ComboBox cboFileName;
    IsButton btnBrowse;

    Frame Frame1;
    OptionGroup optSplit;
    Label lblSplitSize;
    ComboBox cmbSplitSize;
    Label lblSplitCount;
    TextBox txtSplitCount;

    Frame fraEst;
    std::array<Label, 2> lblEstFileCount; ///< what is estimated, and the estimate
    std::array<Label, 2> lblEstFileSize;

    Frame Frame2;
    CheckBox chkCopyToFloppy;
    CheckBox chkOpenExplorer;
    CheckBox chkDeleteParts;

    Frame fraStats;
    Label lblStart;
    Label lblFinish;
    Label lblElapsed;
    Label lblFileCount;

    CtlProgress ctlProgress1;
    IsButton btnGBSplitFile;
    IsButton btnGBJoinFile;

    /// A path of the page, in the current folder if it is no whole one.
    QString Whole(const QString &path) const;
    /// Opens and shuts the two buttons by what there is to split and to join, then UpdateEstimates.
    void cboFileName_Click();
    /// Shows what a cut would give, and opens or shuts btnGBSplitFile. Never fails.
    void UpdateEstimates();

private:
    void TieEvents();
    void optSplit_Click();
    void cboFileName_KeyDown(int &key);
    void btnBrowse_Click();
    void btnGBSplitFile_Click();
    void btnGBJoinFile_Click();

    void AddChosen(const QString &folder, const QString &name);
    void EstimateBySize(Steps &steps, std::int32_t length);
    void EstimateByCount(Steps &steps, std::int32_t length);
    bool HasValidCut();
    std::int32_t ChunkSize() const;
    void SplitQueue();
    void SplitFile();
    void ShowReadError(const QString &text);

    ToolContext context;
    LeftOpen leftOpen;
};

} // namespace tressel
