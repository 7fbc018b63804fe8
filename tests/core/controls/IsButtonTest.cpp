// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "controls/IsButton.h"

#include "machine/Shell.h"
#include "support/Text.h"

#include <functional>
#include <gtest/gtest.h>
#include <vector>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

TEST(IsButtonSize, BelowThreeHundredTwipsIsRaised)
{
    Form form{u"frmTest"_s};
    IsButton button{form, u"btnTest"_s};
    button.SetWidth(100);
    button.SetHeight(299);
    EXPECT_EQ(button.Width(), 300);
    EXPECT_EQ(button.Height(), 300);
    button.SetWidth(1500);
    EXPECT_EQ(button.Bounds(), QRect(0, 0, 100, 20));
    EXPECT_EQ(button.TextBox(), QRect(4, 4, 92, 12));
    button.TakeSize(0, 450);
    EXPECT_EQ(button.Bounds(), QRect(0, 0, 20, 30));
}

TEST(IsButtonSize, IsRaisedWithoutAFaceToo)
{
    Form form(u"frmTest"_s);
    const IsButton button(form, u"btnTest"_s);
    EXPECT_EQ(button.Width(), 300);
    EXPECT_EQ(button.Height(), 300);
    EXPECT_EQ(button.TextBox(), QRect(4, 4, 12, 12));
}

TEST(IsButtonCaption, EachPlaceHasItsDrawFlags)
{
    Form form{u"frmTest"_s};
    IsButton button{form, u"btnTest"_s};
    const QList<std::pair<CaptionPlace, int>> rows{{CaptionPlace::Centre, 37},
                                                   {CaptionPlace::Left, 36},
                                                   {CaptionPlace::Right, 38},
                                                   {CaptionPlace::Top, 33},
                                                   {CaptionPlace::Bottom, 41}};
    for (const auto &[place, flags] : rows) {
        button.SetCaptionAlign(place);
        EXPECT_EQ(button.TextDrawFlags(), flags);
    }
}

TEST(IsButtonNew, HasTheToldFirstValues)
{
    Form form{u"frmTest"_s};
    IsButton button{form, u"btnNew"_s, IsButtonProperties{}};
    EXPECT_EQ(button.Version(), u"3.0"_s);
    EXPECT_EQ(button.Caption(), u"btnNew"_s);
    EXPECT_EQ(button.Style(), ButtonStyle::DoubleLine);
    EXPECT_TRUE(button.Icon().IsNone());
    EXPECT_EQ(button.IconSize(), 16);
    EXPECT_EQ(button.NonThemeStyle(), ButtonStyle::BlueRounded);
    EXPECT_TRUE(button.IsEnabled());
    EXPECT_FALSE(button.ShowFocus());
    EXPECT_FALSE(button.UseCustomColors());
    EXPECT_EQ(button.BackColor(), 0x8000000FU);
    EXPECT_EQ(button.HighlightColor(), 0x8000000DU);
    EXPECT_EQ(button.FontColor(), 0x80000012U);
    EXPECT_EQ(button.FontHighlightColor(), 0x80000012U);
    EXPECT_EQ(button.ToolTipBackColor(), 0x80000017U);
    EXPECT_EQ(button.ToolTipForeColor(), 0x80000018U);
    EXPECT_FALSE(button.Font().has_value());
    EXPECT_EQ(button.ButtonType(), ButtonKind::Push);
    EXPECT_EQ(button.ShownState(), LookState::Normal);
}

TEST(IsButtonNew, HasItsFourColoursTranslatedOnce)
{
    Form form{u"frmTest"_s};
    IsButton button{form, u"btnNew"_s, IsButtonProperties{}};
    button.SetFontColor(0x80000012U);
    const auto translate = [](ColourNumber colour) { return colour & 0xFFU; };
    button.TranslateFirstColours(translate);
    EXPECT_EQ(button.BackColor(), 0x0FU);
    EXPECT_EQ(button.HighlightColor(), 0x0DU);
    EXPECT_EQ(button.FontColor(), 0x80000012U) << "it was written";
    EXPECT_EQ(button.FontHighlightColor(), 0x12U);
    EXPECT_EQ(button.ToolTipBackColor(), 0x80000017U);
    button.SetBackColor(0x8000000FU);
    button.TranslateFirstColours(translate);
    EXPECT_EQ(button.BackColor(), 0x8000000FU);
}

TEST(IsButtonNew, OnAFormHasTheDesignOfTheForms)
{
    Form form{u"frmTest"_s};
    IsButton button{form, u"btnMake"_s, u"Make Folder"_s};
    EXPECT_EQ(button.Caption(), u"Make Folder"_s);
    EXPECT_EQ(button.Style(), ButtonStyle::BlueRounded);
    EXPECT_EQ(button.IconSize(), 32);
    EXPECT_EQ(button.IconAlign(), IconPlace::Top);
    EXPECT_EQ(button.CaptionAlign(), CaptionPlace::Centre);
    button.PlaceIcon(Picture(u"make"_s));
    EXPECT_EQ(button.CaptionAlign(), CaptionPlace::Bottom);
}

TEST(IsButtonNew, AnEmptyCaptionStaysEmpty)
{
    Form form{u"frmTest"_s};
    EXPECT_EQ(IsButton(form, u"btnEmpty"_s, u""_s).Caption(), u""_s);
}

TEST(IsButtonTheme, GivenUpTakesTheOtherStyleForGood)
{
    Form form{u"frmTest"_s};
    IsButton button{form, u"btnTest"_s};
    button.GiveUpTheme();
    EXPECT_EQ(button.Style(), ButtonStyle::BlueRounded);
    button.SetNonThemeStyle(ButtonStyle::Pill);
    button.SetStyle(ButtonStyle::SystemTheme);
    button.GiveUpTheme();
    EXPECT_EQ(button.Style(), ButtonStyle::Pill);
}

TEST(IsButtonTheme, StaysWhereItIsItsOwnReplacement)
{
    Form form{u"frmTest"_s};
    IsButton button{form, u"btnTest"_s};
    button.SetNonThemeStyle(ButtonStyle::SystemTheme);
    button.SetStyle(ButtonStyle::SystemTheme);
    form.TakeChanged();
    button.GiveUpTheme();
    EXPECT_EQ(button.Style(), ButtonStyle::SystemTheme);
    EXPECT_TRUE(form.TakeChanged().isEmpty());
}

TEST(IsButtonProperty, EachWritingIsToldAndRepaints)
{
    Form form{u"frmTest"_s};
    IsButton button{form, u"btnTest"_s};
    QStringList told;
    button.PropertyChanged.Handle([&](const QString &name) { told.append(name); });
    const std::vector<std::function<void()>> writings{
        [&] { button.SetStyle(ButtonStyle::Flat); },
        [&] { button.SetCaption(u"x"_s); },
        [&] { button.SetIcon(Picture(u"x"_s)); },
        [&] { button.SetIconAlign(IconPlace::Right); },
        [&] { button.SetIconSize(24); },
        [&] { button.SetCaptionAlign(CaptionPlace::Left); },
        [&] { button.SetNonThemeStyle(ButtonStyle::Flat); },
        [&] { button.SetEnabled(true); },
        [&] { button.SetShowFocus(true); },
        [&] { button.SetUseCustomColors(true); },
        [&] { button.SetBackColor(1); },
        [&] { button.SetHighlightColor(2); },
        [&] { button.SetFontColor(3); },
        [&] { button.SetFontHighlightColor(4); },
        [&] { button.SetToolTip(u"x"_s); },
        [&] { button.SetToolTipTitle(u"x"_s); },
        [&] { button.SetToolTipIcon(ToolTipIconKind::Warning); },
        [&] { button.SetToolTipType(ToolTipShape::Balloon); },
        [&] { button.SetToolTipBackColor(5); },
        [&] { button.SetToolTipForeColor(6); },
        [&] { button.SetFont(FontFace{u"Serif"_s}); },
        [&] { button.SetButtonType(ButtonKind::Check); },
        [&] { button.SetValue(true); },
    };
    for (const auto &write : writings) {
        form.TakeChanged();
        write();
        EXPECT_TRUE(form.TakeChanged().contains(&button)) << told.last().toStdString();
    }
    EXPECT_EQ(told.join(u' '),
              u"Style Caption Icon IconAlign IconSize CaptionAlign NonThemeStyle Enabled ShowFocus "
              "UseCustomColors BackColor HighlightColor FontColor FontHighlightColor ToolTip ToolTipTitle "
              "ToolTipIcon ToolTipType ToolTipBackColor ToolTipForeColor Font ButtonType Value"_s);
}

TEST(IsButtonLink, IsHandedToTheShell)
{
    class OneAddress : public Shell {
    public:
        bool Open(const QString &target, const QString &folder) override
        {
            asked = target + u'|' + folder;
            return opens;
        }
        bool EditText(const QString &) override { return false; }
        bool BrowseFolder(const QString &) override { return false; }
        QString asked;
        bool opens = true;
    } shell;
    EXPECT_TRUE(IsButton::OpenLink(shell, u"http://example.org"_s));
    EXPECT_EQ(shell.asked, u"http://example.org|"_s);
    shell.opens = false;
    EXPECT_FALSE(IsButton::OpenLink(shell, u"x"_s));
}

TEST(IsButtonAbout, AsksTheFaceGivenLast)
{
    Form form{u"frmTest"_s};
    IsButton button{form, u"btnTest"_s};
    QStringList asked;
    button.About();
    button.SetAboutWindow([&] { asked += u"first"_s; });
    button.About();
    button.SetAboutWindow([&] { asked += u"second"_s; });
    button.About();
    EXPECT_EQ(asked, (QStringList{u"first"_s, u"second"_s}));
}

} // namespace
