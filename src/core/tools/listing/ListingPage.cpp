// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/listing/ListingPage.h"

#include "base/Steps.h"
#include "language/Session.h"
#include "machine/Dialogs.h"
#include "machine/Paths.h"
#include "machine/Shell.h"
#include "settings/Settings.h"
#include "tools/ClickSound.h"
#include "tools/dialogs/BrowseForFolder.h"
#include "tools/folders/FolderListFile.h"

namespace tressel {

using namespace Qt::StringLiterals;

ListingPage::ListingPage(WorkArea &workArea, const Machine &onMachine, const ClickSound &sound,
                         FolderListFile &textFile, Settings &stored, Session &shared)
    : lblFilePath(workArea.form, u"lblFilePath"_s, u"Choose Path"_s)
    , CboFilePath(workArea.form, u"CboFilePath"_s)
    , btnGBBrowse(workArea.form, u"btnGBBrowse"_s, u". . ."_s)
    , lblRSaved(workArea.form, u"lblRSaved"_s, u"Report Saved"_s)
    , txtReport(workArea.form, u"txtReport"_s)
    , ChckValg(workArea.form, u"ChckValg"_s, u"List to filename"_s)
    , ChckDir(workArea.form, u"ChckDir"_s, u"List only folders"_s)
    , btnGBMakeList(workArea.form, u"btnGBMakeList"_s, u"Make List"_s)
    , btnGBResult(workArea.form, u"btnGBResult"_s, u"Open List"_s)
    , lblWStatus(workArea.form, u"lblWStatus"_s, u"Progress Status"_s)
    , ProgressBar1(workArea.form, u"ProgressBar1"_s)
    , area(workArea)
    , machine(onMachine)
    , clickSound(sound)
    , listFile(textFile)
    , settings(stored)
    , session(shared)
    , recent(CboFilePath, settings)
    , run(*this, area, machine, listFile, settings, session)
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
        const QString present = CboFilePath.Text();
        const QString folder = BrowseForFolder(machine.dialogs, machine.files, u"Select Folder to list..."_s,
                                               FolderExists(machine.files, present) ? present : QString());
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
