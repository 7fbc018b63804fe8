// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "widgets/SystemColours.h"

#include "widgets/looks/Canvas.h"

#include <algorithm>
#include <array>
#include <cmath>

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

constexpr double leastContrast = 3;

/// How bright a colour is to the eye, from 0 to 1: the relative luminance of the Web Content Accessibility
/// Guidelines 2.1.
double LuminanceOf(const QColor &colour)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF())
        + 0.0722 * linear(colour.blueF());
}

/// The grey of disabled text. Some desktops have one that is hardly seen on their buttons; it is brought as
/// much nearer to the text's own colour as reading needs.
QColor ReadableGrey(const QPalette &palette)
{
    const QColor grey = palette.color(QPalette::Disabled, QPalette::ButtonText);
    const QColor text = palette.color(QPalette::Active, QPalette::ButtonText);
    const QColor face = palette.color(QPalette::Active, QPalette::Button);
    constexpr int steps = 16;
    for (int step = 0; step < steps; ++step) {
        const QColor mixed = step == 0 ? grey : MixColor(grey, text, double(step) / steps);
        if (ContrastOf(mixed, face) >= leastContrast)
            return mixed;
    }
    return grey;
}

} // namespace

double ContrastOf(const QColor &a, const QColor &b)
{
    const auto [darker, lighter] = std::minmax({LuminanceOf(a), LuminanceOf(b)});
    return (lighter + 0.05) / (darker + 0.05);
}

QColor ColourOf(SystemColour colour, const QPalette &palette)
{
    const auto number = static_cast<std::size_t>(colour);
    if (number >= places.size())
        return {};
    if (colour == SystemColour::GrayText)
        return ReadableGrey(palette);
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
