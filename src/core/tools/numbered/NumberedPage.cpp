// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/numbered/NumberedPage.h"

#include "base/Steps.h"
#include "machine/Paths.h"
#include "settings/Settings.h"
#include "tools/ClickSound.h"

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

constexpr std::int16_t lastListedNumber = 999;

} // namespace

NumberedPage::NumberedPage(const ToolContext &context, FolderList &DirList)
    : page(context.form, u"FrameXPMenu(2)"_s)
    , DrvBox(context.form, u"DrvBox"_s, context.machine.files)
    , DirBox(context.form, u"DirBox"_s, context.machine.files)
    , txtFeltDir(context.form, u"txtFeltDir"_s, u"Disk"_s)
    , txtFeltDirSub(context.form, u"txtFeltDirSub"_s, u"Sub Folder"_s)
    , lblFrom(context.form, u"lblFrom"_s, u"From:"_s)
    , cboFrom(context.form, u"cboFrom"_s)
    , lblTo(context.form, u"lblTo"_s, u"To:"_s)
    , cboTo(context.form, u"cboTo"_s)
    , chkMain_Sub(context.form, u"chkMain_Sub"_s, u"Make numbered Main/Sub Folders"_s)
    , Chck_MakeDel(context.form, u"Chck_MakeDel"_s, u"Chose Make or Delete"_s)
    , btnGBMake(context.form, u"btnGBMake"_s, u"Make Folder"_s)
    , btnGBDelete(context.form, u"btnGBDelete"_s, u"Delete Folder"_s)
    , NumberedFolderPath(DirBox.Path())
    , clickSound(context.clickSound)
    , files(context.machine.files)
    , settings(context.settings)
    , choice(DrvBox, DirBox, FolderChoice::Unready::IsLeftAgain)
    , run(context, *this, DirList)
{
    DrvBox.SetToolTip(u" Change to another drive "_s);
    DirBox.SetToolTip(u" Select any folder "_s);
    chkMain_Sub.SetToolTip(u" If Checked Make numbered Sub Folders "_s);
    Chck_MakeDel.SetToolTip(u" Select Make or Delete Folder "_s);
    Chck_MakeDel_Click();

    DirBox.Change.Handle([this] { TakeFolder(); });
    choice.DriveChosen.Handle([this] { TakeFolder(); });
    Chck_MakeDel.Click.Handle([this] { Chck_MakeDel_Click(); });
    btnGBMake.Click.Handle([this] { btnGBMake_Click(); });
    btnGBDelete.Click.Handle([this] { btnGBDelete_Click(); });
}

void NumberedPage::FillNumberCombos()
{
    QStringList numbers;
    for (std::int16_t number = 1; number <= lastListedNumber; ++number)
        numbers += QString::number(number);
    cboFrom.SetItems(numbers);
    cboTo.SetItems(numbers);
}

void NumberedPage::Restore(Steps &steps)
{
    steps.Do([&] { Chck_MakeDel.SetValue(settings.ReadInt32(keys::MakeDel)); });
    steps.Do([&] { cboFrom.SetText(settings.ReadText(keys::FromDir)); });
    steps.Do([&] { cboTo.SetText(settings.ReadText(keys::ToDir)); });
    for (ComboBox *combo : {&cboFrom, &cboTo}) {
        if (combo->Text().isEmpty())
            combo->SetText(u"1"_s);
    }
    steps.Do([&] { txtFeltDir.SetText(settings.ReadText(keys::Folder)); });
    steps.Do([&] { txtFeltDirSub.SetText(settings.ReadText(keys::SubFolder)); });
    steps.Do([&] { NumberedFolderPath = OnDriveC(files, settings.ReadText(keys::LastNumPath)); });
    if (!steps.Pending())
        steps.Do([&] { choice.GoTo(NumberedFolderPath); });
    else
        choice.ShowPresent();
    steps.Clear();
}

void NumberedPage::Save(Steps &steps)
{
    steps.Do([&] { settings.Write(keys::MakeDel, Chck_MakeDel.Value()); });
    steps.Do([&] { settings.Write(keys::FromDir, cboFrom.Text()); });
    steps.Do([&] { settings.Write(keys::ToDir, cboTo.Text()); });
    steps.Do([&] { settings.Write(keys::Folder, txtFeltDir.Text()); });
    steps.Do([&] { settings.Write(keys::SubFolder, txtFeltDirSub.Text()); });
    steps.Do([&] { settings.Write(keys::LastNumPath, NumberedFolderPath); });
}

void NumberedPage::TakeFolder()
{
    NumberedFolderPath = DirBox.Path();
}

void NumberedPage::Chck_MakeDel_Click()
{
    btnGBMake.SetVisible(!Chck_MakeDel.IsChecked());
    btnGBDelete.SetVisible(Chck_MakeDel.IsChecked());
}

void NumberedPage::btnGBMake_Click()
{
    clickSound.Play();
    run.MakeFolders();
}

void NumberedPage::btnGBDelete_Click()
{
    // Kept: the one button that makes no sound.
    run.DeleteFolders();
}

} // namespace tressel
