// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/Captioned.h"
#include "controls/IsButtonProperties.h"

#include <QRect>

namespace tressel {

class Shell;

/// The state in which a button is drawn.
enum class LookState { Normal = 1, Hover = 2, Pressed = 3, Disabled = 4 };

enum class MouseButton { None = 0, Left = 1, Right = 2, Middle = 4 };

/// The hand-drawn button of the whole interface: a push button or a check button, with eleven looks, an
/// icon and a tool tip of its own.
///
/// Two tool tips meet here. The form's (Control::ToolTip, the qualified name) is what any control has. The
/// button takes it over while it is shown, so that the desktop doesn't show a second one, and hands it
/// back when hidden.
class IsButton : public Captioned {
public:
    /// A button as the program's forms place them. Its caption is its name unless one is given.
    IsButton(Form &form, const QString &name, QString caption = {});
    /// A button with these properties.
    IsButton(Form &form, const QString &name, IsButtonProperties initial);

    /// In twips, either way.
    static constexpr int leastSize = 300;

    static QString Version();
    ButtonStyle Style() const { return own.style; }
    void SetStyle(ButtonStyle style);
    const QString &Caption() const override { return own.caption; }
    void SetCaption(const QString &text) override;
    const Picture &Icon() const { return own.icon; }
    void SetIcon(const Picture &picture);
    IconPlace IconAlign() const { return own.iconAlign; }
    void SetIconAlign(IconPlace place);
    /// In pixels.
    std::int16_t IconSize() const { return own.iconSize; }
    void SetIconSize(std::int16_t pixels);
    CaptionPlace CaptionAlign() const { return own.captionAlign; }
    void SetCaptionAlign(CaptionPlace place);
    ButtonStyle NonThemeStyle() const { return own.nonThemeStyle; }
    void SetNonThemeStyle(ButtonStyle style);
    /// Kept: asking repaints. IsEnabled() asks without.
    bool Enabled();
    void SetEnabled(bool isEnabled) override;
    bool ShowFocus() const { return own.showFocus; }
    void SetShowFocus(bool shows);
    bool UseCustomColors() const { return own.useCustomColors; }
    void SetUseCustomColors(bool uses);
    ColourNumber BackColor() const { return own.backColor; }
    void SetBackColor(ColourNumber colour);
    ColourNumber HighlightColor() const { return own.highlightColor; }
    void SetHighlightColor(ColourNumber colour);
    ColourNumber FontColor() const { return own.fontColor; }
    void SetFontColor(ColourNumber colour);
    ColourNumber FontHighlightColor() const { return own.fontHighlightColor; }
    void SetFontHighlightColor(ColourNumber colour);
    const QString &ToolTip() const override { return own.toolTip; }
    void SetToolTip(const QString &text) override;
    const QString &ToolTipTitle() const { return own.toolTipTitle; }
    void SetToolTipTitle(const QString &text);
    ToolTipIconKind ToolTipIcon() const { return own.toolTipIcon; }
    void SetToolTipIcon(ToolTipIconKind icon);
    ToolTipShape ToolTipType() const { return own.toolTipType; }
    void SetToolTipType(ToolTipShape shape);
    ColourNumber ToolTipBackColor() const { return own.toolTipBackColor; }
    void SetToolTipBackColor(ColourNumber colour);
    ColourNumber ToolTipForeColor() const { return own.toolTipForeColor; }
    void SetToolTipForeColor(ColourNumber colour);
    /// Nothing stands for the container's font.
    const std::optional<FontFace> &Font() const { return own.font; }
    void SetFont(const std::optional<FontFace> &font);
    ButtonKind ButtonType() const { return own.buttonType; }
    void SetButtonType(ButtonKind kind);
    bool Value() const { return own.value; }
    void SetValue(bool isPressed);

    /// Gives an icon and sets the caption below it, as the forms do for their buttons with icons.
    void PlaceIcon(const Picture &picture);

    /// In twips; below 300 it becomes 300.
    void SetWidth(int twips) override;
    void SetHeight(int twips) override;

    Event<> Click;
    Event<> MouseEnter;
    Event<> MouseLeave;
    /// A property was written; tells its name to whoever stores the design.
    Event<const QString &> PropertyChanged;

    /// A full repaint.
    void Refresh() { NoteChanged(); }
    /// Opens the window that tells the control's name and version, if there is a face to do so.
    void About() const;
    /// Opens an address with the program that the desktop knows for it. False if there is none.
    static bool OpenLink(Shell &shell, const QString &url);

    /// True while a form is being designed: any look but BlueRounded then shows itself as hovered.
    bool IsDesignTime() const { return designTime; }
    void SetDesignTime(bool designs);

    /// The state to draw: the one that the mouse and the keys made, unless the design, a pressed check
    /// button or, last of all, a disabled one says otherwise.
    LookState ShownState() const;
    bool HasFocus() const { return focused; }
    bool IsHovered() const { return hovered; }
    /// The mouse button that was released last; a space key counts as the left one.
    MouseButton LastButton() const { return lastButton; }

    /// In pixels: the whole control, and the box in which the caption stands.
    QRect Bounds() const;
    QRect TextBox() const;
    /// How the caption stands in its box, as the bits of a text drawing call: 1 centred, 2 right,
    /// 4 vertically centred, 8 at the bottom, 32 on a single line.
    int TextDrawFlags() const { return textDrawFlags; }

    // For faces.

    /// A whole press and release by the left mouse button.
    void UserClicks();
    void UserPressesMouse(MouseButton button);
    void UserReleasesMouse(MouseButton button);
    /// The desktop's word that a press and its release belong together; comes after the release.
    void UserEndsClick();
    /// Comes in place of a press, for the second of two fast ones.
    void UserDoubleClicks(MouseButton button);
    void UserPressesSpace();
    void UserReleasesSpace();
    /// The character that a pressed space key types; comes between its press and its release.
    void UserTypesSpace();
    /// The pointer moved over the button. Only the first time since it came there means something.
    void UserMovesMouse();
    /// The pointer left, whether or not a mouse button is held.
    void UserLeaves();
    void TakeFocus(bool hasFocus);
    void FaceShown();
    void FaceHidden();
    /// Turns those of the four colours that were never written from system colours into plain ones, as the
    /// face's desktop has them. Only the first call does.
    void TranslateFirstColours(const std::function<ColourNumber(ColourNumber)> &translate);
    /// Takes the size over from the face, in twips.
    void TakeSize(int widthTwips, int heightTwips);
    /// The system can't draw its theme: gives the theme up for good, in favour of NonThemeStyle.
    void GiveUpTheme();
    /// What About() does: the face given last shows the window.
    void SetAboutWindow(std::function<void()> show) { aboutWindow = std::move(show); }

private:
    template <typename Kind> void Write(Kind &property, const Kind &written, const QString &name);
    template <typename Kind> void WriteShape(Kind &property, const Kind &written, const QString &name);
    void WriteColour(ColourNumber &colour, ColourNumber written, const QString &name);
    void Resize();
    void ShowState(LookState newState);
    void PressMouse(MouseButton button);
    void ReleaseMouse(MouseButton button);
    void EndClick();

    IsButtonProperties own;
    QList<ColourNumber *> untranslated{&own.backColor, &own.highlightColor, &own.fontColor,
                                       &own.fontHighlightColor};
    LookState state = LookState::Normal;
    bool focused = false;
    int textDrawFlags = 0;
    bool hovered = false;
    MouseButton lastButton = MouseButton::None;
    bool designTime = false;
    std::function<void()> aboutWindow;
};

} // namespace tressel
