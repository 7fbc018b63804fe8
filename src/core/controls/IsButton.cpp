// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "controls/IsButton.h"

#include "base/Twips.h"
#include "machine/Shell.h"

#include <algorithm>
#include <utility>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

constexpr int textInset = 4;

int FlagsOf(CaptionPlace place)
{
    switch (place) {
    case CaptionPlace::Left:
        return 36;
    case CaptionPlace::Right:
        return 38;
    case CaptionPlace::Top:
        return 33;
    case CaptionPlace::Bottom:
        return 41;
    case CaptionPlace::Centre:
        break;
    }
    return 37;
}

} // namespace

IsButton::IsButton(Form &form, const QString &name, QString caption)
    : IsButton(form, name, IsButtonProperties::OnForms(std::move(caption)))
{
}

IsButton::IsButton(Form &form, const QString &name, IsButtonProperties initial)
    : Captioned(form, name)
    , own(std::move(initial))
{
    if (own.caption.isNull())
        own.caption = name;
    Resize();
}

QString IsButton::Version()
{
    return u"3.0"_s;
}

template <typename Kind> void IsButton::Write(Kind &property, const Kind &written, const QString &name)
{
    property = written;
    PropertyChanged.Raise(name);
    NoteChanged();
}

/// For what can change the shape and the text box.
template <typename Kind> void IsButton::WriteShape(Kind &property, const Kind &written, const QString &name)
{
    Write(property, written, name);
    Resize();
}

void IsButton::WriteColour(ColourNumber &colour, ColourNumber written, const QString &name)
{
    untranslated.removeOne(&colour);
    Write(colour, written, name);
}

void IsButton::SetStyle(ButtonStyle style)
{
    WriteShape(own.style, style, u"Style"_s);
}

void IsButton::SetCaption(const QString &text)
{
    WriteShape(own.caption, text, u"Caption"_s);
}

void IsButton::SetIcon(const Picture &picture)
{
    WriteShape(own.icon, picture, u"Icon"_s);
}

void IsButton::SetIconAlign(IconPlace place)
{
    WriteShape(own.iconAlign, place, u"IconAlign"_s);
}

void IsButton::SetIconSize(std::int16_t pixels)
{
    WriteShape(own.iconSize, pixels, u"IconSize"_s);
}

void IsButton::SetCaptionAlign(CaptionPlace place)
{
    WriteShape(own.captionAlign, place, u"CaptionAlign"_s);
}

void IsButton::SetNonThemeStyle(ButtonStyle style)
{
    WriteShape(own.nonThemeStyle, style, u"NonThemeStyle"_s);
}

bool IsButton::Enabled()
{
    NoteChanged();
    return IsEnabled();
}

void IsButton::SetEnabled(bool isEnabled)
{
    state = LookState::Normal;
    Control::SetEnabled(isEnabled);
    PropertyChanged.Raise(u"Enabled"_s);
}

void IsButton::SetShowFocus(bool shows)
{
    Write(own.showFocus, shows, u"ShowFocus"_s);
}

void IsButton::SetUseCustomColors(bool uses)
{
    Write(own.useCustomColors, uses, u"UseCustomColors"_s);
}

void IsButton::SetBackColor(ColourNumber colour)
{
    WriteColour(own.backColor, colour, u"BackColor"_s);
}

void IsButton::SetHighlightColor(ColourNumber colour)
{
    WriteColour(own.highlightColor, colour, u"HighlightColor"_s);
}

void IsButton::SetFontColor(ColourNumber colour)
{
    WriteColour(own.fontColor, colour, u"FontColor"_s);
}

void IsButton::SetFontHighlightColor(ColourNumber colour)
{
    WriteColour(own.fontHighlightColor, colour, u"FontHighlightColor"_s);
}

void IsButton::SetToolTip(const QString &text)
{
    Write(own.toolTip, text, u"ToolTip"_s);
}

void IsButton::SetToolTipTitle(const QString &text)
{
    Write(own.toolTipTitle, text, u"ToolTipTitle"_s);
}

void IsButton::SetToolTipIcon(ToolTipIconKind icon)
{
    Write(own.toolTipIcon, icon, u"ToolTipIcon"_s);
}

void IsButton::SetToolTipType(ToolTipShape shape)
{
    Write(own.toolTipType, shape, u"ToolTipType"_s);
}

void IsButton::SetToolTipBackColor(ColourNumber colour)
{
    Write(own.toolTipBackColor, colour, u"ToolTipBackColor"_s);
}

void IsButton::SetToolTipForeColor(ColourNumber colour)
{
    Write(own.toolTipForeColor, colour, u"ToolTipForeColor"_s);
}

void IsButton::SetFont(const std::optional<FontFace> &font)
{
    Write(own.font, font, u"Font"_s);
}

void IsButton::SetButtonType(ButtonKind kind)
{
    Write(own.buttonType, kind, u"ButtonType"_s);
}

void IsButton::SetValue(bool isPressed)
{
    Write(own.value, isPressed, u"Value"_s);
}

void IsButton::PlaceIcon(const Picture &picture)
{
    SetIcon(picture);
    SetCaptionAlign(CaptionPlace::Bottom);
}

void IsButton::SetWidth(int twips)
{
    Control::SetWidth(twips);
    Resize();
}

void IsButton::SetHeight(int twips)
{
    Control::SetHeight(twips);
    Resize();
}

void IsButton::About() const
{
    if (aboutWindow)
        aboutWindow();
}

bool IsButton::OpenLink(Shell &shell, const QString &url)
{
    return shell.Open(url, {});
}

void IsButton::SetDesignTime(bool designs)
{
    designTime = designs;
    NoteChanged();
}

LookState IsButton::ShownState() const
{
    LookState shown = state;
    if (designTime && own.style != ButtonStyle::BlueRounded)
        shown = LookState::Hover;
    if (own.buttonType == ButtonKind::Check && own.value)
        shown = LookState::Pressed;
    if (!IsEnabled())
        shown = LookState::Disabled;
    return shown;
}

QRect IsButton::Bounds() const
{
    return QRect(0, 0, Width() / twipsPerPixel, Height() / twipsPerPixel);
}

QRect IsButton::TextBox() const
{
    return Bounds().adjusted(textInset, textInset, -textInset, -textInset);
}

void IsButton::Resize()
{
    Control::SetWidth(std::max(Width(), leastSize));
    Control::SetHeight(std::max(Height(), leastSize));
    textDrawFlags = FlagsOf(own.captionAlign);
    NoteChanged();
}

void IsButton::ShowState(LookState newState)
{
    state = newState;
    NoteChanged();
}

void IsButton::PressMouse(MouseButton button)
{
    if (button == MouseButton::Left)
        ShowState(LookState::Pressed);
}

void IsButton::ReleaseMouse(MouseButton button)
{
    lastButton = button;
    if (button != MouseButton::Left)
        return;
    const bool staysPressed = own.buttonType == ButtonKind::Check && !own.value;
    ShowState(staysPressed ? LookState::Pressed : LookState::Hover);
}

void IsButton::EndClick()
{
    if (lastButton != MouseButton::Left)
        return;
    if (own.buttonType == ButtonKind::Check) {
        own.value = !own.value;
        ShowState(LookState::Hover);
    }
    Click.Raise();
}

void IsButton::UserClicks()
{
    UserAct([this] {
        PressMouse(MouseButton::Left);
        ReleaseMouse(MouseButton::Left);
        EndClick();
    });
}

void IsButton::UserPressesMouse(MouseButton button)
{
    UserAct([&] { PressMouse(button); });
}

void IsButton::UserReleasesMouse(MouseButton button)
{
    UserAct([&] { ReleaseMouse(button); });
}

void IsButton::UserEndsClick()
{
    UserAct([this] { EndClick(); });
}

void IsButton::UserDoubleClicks(MouseButton button)
{
    UserAct([&] { PressMouse(button); });
}

void IsButton::UserPressesSpace()
{
    UserAct([this] { PressMouse(MouseButton::Left); });
}

void IsButton::UserReleasesSpace()
{
    UserAct([this] { ReleaseMouse(MouseButton::Left); });
}

void IsButton::UserTypesSpace()
{
    // Kept: once any left click or space key was released, a space key raises Click twice.
    UserAct([this] {
        Click.Raise();
        EndClick();
    });
}

void IsButton::UserMovesMouse()
{
    if (hovered || designTime)
        return;
    UserAct([this] {
        hovered = true;
        ShowState(LookState::Hover);
        MouseEnter.Raise();
    });
}

void IsButton::UserLeaves()
{
    // A button that was disabled under the pointer must notice too, or it would never see it come again.
    const bool wasHovered = std::exchange(hovered, false);
    ShowState(LookState::Normal);
    if (wasHovered)
        Owner().Dispatch([this] { MouseLeave.Raise(); });
}

void IsButton::TakeFocus(bool hasFocus)
{
    focused = hasFocus;
    NoteChanged();
}

void IsButton::FaceShown()
{
    // A text that was stored for the button itself has no other home and stays where the form has none.
    if (!Control::ToolTip().isEmpty()) {
        own.toolTip = Control::ToolTip();
        Control::SetToolTip({});
    }
    NoteChanged();
}

void IsButton::FaceHidden()
{
    Control::SetToolTip(own.toolTip);
}

void IsButton::TranslateFirstColours(const std::function<ColourNumber(ColourNumber)> &translate)
{
    for (ColourNumber *colour : std::exchange(untranslated, {}))
        *colour = translate(*colour);
}

void IsButton::TakeSize(int widthTwips, int heightTwips)
{
    SetWidth(widthTwips);
    SetHeight(heightTwips);
}

void IsButton::GiveUpTheme()
{
    // The theme in its own place would be given up again at each repaint.
    if (own.style == ButtonStyle::SystemTheme && own.nonThemeStyle != ButtonStyle::SystemTheme)
        SetStyle(own.nonThemeStyle);
}

} // namespace tressel
