// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "base/Steps.h"
#include "forms/MainForm.h"
#include "machine/Events.h"
#include "machine/Program.h"
#include "machine/Screen.h"
#include "machine/SettingsHive.h"
#include "settings/Settings.h"

namespace tressel {

using namespace Qt::StringLiterals;

void MainForm::LoadForm()
{
    Steps steps;
    numbered.FillNumberCombos();
    numbered.Restore(steps);
    RestorePlace(steps, KeyReader::First);
    steps.Do([&] { area.txtStrtPath.SetText(settings.ReadText(keys::FilePath)); });
    steps.Do([&] { area.chkExtension.SetValue(settings.ReadInt32(keys::FileExt)); });
    steps.Do([&] { area.chkButtonBar.SetValue(settings.ReadInt32(keys::ButtonBar)); });
    steps.Do([&] { session.ListFile = settings.ReadText(keys::LastFile); });
    steps.Do([&] { browse.DirList.SetPath(settings.ReadText(keys::LastDBPath)); });
    steps.Do([&] { browse.DrvList.SetDrive(browse.DirList.Path()); });
    steps.Do([&] { browse.FileList.SetPath(browse.DirList.Path()); });
    steps.Do([&] { textLists.OpenTXTPath = settings.ReadText(keys::OpenTXTPath); });
    steps.Do([&] { OpenDBPath = settings.ReadText(keys::OpenDBPath); });
    session.RunNumber = 1;
    area.txtStrtPath.SetTakesDrops(true);
    steps.Do([&] { listFile.StartList(); });
    session.ListFromTextFile = true;
    area.TVList.Clear();
    steps.Do([&] { area.TVList.AddRoot(u"main"_s, u"CD Content"_s, 4); });
    tree.RefreshFolderTree();
    listing.LoadRecentPaths();
    listing.Restore(steps);
    RestorePlace(steps, KeyReader::Later);
    LoadItems();
    steps.Do([&] { PicStrip.SetLeft(settings.ReadInt32(keys::TabStrip, KeyReader::Later)); });
    FormResize();
}

void MainForm::RestorePlace(Steps &steps, KeyReader reader)
{
    steps.Do([&] { SetSize(settings.ReadInt32(keys::MainWidth, reader), Height()); });
    steps.Do([&] { SetSize(Width(), settings.ReadInt32(keys::MainHeight, reader)); });
    steps.Do([&] { Move(settings.ReadInt32(keys::MainLeft, reader), Top()); });
    steps.Do([&] { Move(Left(), settings.ReadInt32(keys::MainTop, reader)); });
    // Both at 0 is taken for a place that was never stored.
    if (Left() == 0 && Top() == 0)
        Move((machine.screen.Width() - Width()) / 2, (machine.screen.Height() - Height()) / 2);
}

void MainForm::UnloadForm(bool &)
{
    if (State() == WindowState::Normal) {
        settings.Write(keys::MainLeft, Left());
        settings.Write(keys::MainTop, Top());
        settings.Write(keys::MainWidth, Width());
        settings.Write(keys::MainHeight, Height());
    }
    settings.Write(keys::TabStrip, PicStrip.Left());
    Steps steps;
    listing.Save(steps);
    listing.SaveRecentPath();
    settings.Write(keys::FilePath, area.txtStrtPath.Text());
    settings.Write(keys::FileExt, QString::number(area.chkExtension.Value()));
    settings.Write(keys::ButtonBar, QString::number(area.chkButtonBar.Value()));
    settings.Write(keys::LastFile, session.ListFile);
    settings.Write(keys::LastDBPath, browse.DirList.Path());
    settings.Write(keys::OpenTXTPath, textLists.OpenTXTPath);
    settings.Write(keys::OpenDBPath, OpenDBPath);
    numbered.Save(steps);
}

void MainForm::EndProgram()
{
    machine.hive.Flush();
    machine.program.End(0);
}

} // namespace tressel
