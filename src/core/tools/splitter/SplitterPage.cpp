// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/splitter/SplitterPage.h"

#include "base/Numbers.h"
#include "base/Steps.h"
#include "base/Version.h"
#include "language/Session.h"
#include "machine/Dialogs.h"
#include "machine/FileSystem.h"
#include "machine/Paths.h"
#include "settings/Settings.h"
#include "tools/ClickSound.h"
#include "tools/dialogs/OpenDialog.h"
#include "tools/folders/RemoveDupes.h"
#include "tools/splitter/FileJoin.h"
#include "tools/splitter/FileSplit.h"
#include "tools/splitter/SplitRules.h"

namespace tressel {

using namespace Qt::StringLiterals;

SplitterPage::SplitterPage(const ToolContext &toolContext)
    : page(toolContext.form, u"FrameXPMenu(7)"_s)
    , cboFileName(toolContext.form, u"cboFileName"_s)
    , btnBrowse(toolContext.form, u"btnBrowse"_s, u"..."_s)
    , Frame1(toolContext.form, u"Frame1"_s, u"Split By"_s)
    , optSplit(toolContext.form, u"optSplit"_s, {u"File Size"_s, u"File Count"_s})
    , lblSplitSize(toolContext.form, u"lblSplitSize"_s, u"Split Size (KB)"_s)
    , cmbSplitSize(toolContext.form, u"cmbSplitSize"_s)
    , lblSplitCount(toolContext.form, u"lblSplitCount"_s, u"Split Files"_s)
    , txtSplitCount(toolContext.form, u"txtSplitCount"_s)
    , fraEst(toolContext.form, u"fraEst"_s, u"Estimates"_s)
    , lblEstFileCount{Label(toolContext.form, u"lblEstFileCount(0)"_s, u"File Count:"_s),
                      Label(toolContext.form, u"lblEstFileCount(1)"_s, u"0"_s)}
    , lblEstFileSize{Label(toolContext.form, u"lblEstFileSize(0)"_s, u"File Size:"_s),
                     Label(toolContext.form, u"lblEstFileSize(1)"_s, u"0"_s)}
    , Frame2(toolContext.form, u"Frame2"_s, u"Option"_s)
    , chkCopyToFloppy(toolContext.form, u"chkCopyToFloppy"_s, u"Copy to Floppies when finished Splitting"_s)
    , chkOpenExplorer(toolContext.form, u"chkOpenExplorer"_s, u"Open Explorer Window to Split Directory"_s)
    , chkDeleteParts(toolContext.form, u"chkDeleteParts"_s, u"Delete Split Parts when finished Joining"_s)
    , fraStats(toolContext.form, u"fraStats"_s, u"Statistics"_s)
    , lblStart(toolContext.form, u"lblStart"_s, u"Start Time:"_s)
    , lblFinish(toolContext.form, u"lblFinish"_s, u"Finish Time:"_s)
    , lblElapsed(toolContext.form, u"lblElapsed"_s, u"Elapsed Time:"_s)
    , lblFileCount(toolContext.form, u"lblFileCount"_s, u"File Count:"_s)
    , ctlProgress1(toolContext.form, u"ctlProgress1"_s)
    , btnGBSplitFile(toolContext.form, u"btnGBSplitFile"_s, u"Split File"_s)
    , btnGBJoinFile(toolContext.form, u"btnGBJoinFile"_s, u"Join File"_s)
    , context(toolContext)
{
    cboFileName.SetToolTip(u" For Clear the list Set cursor in list and push F12 "_s);
    TieEvents();
    optSplit.Select(FileSize);
}

void SplitterPage::TieEvents()
{
    cboFileName.Click.Handle([this] { cboFileName_Click(); });
    cboFileName.Change.Handle([this] { UpdateEstimates(); });
    cboFileName.KeyDown.Handle([this](int &key) { cboFileName_KeyDown(key); });
    btnBrowse.Click.Handle([this] { btnBrowse_Click(); });
    optSplit.Click.Handle([this](int) { optSplit_Click(); });
    cmbSplitSize.Click.Handle([this] { UpdateEstimates(); });
    cmbSplitSize.Change.Handle([this] { UpdateEstimates(); });
    txtSplitCount.Change.Handle([this] { UpdateEstimates(); });
    btnGBSplitFile.Click.Handle([this] { btnGBSplitFile_Click(); });
    btnGBJoinFile.Click.Handle([this] { btnGBJoinFile_Click(); });
}

void SplitterPage::FillSplitSizes()
{
    cmbSplitSize.SetItems({u"5"_s, u"10"_s, u"50"_s, u"100"_s, u"500"_s, u"1000"_s, u"1200"_s, u"1440"_s,
                           u"2000"_s, u"3000"_s});
}

void SplitterPage::Restore()
{
    const Settings &settings = context.settings;
    cmbSplitSize.SetText(settings.ReadText(keys::SplitSize));
    txtSplitCount.SetText(settings.ReadText(keys::SplitCount));
    if (settings.ReadBoolean(keys::SplitOption))
        optSplit.Select(FileCount);
    chkDeleteParts.SetValue(settings.ReadInt32(keys::DeleteParts));
    chkOpenExplorer.SetValue(settings.ReadInt32(keys::OpenExplorer));
    chkCopyToFloppy.SetValue(settings.ReadInt32(keys::CopyToFloppy));
}

void SplitterPage::Save()
{
    Settings &settings = context.settings;
    settings.Write(keys::SplitSize, cmbSplitSize.Text());
    settings.Write(keys::SplitCount, txtSplitCount.Text());
    settings.WriteBoolean(keys::SplitOption, optSplit.IsSelected(FileCount));
    settings.Write(keys::DeleteParts, QString::number(chkDeleteParts.Value()));
    settings.Write(keys::OpenExplorer, QString::number(chkOpenExplorer.Value()));
    settings.Write(keys::CopyToFloppy, QString::number(chkCopyToFloppy.Value()));
}

void SplitterPage::optSplit_Click()
{
    const bool byCount = optSplit.IsSelected(FileCount);
    lblSplitCount.SetEnabled(byCount);
    txtSplitCount.SetEnabled(byCount);
    lblSplitSize.SetEnabled(!byCount);
    cmbSplitSize.SetEnabled(!byCount);
    UpdateEstimates();
}

QString SplitterPage::Whole(const QString &path) const
{
    return PathIn(context.machine.files, context.session.CurrentFolder, path);
}

void SplitterPage::cboFileName_Click()
{
    FileSystem &files = context.machine.files;
    const QString text = cboFileName.Text();
    btnGBSplitFile.SetEnabled(!text.isEmpty() && FileExists(files, Whole(text)));
    btnGBJoinFile.SetEnabled(!text.isEmpty() && FileExists(files, Whole(PartName(text, 1))));
    UpdateEstimates();
}

void SplitterPage::cboFileName_KeyDown(int &key)
{
    if (key != keyF12)
        return;
    cboFileName.Clear();
    cboFileName.SetText({});
    key = 0;
}

void SplitterPage::btnBrowse_Click()
{
    context.clickSound.Play();
    Steps steps;
    steps.Do([&] {
        constexpr std::int32_t flags = 4100;
        OpenFileRequest request{u"All Files (*.*)|*.*"_s, context.settings.ReadText(keys::InitDir), flags};
        const OpenFileResult chosen =
            ShowOpenDialog(context.machine.dialogs, context.machine.files, request, true);
        AddChosen(chosen.Path, chosen.Files(1));
        KillLBDupesCBO(cboFileName);
        context.settings.Write(keys::InitDir, chosen.Path);
    });
}

void SplitterPage::AddChosen(const QString &folder, const QString &name)
{
    const qsizetype dot = name.lastIndexOf(u'.');
    QString chosen = folder + name;
    if (IsNumeric(name.mid(dot + 1))) {
        // A part stands for the whole file.
        chosen = folder + (dot < 0 ? name : name.left(dot));
    } else if (LengthOf(context.machine.files, chosen) < 0) {
        context.machine.dialogs.Show(
            {u"This file is over 2 GB and for big to split, tip! use winzip or something to split up"_s,
             ApplicationTitle, BoxIcon::Exclamation});
        return;
    }
    cboFileName.AddItem(chosen);
    cboFileName.SetText(chosen);
}

void SplitterPage::UpdateEstimates()
{
    lblEstFileCount[1].SetCaption(u"0"_s);
    lblEstFileSize[1].SetCaption(u"0"_s);
    const QString file = cboFileName.Text();
    if (file.isEmpty())
        return;
    if (!FileExists(context.machine.files, Whole(file))) {
        btnGBSplitFile.SetEnabled(false);
        return;
    }
    Steps steps;
    std::int32_t length = 0;
    steps.Do([&] { length = LengthOf(context.machine.files, Whole(file)); });
    if (optSplit.IsSelected(FileSize))
        EstimateBySize(steps, length);
    if (optSplit.IsSelected(FileCount))
        EstimateByCount(steps, length);
}

void SplitterPage::EstimateBySize(Steps &steps, std::int32_t length)
{
    const bool isNumber = IsNumeric(cmbSplitSize.Text());
    btnGBSplitFile.SetEnabled(isNumber);
    if (!isNumber)
        return;
    std::int32_t parts = 0;
    steps.Do([&] { parts = PlannedParts(length, ChunkOfSize(cmbSplitSize.Text())); });
    lblEstFileCount[1].SetCaption(QString::number(parts));
    lblEstFileSize[1].SetCaption(cmbSplitSize.Text() + u" Kilobytes"_s);
}

void SplitterPage::EstimateByCount(Steps &steps, std::int32_t length)
{
    const bool isNumber = IsNumeric(txtSplitCount.Text());
    btnGBSplitFile.SetEnabled(isNumber);
    if (!isNumber)
        return;
    txtSplitCount.SetText(txtSplitCount.Text().trimmed());
    const double parts = ToNumber(txtSplitCount.Text());
    if (parts == 0)
        return;
    lblEstFileCount[1].SetCaption(txtSplitCount.Text());
    steps.Do([&] { lblEstFileSize[1].SetCaption(PartSizeText(length, parts)); });
}

void SplitterPage::btnGBSplitFile_Click()
{
    context.clickSound.Play();
    const QString file = cboFileName.Text();
    if (file.isEmpty() || !FileExists(context.machine.files, Whole(file))) {
        cboFileName_Click();
        ShowReadError(u"File Not Found ("_s + file + u')');
        return;
    }
    if (!HasValidCut())
        return;
    const bool isQueue = cboFileName.ListCount() > 1;
    if (isQueue)
        SplitQueue();
    else
        SplitFile();
}

bool SplitterPage::HasValidCut()
{
    if (optSplit.IsSelected(FileSize) && !IsNumeric(cmbSplitSize.Text())) {
        cmbSplitSize.SetFocus();
        ShowReadError(u"Please specify a valid split size!"_s);
        return false;
    }
    if (optSplit.IsSelected(FileCount) && !IsNumeric(txtSplitCount.Text())) {
        txtSplitCount.SetFocus();
        ShowReadError(u"Please specify a valid number of files!"_s);
        return false;
    }
    return true;
}

void SplitterPage::SplitQueue()
{
    // Kept: what was tested before the run was the text, and no file of the list but that one.
    cboFileName.SetListIndex(0);
    const int count = cboFileName.ListCount();
    for (int turn = 0; turn < count; ++turn) {
        SplitFile();
        if (cboFileName.ListIndex() < cboFileName.ListCount() - 1)
            cboFileName.SetListIndex(cboFileName.ListIndex() + 1);
    }
}

void SplitterPage::SplitFile()
{
    FileSplit(context, *this, leftOpen).SplitFiles(cboFileName.Text(), ChunkSize());
}

std::int32_t SplitterPage::ChunkSize() const
{
    if (optSplit.IsSelected(FileCount))
        return ChunkOfCount(LengthOf(context.machine.files, Whole(cboFileName.Text())), txtSplitCount.Text());
    return ChunkOfSize(cmbSplitSize.Text());
}

void SplitterPage::btnGBJoinFile_Click()
{
    context.clickSound.Play();
    const QString file = cboFileName.Text();
    if (!file.isEmpty() && FileExists(context.machine.files, Whole(PartName(file, 1)))) {
        FileJoin(context, *this, leftOpen).JoinFiles(file);
        return;
    }
    cboFileName_Click();
    ShowReadError(u"File Not Found ("_s + file + u')');
}

void SplitterPage::ShowReadError(const QString &text)
{
    context.machine.dialogs.Show({text, u"File Read Error"_s, BoxIcon::Critical});
}

} // namespace tressel
