// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "forms/OptionForm.h"

namespace tressel {

using namespace Qt::StringLiterals;

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
