// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/SideBar.h"
#include "widgets/SideBarLayout.h"

#include <QColor>
#include <QFont>
#include <QPalette>

#include <array>

namespace tressel {

/// Colours and fonts of a side bar, resolved for one desktop palette.
class SideBarLook {
public:
    SideBarLook() = default;
    SideBarLook(const SideBar &bar, const QPalette &desktop, const QFont &base);

    QColor Colour(SideBarColour slot) const { return colours[static_cast<std::size_t>(slot)]; }
    const QFont &TitleFont() const { return titleFont; }
    const QFont &CaptionFont() const { return captionFont; }
    /// The colour of text on a ground: the told one, or black or white where that couldn't be read.
    QColor TitleOn(const QColor &ground) const { return Readable(title, ground); }
    QColor CaptionOn(const QColor &ground) const { return Readable(caption, ground); }
    /// Heights that suit the fonts.
    SideBarHeights Heights() const;

    /// A palette for a page of that ground: dark on light or light on dark, whatever the desktop's is,
    /// with the desktop's own highlight.
    static QPalette PagePalette(const QColor &ground, const QPalette &desktop);

    static constexpr int iconSize = 20;

private:
    static QColor Readable(const QColor &wanted, const QColor &ground);

    std::array<QColor, 11> colours;
    QFont titleFont;
    QFont captionFont;
    QColor title;
    QColor caption;
};

/// `share` of `over` mixed into `ground`, 0 to 1.
QColor Mixed(const QColor &ground, const QColor &over, double share);

} // namespace tressel
