// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/FontFace.h"
#include "controls/Colours.h"
#include "controls/Picture.h"

#include <QString>

#include <cstdint>
#include <optional>
#include <utility>

namespace tressel {

/// The looks of a button. The property may hold any number; one without a name draws no face.
enum class ButtonStyle : std::int32_t {
    Classic = 0,
    HotTrack = 1,
    Flat = 2,
    DoubleLine = 3,
    Highlight = 4,
    BlueRounded = 5,
    SystemTheme = 6,
    Plastik = 7,
    Mandrake = 8,
    Keramik = 9,
    Pill = 10,
};

enum class IconPlace : std::int32_t { Centre = 0, Left = 1, Right = 2, Top = 3, Bottom = 4 };
enum class CaptionPlace : std::int32_t { Centre = 0, Left = 1, Right = 2, Top = 3, Bottom = 4 };
enum class ToolTipIconKind : std::int32_t { None = 0, Information = 1, Warning = 2, Error = 3 };
enum class ToolTipShape : std::int32_t { Standard = 0, Balloon = 1 };
enum class ButtonKind : std::int32_t { Push = 0, Check = 1 };

/// What a button's look, behaviour and tool tip are made of. The values here are the one home of the
/// defaults: those of a stored design that leaves a property out, but for the caption.
struct IsButtonProperties {
    ButtonStyle style = ButtonStyle::DoubleLine;
    QString caption; ///< null: the control's name, which is a new control's
    Picture icon;
    IconPlace iconAlign = IconPlace::Left;
    std::int16_t iconSize = 16; ///< pixels
    CaptionPlace captionAlign = CaptionPlace::Centre;
    ButtonStyle nonThemeStyle =
        ButtonStyle::BlueRounded; ///< takes the place of SystemTheme where that can't draw
    bool showFocus = false;
    bool useCustomColors = false; ///< whether the four colours below apply
    ColourNumber backColor = NumberOf(SystemColour::ButtonFace);
    ColourNumber highlightColor = NumberOf(SystemColour::Highlight); ///< face, hovered and pressed
    ColourNumber fontColor = NumberOf(SystemColour::ButtonText);
    ColourNumber fontHighlightColor = NumberOf(SystemColour::ButtonText); ///< text, hovered and pressed
    QString toolTip;
    QString toolTipTitle;
    ToolTipIconKind toolTipIcon = ToolTipIconKind::None;
    ToolTipShape toolTipType = ToolTipShape::Standard;
    ColourNumber toolTipBackColor = NumberOf(SystemColour::ToolTipFace); ///< 0: the desktop's own
    ColourNumber toolTipForeColor = NumberOf(SystemColour::ToolTipText); ///< 0: the desktop's own
    std::optional<FontFace> font; ///< nothing: the container's
    ButtonKind buttonType = ButtonKind::Push;
    bool value = false; ///< of a check button

    /// What the buttons of this program's forms start with.
    static IsButtonProperties OnForms(QString caption)
    {
        IsButtonProperties properties;
        properties.style = ButtonStyle::BlueRounded;
        properties.caption = std::move(caption);
        properties.iconSize = 32;
        properties.iconAlign = IconPlace::Top;
        return properties;
    }
};

} // namespace tressel
