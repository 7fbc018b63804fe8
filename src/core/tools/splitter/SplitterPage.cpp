// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/splitter/SplitterPage.h"

namespace tressel {

using namespace Qt::StringLiterals;

SplitterPage::SplitterPage(const ToolContext &context)
    : page(context.form, u"FrameXPMenu(7)"_s)
    , cboFileName(context.form, u"cboFileName"_s)
    , btnBrowse(context.form, u"btnBrowse"_s, u"..."_s)
    , Frame1(context.form, u"Frame1"_s, u"Split By"_s)
    , optSplit(context.form, u"optSplit"_s, {u"File Size"_s, u"File Count"_s})
    , lblSplitSize(context.form, u"lblSplitSize"_s, u"Split Size (KB)"_s)
    , cmbSplitSize(context.form, u"cmbSplitSize"_s)
    , lblSplitCount(context.form, u"lblSplitCount"_s, u"Split Files"_s)
    , txtSplitCount(context.form, u"txtSplitCount"_s)
    , fraEst(context.form, u"fraEst"_s, u"Estimates"_s)
    , lblEstFileCount{Label(context.form, u"lblEstFileCount(0)"_s, u"File Count:"_s),
                      Label(context.form, u"lblEstFileCount(1)"_s, u"0"_s)}
    , lblEstFileSize{Label(context.form, u"lblEstFileSize(0)"_s, u"File Size:"_s),
                     Label(context.form, u"lblEstFileSize(1)"_s, u"0"_s)}
    , Frame2(context.form, u"Frame2"_s, u"Option"_s)
    , chkCopyToFloppy(context.form, u"chkCopyToFloppy"_s, u"Copy to Floppies when finished Splitting"_s)
    , chkOpenExplorer(context.form, u"chkOpenExplorer"_s, u"Open Explorer Window to Split Directory"_s)
    , chkDeleteParts(context.form, u"chkDeleteParts"_s, u"Delete Split Parts when finished Joining"_s)
    , fraStats(context.form, u"fraStats"_s, u"Statistics"_s)
    , lblStart(context.form, u"lblStart"_s, u"Start Time:"_s)
    , lblFinish(context.form, u"lblFinish"_s, u"Finish Time:"_s)
    , lblElapsed(context.form, u"lblElapsed"_s, u"Elapsed Time:"_s)
    , lblFileCount(context.form, u"lblFileCount"_s, u"File Count:"_s)
    , ctlProgress1(context.form, u"ctlProgress1"_s)
    , btnGBSplitFile(context.form, u"btnGBSplitFile"_s, u"Split File"_s)
    , btnGBJoinFile(context.form, u"btnGBJoinFile"_s, u"Join File"_s)
{
    cboFileName.SetToolTip(u" For Clear the list Set cursor in list and push F12 "_s);
    optSplit.Click.Handle([this](int) { optSplit_Click(); });
    optSplit.Select(FileSize);
    btnBrowse.SetEnabled(false);
    btnGBSplitFile.SetEnabled(false);
    btnGBJoinFile.SetEnabled(false);
}

void SplitterPage::optSplit_Click()
{
    const bool byCount = optSplit.IsSelected(FileCount);
    lblSplitCount.SetEnabled(byCount);
    txtSplitCount.SetEnabled(byCount);
    lblSplitSize.SetEnabled(!byCount);
    cmbSplitSize.SetEnabled(!byCount);
}

} // namespace tressel
