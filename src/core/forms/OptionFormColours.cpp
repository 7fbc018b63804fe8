// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "base/Steps.h"
#include "forms/Appearance.h"
#include "forms/MainForm.h"
#include "forms/OptionForm.h"
#include "machine/Dialogs.h"
#include "settings/Settings.h"

namespace tressel {

using namespace Qt::StringLiterals;

void OptionForm::TieColours()
{
    for (int index = 0; index < swatchCount; ++index)
        Swatch(index).Click.Handle([this, index] { PicColor_Click(index); });
    OnBar(btnGBColor1, &OptionForm::btnGBColor1_Click);
    OnBar(btnGBColor2, &OptionForm::btnGBColor2_Click);
    OnBar(btnGBColorDefault, &OptionForm::btnGBColorDefault_Click);
    OnBar(btnGBColorSystem, &OptionForm::btnGBColorSystem_Click);
    OnBar(btnGBImageSmall, &OptionForm::btnGBImageSmall_Click);
    OnBar(btnGBImageNone, &OptionForm::btnGBImageNone_Click);
    OnBar(btnGBShowMenu, &OptionForm::btnGBShowMenu_Click);
    OnBar(btnGBHideSelItem, &OptionForm::btnGBHideSelItem_Click);
    OnBar(btnGBShowAllItem, &OptionForm::btnGBShowAllItem_Click);
    OnBar(btnGBIconRight, &OptionForm::btnGBIconRight_Click);
    OnBar(btnGBTextSidebarFont, &OptionForm::btnGBTextSidebarFont_Click);
    OnBar(btnGBTextHeadFont, &OptionForm::btnGBTextHeadFont_Click);
}

void OptionForm::OnBar(IsButton &button, void (OptionForm::*change)(SideBar &bar))
{
    button.Click.Handle([this, change] {
        clickSound.Play();
        Steps steps;
        if (mainForm)
            steps.Do([&] { (this->*change)(mainForm->EyeDropper1); });
    });
}

void OptionForm::PicColor_Click(int index)
{
    const auto chosen = machine.dialogs.ChooseColour(Swatch(index).BackColor());
    if (!chosen)
        return;
    // The side bar takes it with the next press of the palette's button.
    Swatch(index).SetBackColor(*chosen);
    settings.Write(keys::Color.At(index), QString::number(*chosen));
}

void OptionForm::btnGBColor1_Click(SideBar &bar)
{
    UsePalette(*this, Palette::First, bar, settings);
    bar.SetOutlookColors(true);
}

void OptionForm::btnGBColor2_Click(SideBar &bar)
{
    UsePalette(*this, Palette::Second, bar, settings);
    bar.SetOutlookColors(true);
}

void OptionForm::btnGBColorDefault_Click(SideBar & /*bar*/)
{
    SetDefaultColors();
}

void OptionForm::btnGBColorSystem_Click(SideBar &bar)
{
    bar.SetOutlookColors(!bar.OutlookColors());
}

void OptionForm::btnGBImageSmall_Click(SideBar &bar)
{
    bar.SetImageList(u"ImageList1"_s);
    btnGBImageSmall.SetEnabled(false);
}

void OptionForm::btnGBImageNone_Click(SideBar &bar)
{
    bar.SetImageList({});
    btnGBImageSmall.SetEnabled(true);
}

void OptionForm::btnGBShowMenu_Click(SideBar &bar)
{
    bar.SetShowMenu(!bar.ShowMenu());
}

void OptionForm::btnGBHideSelItem_Click(SideBar &bar)
{
    // The side bar itself opens another entry.
    if (SideBarItem *selected = bar.SelectedItem())
        selected->SetVisible(false);
    StoreVisibility(bar);
}

void OptionForm::btnGBShowAllItem_Click(SideBar &bar)
{
    mainForm->LoadItems();
    StoreVisibility(bar);
}

void OptionForm::StoreVisibility(SideBar &bar)
{
    for (int number = 1; number <= bar.Items().Count(); ++number)
        settings.WriteBoolean(keys::Chk.At(number), bar.Items()[number].IsVisible());
}

void OptionForm::btnGBIconRight_Click(SideBar &bar)
{
    bar.SetRightToLeft(!bar.RightToLeft());
    bar.SetRedraw(true);
    btnGBIconRight.SetCaption(bar.RightToLeft() ? u"&Icon Left To Right"_s : u"&Icon Right To Left"_s);
    settings.WriteBoolean(keys::RightToLeft, bar.RightToLeft());
}

void OptionForm::btnGBTextSidebarFont_Click(SideBar &bar)
{
    if (const auto chosen = machine.dialogs.ChooseFont(bar.TitleFont())) {
        bar.SetTitleFont(*chosen);
        WriteFont(settings, titleKeys, *chosen);
        bar.SetRedraw(true);
    }
}

void OptionForm::btnGBTextHeadFont_Click(SideBar &bar)
{
    if (const auto chosen = machine.dialogs.ChooseFont(bar.CaptionFont())) {
        bar.SetCaptionFont(*chosen);
        WriteFont(settings, captionKeys, *chosen);
        bar.SetRedraw(true);
    }
}

} // namespace tressel
