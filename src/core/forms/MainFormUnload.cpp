// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "base/Numbers.h"
#include "base/Steps.h"
#include "forms/MainForm.h"
#include "forms/OptionForm.h"
#include "machine/Dialogs.h"
#include "machine/Events.h"
#include "machine/Program.h"
#include "machine/Screen.h"
#include "settings/Settings.h"

#include <algorithm>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

// The closing animation folds the window up to these, in twips.
constexpr int foldedHeight = 420;
constexpr int foldedWidth = 1700;

} // namespace

void MainForm::SaveSecondStore()
{
    // What is half restored isn't what the user left.
    if (!hasLoaded)
        return;
    // A second Exit while the window folds up finds it on its way to nothing.
    if (!foldsUp) {
        settings.Write(keys::WindowLeft, QString::number(Left()));
        settings.Write(keys::WindowTop, QString::number(Top()));
    }
    splitter.Save();
}

void MainForm::UnloadForm(bool &refused)
{
    if (!hasLoaded)
        return;
    SaveSettings();
    if (session.UpdateLoading && !ExitsThoughUpdateLoads()) {
        refused = true;
        return;
    }
    // What was written outlives whatever ends the process while the window folds up. Whatever fails from
    // here on, the program ends.
    Steps folding;
    folding.Do([&] { settings.Flush(); });
    if (State() != WindowState::Minimised && options.ChkAnimOption.IsChecked())
        folding.Do([&] { FoldUp(); });
}

void MainForm::SaveSettings()
{
    // A minimised or maximised window keeps the place of its last normal state.
    if (State() == WindowState::Normal && !foldsUp) {
        settings.Write(keys::MainLeft, Left());
        settings.Write(keys::MainTop, Top());
        settings.Write(keys::MainWidth, Width());
        settings.Write(keys::MainHeight, Height());
    }
    settings.Write(keys::VisibleItems, EyeDropper1.VisibleItems());
    settings.Write(keys::TabStrip, PicStrip.Left());
    for (int number = 1; number <= menuCount; ++number)
        settings.Write(keys::Menu.At(number), menus[static_cast<size_t>(number - 1)]);
    Steps steps;
    listing.Save(steps);
    listing.SaveRecentPath();
    emptyFolders.Save();
    database.Save();
    settings.Write(keys::FilePath, area.txtStrtPath.Text());
    settings.Write(keys::FileExt, QString::number(area.chkExtension.Value()));
    settings.Write(keys::ButtonBar, QString::number(area.chkButtonBar.Value()));
    settings.Write(keys::Separate, QString::number(PicStrip.Width()));
    settings.Write(keys::LastFile, session.ListFile);
    rename.Save();
    browse.Save();
    textLists.Save();
    database.SaveFolder();
    numbered.Save(steps);
}

bool MainForm::ExitsThoughUpdateLoads()
{
    // Kept: nothing ever says that an update is loading, so this box doesn't come up.
    return machine.dialogs.Show({u"You try to exit before Update manager is loaded wait to this is finished\n"
                                 "Chose \"Yes\" if you Will Exit now or \"No\" if you will wait..."_s,
                                 u"Message"_s, BoxIcon::None, BoxButtons::YesNo})
        == BoxAnswer::Yes;
}

void MainForm::FoldUp()
{
    foldsUp = true;
    SetLeastSize(1, 1);
    // Counted here: a desktop may refuse a window as small as this, or the user draw it larger meanwhile.
    const int heightStep = FoldStep(options.txtHeight);
    int height = Height();
    while (height > foldedHeight) {
        height = std::max(height - heightStep, 0);
        SetSize(Width(), height);
        Move(Left(), CentredTop(height));
        machine.events.ShowAnimationStep();
    }
    const int widthStep = FoldStep(options.txtWidth);
    int width = Width();
    while (width > foldedWidth) {
        width = std::max(width - widthStep, 0);
        SetSize(width, Height());
        Move(CentredLeft(width), Top());
        machine.events.ShowAnimationStep();
    }
    Hide();
}

int MainForm::FoldStep(const TextBox &twips)
{
    const std::int32_t step = ToInt32(twips.Text());
    // A window that doesn't get smaller would never be gone.
    if (step <= 0)
        throw Failure(FailureNumber::InvalidProcedureCall);
    return step;
}

void MainForm::EndProgram()
{
    settings.Flush();
    machine.program.End(0);
}

} // namespace tressel
