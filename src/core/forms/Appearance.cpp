// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "forms/Appearance.h"

#include "base/Steps.h"
#include "forms/OptionForm.h"
#include "settings/Settings.h"

#include <array>

namespace tressel {

namespace {

/// The look of each entry of optButtonStyle. Kept: the two orders differ.
constexpr std::array<int, 9> styleOfEntry{0, 2, 10, 5, 4, 8, 9, 7, 3};

} // namespace

ButtonStyle StyleOfEntry(int entry)
{
    return static_cast<ButtonStyle>(styleOfEntry.at(static_cast<size_t>(entry)));
}

void GiveSelectedStyle(const OptionForm &options, const QList<IsButton *> &buttons)
{
    const int entry = options.optButtonStyle.Selected();
    if (entry < 0)
        return;
    for (IsButton *button : buttons)
        button->SetStyle(StyleOfEntry(entry));
}

SideBarColours ColoursOf(OptionForm &options, Palette palette)
{
    const int first = palette == Palette::First ? 0 : OptionForm::secondPalette;
    SideBarColours colours;
    for (int slot = 0; slot < static_cast<int>(colours.size()); ++slot)
        colours[static_cast<size_t>(slot)] = options.Swatch(first + slot).BackColor();
    return colours;
}

void UsePalette(OptionForm &options, Palette palette, SideBar &bar, Settings &settings)
{
    bar.SetColors(ColoursOf(options, palette));
    settings.Write(keys::CustomColor, QString::number(static_cast<int>(palette)));
}

FontChoice ReadFont(const Settings &settings, Steps &steps, const FontKeys &font, FontChoice choice)
{
    const auto readFamily = [&] { choice.family = settings.ReadText(font.family); };
    const auto readBold = [&] { choice.bold = settings.ReadBoolean(font.bold); };
    // The two fonts are read in orders of their own.
    const bool isFamilyFirst = &font == &titleKeys;
    if (isFamilyFirst)
        steps.Do(readFamily);
    else
        steps.Do(readBold);
    steps.Do([&] { choice.points = ToNumber(settings.Read(font.size)); });
    if (isFamilyFirst)
        steps.Do(readBold);
    else
        steps.Do(readFamily);
    steps.Do([&] { choice.italic = settings.ReadBoolean(font.italic); });
    steps.Do([&] { choice.underline = settings.ReadBoolean(font.underline); });
    steps.Do([&] { choice.colour = static_cast<quint32>(settings.ReadInt32(font.colour)); });
    return choice;
}

void WriteFont(Settings &settings, const FontKeys &font, const FontChoice &choice)
{
    settings.Write(font.family, choice.family);
    settings.Write(font.size, QString::number(choice.points));
    settings.WriteBoolean(font.bold, choice.bold);
    settings.WriteBoolean(font.italic, choice.italic);
    settings.WriteBoolean(font.underline, choice.underline);
    settings.Write(font.colour, QString::number(choice.colour));
}

} // namespace tressel
