// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "widgets/SystemColours.h"

#include <array>

namespace tressel {

namespace {

struct Place {
    QPalette::ColorGroup group;
    QPalette::ColorRole role;
};

/// By number, from the scroll bar's colour, 0, to the tool tip's text, 24.
constexpr std::array<Place, 25> places{{
    {QPalette::Active, QPalette::Mid},
    {QPalette::Active, QPalette::Window},
    {QPalette::Active, QPalette::Highlight},
    {QPalette::Inactive, QPalette::Mid},
    {QPalette::Active, QPalette::Window},
    {QPalette::Active, QPalette::Base},
    {QPalette::Active, QPalette::WindowText},
    {QPalette::Active, QPalette::WindowText},
    {QPalette::Active, QPalette::Text},
    {QPalette::Active, QPalette::HighlightedText},
    {QPalette::Active, QPalette::Window},
    {QPalette::Inactive, QPalette::Window},
    {QPalette::Active, QPalette::Mid},
    {QPalette::Active, QPalette::Highlight},
    {QPalette::Active, QPalette::HighlightedText},
    {QPalette::Active, QPalette::Button},
    {QPalette::Active, QPalette::Dark},
    {QPalette::Disabled, QPalette::ButtonText},
    {QPalette::Active, QPalette::ButtonText},
    {QPalette::Inactive, QPalette::WindowText},
    {QPalette::Active, QPalette::Light},
    {QPalette::Active, QPalette::Shadow},
    {QPalette::Active, QPalette::Midlight},
    {QPalette::Active, QPalette::ToolTipBase},
    {QPalette::Active, QPalette::ToolTipText},
}};

} // namespace

QColor ColourOf(SystemColour colour, const QPalette &palette)
{
    const auto number = static_cast<std::size_t>(colour);
    if (number >= places.size())
        return {};
    return palette.color(places[number].group, places[number].role);
}

QColor TranslateColour(ColourNumber number, const QPalette &palette)
{
    if (IsSystemColour(number))
        return ColourOf(static_cast<SystemColour>(number & ~systemColourMark), palette);
    if (number > 0xFFFFFF)
        return {};
    return QColor(static_cast<int>(number & 0xFF), static_cast<int>(number >> 8 & 0xFF),
                  static_cast<int>(number >> 16 & 0xFF));
}

} // namespace tressel
