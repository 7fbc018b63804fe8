// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "controls/IsButtonBag.h"

#include "base/Numbers.h"
#include "controls/IsButton.h"
#include "controls/PropertyBag.h"

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

constexpr ColourNumber face = NumberOf(SystemColour::ButtonFace);
constexpr ColourNumber highlight = NumberOf(SystemColour::Highlight);
constexpr ColourNumber text = NumberOf(SystemColour::ButtonText);
constexpr ColourNumber tipFace = NumberOf(SystemColour::ToolTipFace);
constexpr ColourNumber tipText = NumberOf(SystemColour::ToolTipText);

template <typename Enum> PropertyBag::Stored Number(Enum value)
{
    return static_cast<std::int32_t>(value);
}

template <typename Enum> Enum ReadEnum(const PropertyBag &bag, const QString &name, Enum readDefault)
{
    return static_cast<Enum>(bag.Read<std::int32_t>(name, static_cast<std::int32_t>(readDefault)));
}

} // namespace

void WriteProperties(const IsButton &button, PropertyBag &bag)
{
    bag.Write(u"Icon"_s, button.Icon(), Picture());
    bag.Write(u"Style"_s, Number(button.Style()), Number(ButtonStyle::DoubleLine));
    bag.Write(u"Caption"_s, button.Caption(), QString());
    bag.Write(u"IconSize"_s, Number(button.IconSize()), Number(16));
    bag.Write(u"IconAlign"_s, Number(button.IconAlign()), Number(IconPlace::Centre));
    bag.Write(u"CaptionAlign"_s, Number(button.CaptionAlign()), Number(CaptionPlace::Centre));
    bag.Write(u"iNonThemeStyle"_s, Number(button.NonThemeStyle()), Number(ButtonStyle::BlueRounded));
    bag.Write(u"Enabled"_s, button.IsEnabled(), true);
    bag.Write(u"ShowFocus"_s, button.ShowFocus(), false);
    bag.Write(u"USeCustomColors"_s, button.UseCustomColors(), false);
    bag.Write(u"BackColor"_s, button.BackColor(), face);
    bag.Write(u"HighlightColor"_s, button.HighlightColor(), highlight);
    bag.Write(u"FontColor"_s, button.FontColor(), text);
    bag.Write(u"FontHighlightColor"_s, button.FontHighlightColor(), text);
    bag.Write(u"ToolTipText"_s, button.ToolTip(), button.Control::ToolTip());
    bag.Write(u"Tooltiptitle"_s, button.ToolTipTitle(), QString());
    bag.Write(u"ToolTipIcon"_s, Number(button.ToolTipIcon()), Number(ToolTipIconKind::None));
    bag.Write(u"ToolTipType"_s, Number(button.ToolTipType()), Number(ToolTipShape::Standard));
    bag.Write(u"ttBackColor"_s, button.ToolTipBackColor(), tipFace);
    bag.Write(u"ttForeColor"_s, button.ToolTipForeColor(), tipText);
    bag.WriteOptional(u"Font"_s, button.Font());
    bag.Write(u"ButtonType"_s, Number(button.ButtonType()), Number(ButtonKind::Push));
    bag.Write(u"Value"_s, button.Value(), false);
}

void ReadProperties(IsButton &button, const PropertyBag &bag)
{
    button.SetIcon(bag.Read(u"Icon"_s, Picture()));
    button.SetStyle(ReadEnum(bag, u"Style"_s, ButtonStyle::DoubleLine));
    button.SetCaption(bag.Read(u"Caption"_s, u"isButton"_s));
    button.SetIconSize(ToInt16(bag.Read<std::int32_t>(u"IconSize"_s, 16)));
    button.SetIconAlign(ReadEnum(bag, u"IconAlign"_s, IconPlace::Left));
    button.SetCaptionAlign(ReadEnum(bag, u"CaptionAlign"_s, CaptionPlace::Centre));
    button.SetNonThemeStyle(ReadEnum(bag, u"iNonThemeStyle"_s, ButtonStyle::BlueRounded));
    button.SetEnabled(bag.Read(u"Enabled"_s, true));
    button.SetShowFocus(bag.Read(u"ShowFocus"_s, false));
    button.SetUseCustomColors(bag.Read(u"USeCustomColors"_s, false));
    button.SetBackColor(bag.Read(u"BackColor"_s, face));
    button.SetHighlightColor(bag.Read(u"HighlightColor"_s, highlight));
    button.SetFontColor(bag.Read(u"FontColor"_s, text));
    button.SetFontHighlightColor(bag.Read(u"FontHighlightColor"_s, text));
    button.SetToolTip(bag.Read(u"ToolTipText"_s, button.Control::ToolTip()));
    button.SetToolTipTitle(bag.Read(u"Tooltiptitle"_s, QString()));
    button.SetToolTipIcon(ReadEnum(bag, u"ToolTipIcon"_s, ToolTipIconKind::None));
    button.SetToolTipType(ReadEnum(bag, u"ToolTipType"_s, ToolTipShape::Standard));
    button.SetToolTipBackColor(bag.Read(u"ttBackColor"_s, tipFace));
    button.SetToolTipForeColor(bag.Read(u"ttForeColor"_s, tipText));
    button.SetFont(bag.ReadOptional<FontFace>(u"Font"_s));
    button.SetButtonType(ReadEnum(bag, u"ButtonType"_s, ButtonKind::Push));
    button.SetValue(bag.Read(u"Value"_s, false));
}

} // namespace tressel
