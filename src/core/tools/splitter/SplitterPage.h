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

#include <array>

namespace tressel {

/// The page that cuts a file into parts and joins them again.
class SplitterPage {
public:
    explicit SplitterPage(const ToolContext &context);

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

private:
    void optSplit_Click();
};

} // namespace tressel
