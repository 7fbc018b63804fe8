// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "forms/OptionForm.h"

#include <array>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

using Palette = std::array<ColourNumber, 11>;

/// A colour number from red, green and blue as they are usually written, 0xRRGGBB.
constexpr ColourNumber FromRgb(quint32 rgb)
{
    return (rgb & 0xFF) << 16 | (rgb & 0xFF00) | rgb >> 16;
}

/// What the first palette holds until the user chooses: quiet blues, in the order of the side bar's slots.
constexpr Palette firstPaletteColours{FromRgb(0xE3EDF8), FromRgb(0x7F9DB9), FromRgb(0xFFFFFF),
                                      FromRgb(0x5B7A9D), FromRgb(0xCFE1F6), FromRgb(0x8FB4DE),
                                      FromRgb(0xFFFFFF), FromRgb(0xE3EDF8), FromRgb(0x7F9DB9),
                                      FromRgb(0x8FB4DE), FromRgb(0xCFE1F6)};

constexpr Palette defaultColours{FromRgb(0xDEDEDE), FromRgb(0x8C8C8C), FromRgb(0xFFFFFF), FromRgb(0x7B7B7B),
                                 FromRgb(0xFAE2B6), FromRgb(0xF3B94D), FromRgb(0xFFFFFF), FromRgb(0xDFDFDF),
                                 FromRgb(0x9C9C9C), FromRgb(0xF3B94D), FromRgb(0xFAE2B6)};

std::vector<std::unique_ptr<PictureBox>> MakeSwatches(Form &form)
{
    std::vector<std::unique_ptr<PictureBox>> swatches;
    for (int index = 0; index < OptionForm::swatchCount; ++index) {
        swatches.push_back(std::make_unique<PictureBox>(form, u"PicColor(%1)"_s.arg(index)));
        if (index < OptionForm::secondPalette)
            swatches.back()->SetBackColor(firstPaletteColours.at(static_cast<size_t>(index)));
    }
    return swatches;
}

} // namespace

OptionForm::OptionForm()
    : Form(u"frmOption"_s)
    , FrmeButtonStyle(*this, u"FrmeButtonStyle"_s, u"Button Style"_s)
    , optButtonStyle(*this, u"optButtonStyle"_s,
                     {u"Windows 9 X"_s, u"Flat Style"_s, u"Mac OSX Style"_s, u"Windows XP Blue"_s,
                      u"Office XP System"_s, u"Linux Mandrake Style"_s, u"Keramik Style"_s,
                      u"Linux Plastik Style"_s, u"Sun Java Style"_s})
    , ChkAutoOption(*this, u"ChkAutoOption"_s, u"Manual Digit ON"_s)
    , FrmeNumFolders(*this, u"FrmeNumFolders"_s, u"Make Numbered Folders"_s)
    , OptDigit(
          *this, u"OptDigit"_s,
          {u"Digit 1, 2, 3"_s, u"Digit 01, 02, 03"_s, u"Digit 001, 002, 003"_s, u"Digit 0001, 0002, 0003"_s})
    , ChkAnimOption(*this, u"ChkAnimOption"_s, u"Enable Form Animation"_s)
    , FrmeAnimation(*this, u"FrmeAnimation"_s, u"Form Animation"_s)
    , lblHeight(*this, u"lblHeight"_s, u"Form speed Height"_s)
    , txtHeight(*this, u"txtHeight"_s, u"500"_s)
    , lblWidth(*this, u"lblWidth"_s, u"Form speed Width"_s)
    , txtWidth(*this, u"txtWidth"_s, u"200"_s)
    , btnGBDefault(*this, u"btnGBDefault"_s, u"&Default"_s)
    , FrmeSound(*this, u"FrmeSound"_s, u"Sound"_s)
    , OptSound(*this, u"OptSound"_s, {u"On"_s, u"Off"_s})
    , PicColor(MakeSwatches(*this))
    , btnGBColor1(*this, u"btnGBColor1"_s, u"&Color form 1"_s)
    , btnGBColor2(*this, u"btnGBColor2"_s, u"&Color form 2"_s)
    , btnGBColorSystem(*this, u"btnGBColorSystem"_s, u"&Original System Color"_s)
{
    SetCaption(u"Option"_s);
    ChkAutoOption.SetToolTip(u" If Unchecked Auto and program organized to correct format for you "_s);
    ChkAnimOption.SetToolTip(u" Enable/Disable Form Animation "_s);
    // Kept: a higher number folds the window up sooner, whatever the tool tip says.
    txtHeight.SetToolTip(u" Type in Interval here, higher number slow down animation "_s);
}

LiveOptions OptionForm::Live()
{
    return {OptSound, ChkAutoOption, OptDigit, ChkAnimOption, txtHeight, txtWidth};
}

PictureBox &OptionForm::Swatch(int index)
{
    if (index < 0 || index >= swatchCount)
        throw Failure(FailureNumber::SubscriptOutOfRange);
    return *PicColor[static_cast<size_t>(index)];
}

void OptionForm::SetDefaultColors()
{
    for (int slot = 0; slot < static_cast<int>(defaultColours.size()); ++slot)
        Swatch(secondPalette + slot).SetBackColor(defaultColours.at(static_cast<size_t>(slot)));
}

void OptionForm::EnableDigits(bool enabled)
{
    FrmeNumFolders.SetEnabled(enabled);
    OptDigit.SetEnabled(enabled);
}

void OptionForm::EnableAnimation(bool enabled)
{
    FrmeAnimation.SetEnabled(enabled);
    lblHeight.SetEnabled(enabled);
    lblWidth.SetEnabled(enabled);
    txtHeight.SetEnabled(enabled);
    txtWidth.SetEnabled(enabled);
    btnGBDefault.SetEnabled(enabled);
}

} // namespace tressel
