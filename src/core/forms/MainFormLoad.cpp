// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "base/Steps.h"
#include "forms/MainForm.h"
#include "forms/OptionForm.h"
#include "language/Catalogue.h"
#include "machine/Paths.h"
#include "machine/Program.h"
#include "machine/Screen.h"
#include "settings/Settings.h"

namespace tressel {

using namespace Qt::StringLiterals;

void MainForm::LoadForm()
{
    // In this part a step that fails is ignored and the next one runs ...
    Steps steps;
    SetCloseBox(false);
    RestoreTools(steps);
    // ... and from here on a failure ends the load without a word. What was done stays.
    try {
        RestoreAppearance();
    } catch (const Failure &) {
        // The window shows what there is.
    }
    hasLoaded = true;
}

void MainForm::RestoreTools(Steps &steps)
{
    emptyFolders.ResetFoundList();
    emptyFolders.Restore(steps);
    database.Restore(steps);
    numbered.FillNumberCombos();
    numbered.Restore(steps);
    RestorePlace(steps, KeyReader::First);
    steps.Do([&] { area.txtStrtPath.SetText(settings.ReadText(keys::FilePath)); });
    steps.Do([&] { area.chkExtension.SetValue(settings.ReadInt32(keys::FileExt)); });
    steps.Do([&] { area.chkButtonBar.SetValue(settings.ReadInt32(keys::ButtonBar)); });
    rename.Restore(steps);
    steps.Do([&] { session.ListFile = settings.ReadText(keys::LastFile); });
    rename.ResetRenamePage(steps);
    browse.Restore(steps);
    textLists.Restore(steps);
    database.RestoreFolder(steps);
    RestoreBarWidth(steps);
    session.RunNumber = 1;
    area.txtStrtPath.SetTakesDrops(true);
    steps.Do([&] { listFile.StartList(); });
    session.ListFromTextFile = true;
    ShowFirstTree(steps);
    steps.Do([&] { ApplyStyleToMain(); });
    listing.LoadRecentPaths();
    listing.Restore(steps);
    steps.Do([&] { EyeDropper1.SetPageBackColor(0xF5F5F5); });
}

void MainForm::RestoreAppearance()
{
    TakeCommandLine();
    splitter.FillSplitSizes();
    RestoreWindowPlace();
    splitter.Restore();
    RestoreLanguage();
    ApplyAppearance();
    // The options were there before this window: only now is there something to stand over. A place that
    // no number can tell must not end the load.
    Steps steps;
    steps.Do([&] { frmOption().CenterOverMain(frmOption()); });
    RestoreItemVisibility();
    for (int number = 1; number <= menuCount; ++number)
        menus[static_cast<size_t>(number - 1)] = settings.ReadText(keys::Menu.At(number));
}

void MainForm::RestorePlace(Steps &steps, KeyReader reader)
{
    steps.Do([&] { SetSize(settings.ReadInt32(keys::MainWidth, reader), Height()); });
    steps.Do([&] { SetSize(Width(), settings.ReadInt32(keys::MainHeight, reader)); });
    steps.Do([&] { Move(settings.ReadInt32(keys::MainLeft, reader), Top()); });
    steps.Do([&] { Move(Left(), settings.ReadInt32(keys::MainTop, reader)); });
    // Both at 0 is taken for a place that was never stored.
    if (Left() == 0 && Top() == 0)
        Move(CentredLeft(Width()), CentredTop(Height()));
}

void MainForm::RestoreBarWidth(Steps &steps)
{
    constexpr int widthWithoutOne = 1980;
    steps.Do([&] { PicStrip.SetWidth(settings.ReadInt32(keys::Separate)); });
    if (PicStrip.Width() == 0)
        PicStrip.SetWidth(widthWithoutOne);
}

void MainForm::ShowFirstTree(Steps &steps)
{
    // Seen only if the rebuild fails.
    area.TVList.Clear();
    steps.Do([&] { area.TVList.AddRoot(u"main"_s, u"CD Content"_s, 4); });
    tree.RefreshFolderTree();
}

void MainForm::TakeCommandLine()
{
    const QString commandLine = machine.program.CommandLine();
    if (!commandLine.isEmpty() && FileExists(machine.files, commandLine))
        splitter.cboFileName.SetText(commandLine);
}

void MainForm::RestoreWindowPlace()
{
    // Overruled again by the appearance.
    Move(settings.ReadInt32(keys::WindowLeft), Top());
    Move(Left(), settings.ReadInt32(keys::WindowTop));
}

void MainForm::RestoreLanguage()
{
    catalogue.FillLanguageList(frmOption().cmbLanguage);
    frmOption().EnsureLoaded();
    // A language that isn't in the list leaves the window in its own.
    Steps steps;
    steps.Do([&] { frmOption().cmbLanguage.SetListIndex(settings.ReadInt32(keys::Language)); });
}

void MainForm::RestoreItemVisibility()
{
    for (int number = 1; number <= EyeDropper1.Items().Count(); ++number)
        EyeDropper1.Items()[number].SetVisible(settings.ReadBoolean(keys::Chk.At(number)));
}

} // namespace tressel
