// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/IsButtonProperties.h"
#include "controls/SideBar.h"
#include "settings/Keys.h"

#include <QList>

namespace tressel {

class IsButton;
class OptionForm;
class Settings;
class Steps;

// What the two windows share of their look: the buttons' styles, the side bar's palettes and its fonts.

/// The look that an entry of optButtonStyle stands for.
ButtonStyle StyleOfEntry(int entry);
/// Gives the buttons, one after the other, the look of the selected entry; nothing happens if none is.
void GiveSelectedStyle(const OptionForm &options, const QList<IsButton *> &buttons);

/// The two palettes of swatches that the user chooses from.
enum class Palette { First = 1, Second = 2 };

/// The colours of a palette's eleven swatches, in the order of SideBar::SetColors.
SideBarColours ColoursOf(OptionForm &options, Palette palette);
/// Gives the side bar that palette and stores its number as the one in use.
void UsePalette(OptionForm &options, Palette palette, SideBar &bar, Settings &settings);

/// The keys of one of the side bar's two fonts.
struct FontKeys {
    const KeyEntry &family;
    const KeyEntry &size;
    const KeyEntry &bold;
    const KeyEntry &italic;
    const KeyEntry &underline;
    const KeyEntry &colour;
};

inline constexpr FontKeys titleKeys{keys::TitleBarFont,   keys::TitleBarSize,      keys::TitleBarBold,
                                    keys::TitleBarItalic, keys::TitleBarUnderline, keys::TitleBarColor};
inline constexpr FontKeys captionKeys{keys::TitleCapFont,   keys::TitleCapSize,      keys::TitleCapBold,
                                      keys::TitleCapItalic, keys::TitleCapUnderline, keys::TitleCapTextCol};

/// What is stored of a font; each step that fails leaves that part as `choice` has it.
FontChoice ReadFont(const Settings &settings, Steps &steps, const FontKeys &font, FontChoice choice);
void WriteFont(Settings &settings, const FontKeys &font, const FontChoice &choice);

} // namespace tressel
