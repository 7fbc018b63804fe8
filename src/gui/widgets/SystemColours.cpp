// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "widgets/SystemColours.h"

#include "machine/PlainColours.h"
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

/// The first colour on the way to `end` that is told apart from all grounds; an invalid one if none is.
QColor OnTheWay(const QColor &colour, const QColor &end, std::initializer_list<QColor> grounds, double least)
{
    constexpr int steps = 32;
    for (int step = 0; step <= steps; ++step) {
        const QColor mixed = MixColor(colour, end, double(step) / steps);
        if (std::all_of(grounds.begin(), grounds.end(),
                        [&](const QColor &ground) { return ContrastOf(mixed, ground) >= least; }))
            return mixed;
    }
    return {};
}

} // namespace

double ContrastOf(const QColor &a, const QColor &b)
{
    const auto [darker, lighter] = std::minmax({LuminanceOf(a), LuminanceOf(b)});
    return (lighter + 0.05) / (darker + 0.05);
}

QColor WithContrast(const QColor &colour, std::initializer_list<QColor> grounds, double least)
{
    const QColor darker = OnTheWay(colour, Qt::black, grounds, least);
    const QColor found = darker.isValid() ? darker : OnTheWay(colour, Qt::white, grounds, least);
    return found.isValid() ? found : colour;
}

QColor LighterBy(const QColor &colour, const QColor &ground, double least)
{
    const QColor found = OnTheWay(colour, Qt::white, {ground}, least);
    return found.isValid() ? found : colour;
}

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
    return ToColour(number);
}

} // namespace tressel
