// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "forms/InformationPage.h"

#include "settings/Settings.h"
#include "tools/ClickSound.h"

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

Label MakeLine(Form &form, int index)
{
    return {form, u"lblInformation(%1)"_s.arg(index), u"No Info"_s};
}

TextBox MakeBox(Form &form, int index)
{
    return {form, u"txtInformation(%1)"_s.arg(index), u"No Info"_s};
}

} // namespace

InformationPage::InformationPage(Form &form, Settings &allSettings, const ClickSound &sound)
    : FrmeInfo(form, u"FrmeInfo"_s, u"Information"_s)
    , lblHeaderInformation(
          form, u"lblHeaderInformation"_s,
          u"Below you will find a small personal section for personal useage.  If you want to change any of "
          "the information below, click on \"Change Info\"."_s)
    , lblSystem(form, u"lblSystem"_s, u"System:"_s)
    , lblRegitered(form, u"lblRegitered"_s, u"Registered to:"_s)
    , lblInformation{MakeLine(form, Product), MakeLine(form, Version), MakeLine(form, ServiceLevel),
                     MakeLine(form, Owner), MakeLine(form, Organization)}
    , PicBakground(form, u"PicBakground"_s)
    , txtInformation{MakeBox(form, 0), MakeBox(form, 1)}
    , btnGBChangeInfo(form, u"btnGBChangeInfo"_s, u"&Change Info"_s)
    , btnGBUpdateInfo(form, u"btnGBUpdateInfo"_s, u"&Update Info"_s)
    , settings(allSettings)
    , clickSound(sound)
{
    SetEditing(false);
    btnGBChangeInfo.Click.Handle([this] { btnGBChangeInfo_Click(); });
    btnGBUpdateInfo.Click.Handle([this] { btnGBUpdateInfo_Click(); });
}

void InformationPage::FillSystemInfo()
{
    lblInformation[Product].SetCaption(settings.ReadText(keys::ProductName));
    const QString number = settings.ReadText(keys::CurrentVersion);
    const QString build = settings.ReadText(keys::CurrentBuildNumber);
    // Kept: a zero stands between the two, so that 5.1 and 2600 read 5.10.2600.
    lblInformation[Version].SetCaption(number.isEmpty() && build.isEmpty() ? QString()
                                                                           : number + u"0."_s + build);
    lblInformation[ServiceLevel].SetCaption(settings.ReadText(keys::CSDVersion));
    lblInformation[Owner].SetCaption(settings.ReadText(keys::RegisteredOwner));
    lblInformation[Organization].SetCaption(settings.ReadText(keys::RegisteredOrganization));
}

void InformationPage::HideBoxes()
{
    PicBakground.SetVisible(false);
    for (TextBox &box : txtInformation)
        box.SetVisible(false);
}

void InformationPage::SetEditing(bool isEditing)
{
    btnGBUpdateInfo.SetVisible(isEditing);
    PicBakground.SetVisible(isEditing);
    for (TextBox &box : txtInformation)
        box.SetVisible(isEditing);
}

void InformationPage::btnGBChangeInfo_Click()
{
    clickSound.Play();
    SetEditing(true);
    txtInformation[0].SetText(lblInformation[Owner].Caption());
    txtInformation[1].SetText(lblInformation[Organization].Caption());
    txtInformation[0].SetFocus();
    txtInformation[0].SelectAll();
}

void InformationPage::btnGBUpdateInfo_Click()
{
    clickSound.Play();
    lblInformation[Owner].SetCaption(txtInformation[0].Text());
    lblInformation[Organization].SetCaption(txtInformation[1].Text());
    SetEditing(false);
    settings.Write(keys::RegisteredOwner, txtInformation[0].Text());
    settings.Write(keys::RegisteredOrganization, txtInformation[1].Text());
}

} // namespace tressel
