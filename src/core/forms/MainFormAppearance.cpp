// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "base/Steps.h"
#include "forms/Appearance.h"
#include "forms/MainForm.h"
#include "forms/OptionForm.h"
#include "settings/Settings.h"

#include <algorithm>
#include <array>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

/// In which order the window's buttons are given their look.
constexpr std::array<QStringView, 30> buttonOrder{
    u"btnGBLoadFile",        u"btnGBSaveFile",      u"btnGBLoadList",
    u"btnGBOpenDatabase",    u"btnGBMake",          u"btnGBBrowse",
    u"btnGBDelete",          u"btnGBToolbarExit",   u"btnGBToolbarOption",
    u"btnGBToolbarLoadList", u"btnGBToolbarBrowse", u"btnGBToolbarCreate",
    u"btnGBToolbarUpdate",   u"btnGBToolbarAbout",  u"btnGBToolbarSearch",
    u"btnGBToolbarOpenDir",  u"btnGBToolbarDelDir", u"btnGBToolbarDeleteAll",
    u"btnGBToolbarCopy",     u"btnGBMakeList",      u"btnGBResult",
    u"btnGBSplitFile",       u"btnGBJoinFile",      u"btnBrowse",
    u"btnGBErase",           u"btnGBBrowsePath",    u"btnGBRename",
    u"btnGBReplace",         u"btnGBExtension",     u"btnGBCancel"};

} // namespace

void MainForm::ApplyStyleToMain()
{
    GiveSelectedStyle(frmOption(), Buttons());
}

QList<IsButton *> MainForm::Buttons() const
{
    QList<IsButton *> buttons;
    for (Control *control : Controls()) {
        if (auto *button = dynamic_cast<IsButton *>(control))
            buttons.append(button);
    }
    // One that the order doesn't name comes after those that it does.
    const auto place = [](const IsButton *button) { return std::ranges::find(buttonOrder, button->Name()); };
    std::ranges::stable_sort(buttons, {}, place);
    return buttons;
}

void MainForm::ApplyAppearance()
{
    // Whatever fails brings the default palette. On a first start the number of visible entries does,
    // so that the palette is there before it is needed.
    Steps steps([this](const Failure &) { frmOption().SetDefaultColors(); });
    EyeDropper1.Reset();
    steps.Do([&] { EyeDropper1.SetRightToLeft(settings.ReadBoolean(keys::RightToLeft)); });
    RestoreSwatches(steps);
    RestorePlace(steps, KeyReader::Later);
    steps.Do([&] { LoadItems(); });
    frmOption().btnGBColorSystem.SetValue(true);
    frmOption().btnGBColor2.SetValue(true);
    steps.Do([&] { EyeDropper1.SetVisibleItems(settings.ReadInt32(keys::VisibleItems)); });
    steps.Do([&] { PicStrip.SetLeft(settings.ReadInt32(keys::TabStrip)); });
    EyeDropper1.SetTitleFont(ReadFont(settings, steps, titleKeys, EyeDropper1.TitleFont()));
    EyeDropper1.SetCaptionFont(ReadFont(settings, steps, captionKeys, EyeDropper1.CaptionFont()));
    EyeDropper1.SetRedraw(true);
    FormResize();
    steps.Do([&] { EyeDropper1.SetOutlookColors(settings.ReadBoolean(keys::OutlookColors)); });
    // Whatever brought the default palette must not take away what the user chose for single swatches.
    Steps again;
    RestoreSwatches(again);
    steps.Do([&] { ApplyPalette(settings.ReadText(keys::CustomColor)); });
    EyeDropper1.SetShowMenu(false);
    EyeDropper1.SetRedraw(true);
}

void MainForm::RestoreSwatches(Steps &steps)
{
    for (int swatch = OptionForm::secondPalette; swatch < OptionForm::swatchCount; ++swatch) {
        steps.Do([&] {
            const std::int32_t colour = settings.ReadInt32(keys::Color.At(swatch));
            frmOption().Swatch(swatch).SetBackColor(static_cast<ColourNumber>(colour));
        });
    }
}

void MainForm::ApplyPalette(const QString &choice)
{
    customColor = choice;
    if (customColor == u'1')
        UsePalette(frmOption(), Palette::First, EyeDropper1, settings);
    else if (customColor == u'2')
        UsePalette(frmOption(), Palette::Second, EyeDropper1, settings);
}

} // namespace tressel
