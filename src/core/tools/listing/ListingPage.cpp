// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/listing/ListingPage.h"

#include "base/Steps.h"
#include "language/Session.h"
#include "machine/Dialogs.h"
#include "machine/Shell.h"
#include "settings/Settings.h"
#include "tools/ClickSound.h"
#include "tools/dialogs/BrowseForFolder.h"
#include "tools/folders/FolderListFile.h"

namespace tressel {

using namespace Qt::StringLiterals;

ListingPage::ListingPage(const ToolContext &context, FolderListFile &textFile)
    : lblFilePath(context.form, u"lblFilePath"_s, u"Choose Path"_s)
    , CboFilePath(context.form, u"CboFilePath"_s)
    , btnGBBrowse(context.form, u"btnGBBrowse"_s, u". . ."_s)
    , lblRSaved(context.form, u"lblRSaved"_s, u"Report Saved"_s)
    , txtReport(context.form, u"txtReport"_s)
    , ChckValg(context.form, u"ChckValg"_s, u"List to filename"_s)
    , ChckDir(context.form, u"ChckDir"_s, u"List only folders"_s)
    , btnGBMakeList(context.form, u"btnGBMakeList"_s, u"Make List"_s)
    , btnGBResult(context.form, u"btnGBResult"_s, u"Open List"_s)
    , lblWStatus(context.form, u"lblWStatus"_s, u"Progress Status"_s)
    , ProgressBar1(context.form, u"ProgressBar1"_s)
    , machine(context.machine)
    , clickSound(context.clickSound)
    , listFile(textFile)
    , settings(context.settings)
    , session(context.session)
    , recent(CboFilePath, settings)
    , run(context, *this, listFile)
{
    btnGBBrowse.SetToolTip(u" Browse... "_s);
    ChckValg.SetToolTip(
        u" If checked List to filename or not checked list and show direct to folder list "_s);
    ChckDir.SetToolTip(
        u" If checked List only folders without filename and no info only folder structures "_s);
    btnGBMakeList.SetToolTip(u" Start Make list "_s);
    btnGBResult.SetToolTip(u" Open List from textfile or show list direct to folder list "_s);

    btnGBBrowse.Click.Handle([this] { btnGBBrowse_Click(); });
    btnGBMakeList.Click.Handle([this] { btnGBMakeList_Click(); });
    btnGBResult.Click.Handle([this] { OpenResult(); });
    CboFilePath.Drop.Handle([this](const QStringList &paths) { recent.AddDropped(paths.value(0)); });
}

void ListingPage::LoadRecentPaths()
{
    recent.LoadRecentPaths();
}

void ListingPage::SaveRecentPath()
{
    Steps steps;
    steps.Do([&] { SaveRenameSettings.Raise(); });
    recent.SaveRecentPath();
}

void ListingPage::Restore(Steps &steps)
{
    steps.Do([&] { ChckValg.SetValue(settings.ReadInt32(keys::OnlyListFilename)); });
    steps.Do([&] { CboFilePath.SetText(settings.ReadText(keys::GenLastPath)); });
    steps.Do([&] { txtReport.SetText(settings.ReadText(keys::LastSavePath)); });
    CboFilePath.SetTakesDrops(true);
}

void ListingPage::Save(Steps &steps)
{
    steps.Do([&] { settings.Write(keys::OnlyListFilename, ChckValg.Value()); });
    steps.Do([&] { settings.Write(keys::GenLastPath, CboFilePath.Text()); });
    steps.Do([&] { settings.Write(keys::LastSavePath, txtReport.Text()); });
}

void ListingPage::BrowseListFolder()
{
    Steps steps;
    steps.Do([&] {
        const QString folder = BrowseFromPresent(machine.dialogs, machine.files,
                                                 u"Select Folder to list..."_s, CboFilePath.Text());
        if (folder.isEmpty())
            return;
        CboFilePath.SetText(folder);
        run.ListSourcePath = folder;
    });
}

void ListingPage::OpenResult()
{
    clickSound.Play();
    if (ChckValg.IsChecked()) {
        machine.shell.EditText(txtReport.Text());
        return;
    }
    listFile.LoadReportList();
    session.ListFromReport = true;
    session.ListFromTextFile = false;
    session.ListFromFileList = false;
}

void ListingPage::btnGBBrowse_Click()
{
    clickSound.Play();
    BrowseListFolder();
}

void ListingPage::btnGBMakeList_Click()
{
    clickSound.Play();
    run.MakeList();
}

} // namespace tressel
