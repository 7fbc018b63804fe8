// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "widgets/SideBarLook.h"

#include "widgets/SystemColours.h"

#include <QFontDatabase>
#include <QFontMetrics>

#include <algorithm>

namespace tressel {

namespace {

QFont FontOf(const FontFace &choice, QFont font)
{
    // With a larger one header and bar leave a page no room in a window of the usual size.
    constexpr double largest = 36;
    if (QFontDatabase::hasFamily(choice.family))
        font.setFamily(choice.family);
    if (choice.points > 0)
        font.setPointSizeF(std::min(choice.points, largest));
    font.setBold(choice.bold);
    font.setItalic(choice.italic);
    font.setUnderline(choice.underline);
    font.setStrikeOut(choice.strikeout);
    return font;
}

/// The desktop's own colours, in the order of SideBarColour.
std::array<QColor, 11> DesktopColours(const QPalette &desktop)
{
    const QColor window = desktop.color(QPalette::Window);
    const QColor text = desktop.color(QPalette::WindowText);
    const QColor base = desktop.color(QPalette::Base);
    const QColor highlight = desktop.color(QPalette::Highlight);
    const QColor header = Mixed(window, text, 0.06);
    return {header,
            Mixed(window, text, 0.45),
            Mixed(header, Qt::white, desktop.color(QPalette::Window).lightnessF() > 0.5 ? 0.6 : 0.1),
            Mixed(window, text, 0.35),
            Mixed(base, highlight, 0.28),
            highlight,
            base,
            window,
            Mixed(base, text, 0.4),
            Mixed(base, highlight, 0.45),
            Mixed(base, highlight, 0.18)};
}

/// What OutlookColors shows before the program gave a palette, in the order of SideBarColour.
constexpr std::array<QRgb, 11> blue{0xC9DDF4, 0x7B9CC4, 0xF3F8FE, 0x7391B5, 0xCBE1F9, 0x2B6CB8,
                                    0xFFFFFF, 0xE4EEFA, 0x9DB6D3, 0xA6CAF1, 0xDCEBFB};

} // namespace

QColor Mixed(const QColor &ground, const QColor &over, double share)
{
    const auto mix = [share](double from, double to) {
        return static_cast<float>(from + (to - from) * share);
    };
    return QColor::fromRgbF(mix(ground.redF(), over.redF()), mix(ground.greenF(), over.greenF()),
                            mix(ground.blueF(), over.blueF()));
}

SideBarLook::SideBarLook(const SideBar &bar, const QPalette &desktop, const QFont &base)
    : titleFont(FontOf(bar.TitleFont(), base))
    , captionFont(FontOf(bar.CaptionFont(), base))
    , title(TranslateColour(bar.TitleColor(), desktop))
    , caption(TranslateColour(bar.CaptionColor(), desktop))
{
    const auto read = [&](ColourNumber number) { return TranslateColour(number, desktop); };
    if (!bar.OutlookColors())
        colours = DesktopColours(desktop);
    else if (bar.Colors())
        std::ranges::transform(*bar.Colors(), colours.begin(), read);
    else
        std::ranges::transform(blue, colours.begin(), [](QRgb rgb) { return QColor(rgb); });
}

SideBarHeights SideBarLook::Heights() const
{
    return {std::max(QFontMetrics(captionFont).height() + 12, iconSize + 12),
            std::max(QFontMetrics(titleFont).height() + 8, iconSize + 8)};
}

QPalette SideBarLook::PagePalette(const QColor &ground, const QPalette &desktop)
{
    QPalette palette(Mixed(ground, Qt::black, 0.03), ground);
    for (const auto role : {QPalette::Highlight, QPalette::HighlightedText}) {
        for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
            palette.setColor(group, role, desktop.color(group, role));
    }
    return palette;
}

QColor SideBarLook::Readable(const QColor &wanted, const QColor &ground)
{
    // The least that WCAG 2.1 lets pass for large text.
    constexpr double legible = 3.0;
    if (ContrastOf(wanted, ground) >= legible)
        return wanted;
    return ContrastOf(Qt::black, ground) > ContrastOf(Qt::white, ground) ? Qt::black : Qt::white;
}

} // namespace tressel
