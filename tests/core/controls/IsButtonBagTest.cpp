// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "controls/IsButtonBag.h"

#include "base/Failure.h"
#include "controls/IsButton.h"
#include "controls/PropertyBag.h"
#include "support/Text.h"

#include <gtest/gtest.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

class IsButtonBag : public testing::Test {
protected:
    void Store() { WriteProperties(written, bag); }
    void Load() { ReadProperties(readBack, bag); }

    Form form{u"frmTest"_s};
    IsButton written{form, u"btnWritten"_s, IsButtonProperties{}};
    IsButton readBack{form, u"btnRead"_s, IsButtonProperties{}};
    PropertyBag bag;
};

TEST_F(IsButtonBag, EveryPropertyComesBackInTheFixedOrder)
{
    written.SetStyle(ButtonStyle::Keramik);
    written.SetCaption(u"&Apply"_s);
    written.SetIcon(Picture(QByteArray("bytes")));
    written.SetIconAlign(IconPlace::Bottom);
    written.SetIconSize(48);
    written.SetCaptionAlign(CaptionPlace::Right);
    written.SetNonThemeStyle(ButtonStyle::Plastik);
    written.SetEnabled(false);
    written.SetShowFocus(true);
    written.SetUseCustomColors(true);
    written.SetBackColor(0x112233);
    written.SetHighlightColor(0x445566);
    written.SetFontColor(0x778899);
    written.SetFontHighlightColor(0xAABBCC);
    written.SetToolTip(u"tip"_s);
    written.SetToolTipTitle(u"title"_s);
    written.SetToolTipIcon(ToolTipIconKind::Error);
    written.SetToolTipType(ToolTipShape::Balloon);
    written.SetToolTipBackColor(0x010203);
    written.SetToolTipForeColor(0x040506);
    written.SetFont(FontFace{u"Serif"_s, 12, true});
    written.SetButtonType(ButtonKind::Check);
    written.SetValue(true);
    Store();
    EXPECT_EQ(
        bag.Names().join(u' '),
        u"Icon Style Caption IconSize IconAlign CaptionAlign iNonThemeStyle Enabled ShowFocus "
        "USeCustomColors BackColor HighlightColor FontColor FontHighlightColor ToolTipText Tooltiptitle "
        "ToolTipIcon ToolTipType ttBackColor ttForeColor Font ButtonType Value"_s);

    Load();
    EXPECT_EQ(readBack.Style(), ButtonStyle::Keramik);
    EXPECT_EQ(readBack.Caption(), u"&Apply"_s);
    EXPECT_EQ(readBack.Icon(), Picture(QByteArray("bytes")));
    EXPECT_EQ(readBack.IconAlign(), IconPlace::Bottom);
    EXPECT_EQ(readBack.IconSize(), 48);
    EXPECT_EQ(readBack.CaptionAlign(), CaptionPlace::Right);
    EXPECT_EQ(readBack.NonThemeStyle(), ButtonStyle::Plastik);
    EXPECT_FALSE(readBack.IsEnabled());
    EXPECT_TRUE(readBack.ShowFocus());
    EXPECT_TRUE(readBack.UseCustomColors());
    EXPECT_EQ(readBack.BackColor(), 0x112233U);
    EXPECT_EQ(readBack.HighlightColor(), 0x445566U);
    EXPECT_EQ(readBack.FontColor(), 0x778899U);
    EXPECT_EQ(readBack.FontHighlightColor(), 0xAABBCCU);
    EXPECT_EQ(readBack.ToolTip(), u"tip"_s);
    EXPECT_EQ(readBack.ToolTipTitle(), u"title"_s);
    EXPECT_EQ(readBack.ToolTipIcon(), ToolTipIconKind::Error);
    EXPECT_EQ(readBack.ToolTipType(), ToolTipShape::Balloon);
    EXPECT_EQ(readBack.ToolTipBackColor(), 0x010203U);
    EXPECT_EQ(readBack.ToolTipForeColor(), 0x040506U);
    EXPECT_EQ(readBack.Font(), (FontFace{u"Serif"_s, 12, true}));
    EXPECT_EQ(readBack.ButtonType(), ButtonKind::Check);
    EXPECT_TRUE(readBack.Value());
}

TEST_F(IsButtonBag, WhatEqualsTheWriteDefaultIsNotStored)
{
    written.SetCaption(u""_s);
    written.SetIconAlign(IconPlace::Centre);
    Store();
    EXPECT_EQ(bag.Names(), QStringList());
}

TEST_F(IsButtonBag, EmptyCaptionAndCentredIconComeBackAsTheReadDefaults)
{
    written.SetCaption(u""_s);
    written.SetIconAlign(IconPlace::Centre);
    Store();
    readBack.SetIconAlign(IconPlace::Top);
    Load();
    EXPECT_EQ(readBack.Caption(), u"isButton"_s);
    EXPECT_EQ(readBack.IconAlign(), IconPlace::Left);
}

TEST_F(IsButtonBag, ReadDefaultsOfThoseTwoAreStored)
{
    written.SetCaption(u"isButton"_s);
    written.SetIconAlign(IconPlace::Left);
    Store();
    EXPECT_EQ(bag.Names(), (QStringList{u"Caption"_s, u"IconAlign"_s}));
}

TEST_F(IsButtonBag, AnEmptyBagGivesEveryReadDefault)
{
    readBack.SetStyle(ButtonStyle::Pill);
    readBack.SetIconSize(48);
    readBack.SetEnabled(false);
    readBack.SetValue(true);
    readBack.SetFont(FontFace{u"Serif"_s});
    Load();
    EXPECT_EQ(readBack.Style(), ButtonStyle::DoubleLine);
    EXPECT_EQ(readBack.IconSize(), 16);
    EXPECT_TRUE(readBack.IsEnabled());
    EXPECT_FALSE(readBack.Value());
    EXPECT_FALSE(readBack.Font().has_value());
    EXPECT_EQ(readBack.NonThemeStyle(), ButtonStyle::BlueRounded);
}

TEST_F(IsButtonBag, ToolTipReadsAsTheFormsWhereNoneIsStored)
{
    readBack.Control::SetToolTip(u"of the form"_s);
    Load();
    EXPECT_EQ(readBack.ToolTip(), u"of the form"_s);
}

TEST_F(IsButtonBag, ToolTipOfTheFormIsNotStored)
{
    written.Control::SetToolTip(u"tip"_s);
    written.SetToolTip(u"tip"_s);
    written.SetCaption(u""_s);
    written.SetIconAlign(IconPlace::Centre);
    Store();
    EXPECT_EQ(bag.Names(), QStringList());
}

TEST_F(IsButtonBag, AValueOfAnotherKindIsATypeMismatch)
{
    bag.Write(u"Style"_s, u"Pill"_s, QString());
    try {
        Load();
        FAIL() << "it was taken";
    } catch (const Failure &failure) {
        EXPECT_EQ(failure.number, FailureNumber::TypeMismatch);
    }
}

} // namespace
