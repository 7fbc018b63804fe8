// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "base/Numbers.h"
#include "widgets/FontFaces.h"
#include "widgets/IsButtonWidget.h"

namespace tressel {

QString IsButtonWidget::Version() const
{
    return IsButton::Version();
}

QString IsButtonWidget::Icon() const
{
    return control->Icon().name;
}

void IsButtonWidget::SetIcon(const QString &name)
{
    control->SetIcon(Picture(name));
}

int IsButtonWidget::IconSize() const
{
    return control->IconSize();
}

void IsButtonWidget::SetIconSize(int pixels)
{
    control->Owner().Dispatch([&] { control->SetIconSize(ToInt16(static_cast<double>(pixels))); });
}

bool IsButtonWidget::Enabled() const
{
    return control->Enabled();
}

void IsButtonWidget::SetEnabled(bool isEnabled)
{
    control->SetEnabled(isEnabled);
}

QFont IsButtonWidget::Font() const
{
    return control->Font() ? ToFont(*control->Font()) : font();
}

void IsButtonWidget::SetFont(const QFont &newFont)
{
    control->SetFont(ToFontFace(newFont));
}

int IsButtonWidget::Style() const
{
    return static_cast<int>(control->Style());
}

void IsButtonWidget::SetStyle(int style)
{
    control->SetStyle(static_cast<tressel::ButtonStyle>(style));
}

QString IsButtonWidget::Caption() const
{
    return control->Caption();
}

void IsButtonWidget::SetCaption(const QString &text)
{
    control->SetCaption(text);
}

int IsButtonWidget::IconAlign() const
{
    return static_cast<int>(control->IconAlign());
}

void IsButtonWidget::SetIconAlign(int place)
{
    control->SetIconAlign(static_cast<tressel::IconPlace>(place));
}

int IsButtonWidget::CaptionAlign() const
{
    return static_cast<int>(control->CaptionAlign());
}

void IsButtonWidget::SetCaptionAlign(int place)
{
    control->SetCaptionAlign(static_cast<tressel::CaptionPlace>(place));
}

int IsButtonWidget::NonThemeStyle() const
{
    return static_cast<int>(control->NonThemeStyle());
}

void IsButtonWidget::SetNonThemeStyle(int style)
{
    control->SetNonThemeStyle(static_cast<tressel::ButtonStyle>(style));
}

bool IsButtonWidget::ShowFocus() const
{
    return control->ShowFocus();
}

void IsButtonWidget::SetShowFocus(bool shows)
{
    control->SetShowFocus(shows);
}

bool IsButtonWidget::UseCustomColors() const
{
    return control->UseCustomColors();
}

void IsButtonWidget::SetUseCustomColors(bool uses)
{
    control->SetUseCustomColors(uses);
}

uint IsButtonWidget::BackColor() const
{
    return control->BackColor();
}

void IsButtonWidget::SetBackColor(uint colour)
{
    control->SetBackColor(colour);
}

uint IsButtonWidget::HighlightColor() const
{
    return control->HighlightColor();
}

void IsButtonWidget::SetHighlightColor(uint colour)
{
    control->SetHighlightColor(colour);
}

uint IsButtonWidget::FontColor() const
{
    return control->FontColor();
}

void IsButtonWidget::SetFontColor(uint colour)
{
    control->SetFontColor(colour);
}

uint IsButtonWidget::FontHighlightColor() const
{
    return control->FontHighlightColor();
}

void IsButtonWidget::SetFontHighlightColor(uint colour)
{
    control->SetFontHighlightColor(colour);
}

QString IsButtonWidget::ToolTip() const
{
    return control->ToolTip();
}

void IsButtonWidget::SetToolTip(const QString &text)
{
    control->SetToolTip(text);
}

QString IsButtonWidget::ToolTipTitle() const
{
    return control->ToolTipTitle();
}

void IsButtonWidget::SetToolTipTitle(const QString &text)
{
    control->SetToolTipTitle(text);
}

int IsButtonWidget::ToolTipIcon() const
{
    return static_cast<int>(control->ToolTipIcon());
}

void IsButtonWidget::SetToolTipIcon(int icon)
{
    control->SetToolTipIcon(static_cast<tressel::ToolTipIconKind>(icon));
}

int IsButtonWidget::ToolTipType() const
{
    return static_cast<int>(control->ToolTipType());
}

void IsButtonWidget::SetToolTipType(int shape)
{
    control->SetToolTipType(static_cast<tressel::ToolTipShape>(shape));
}

uint IsButtonWidget::ToolTipBackColor() const
{
    return control->ToolTipBackColor();
}

void IsButtonWidget::SetToolTipBackColor(uint colour)
{
    control->SetToolTipBackColor(colour);
}

uint IsButtonWidget::ToolTipForeColor() const
{
    return control->ToolTipForeColor();
}

void IsButtonWidget::SetToolTipForeColor(uint colour)
{
    control->SetToolTipForeColor(colour);
}

int IsButtonWidget::ButtonType() const
{
    return static_cast<int>(control->ButtonType());
}

void IsButtonWidget::SetButtonType(int kind)
{
    control->SetButtonType(static_cast<tressel::ButtonKind>(kind));
}

bool IsButtonWidget::Value() const
{
    return control->Value();
}

void IsButtonWidget::SetValue(bool isPressed)
{
    control->SetValue(isPressed);
}

} // namespace tressel
