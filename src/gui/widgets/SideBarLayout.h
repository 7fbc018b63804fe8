// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "widgets/SideBarView.h"

#include <QHash>
#include <QRect>

namespace tressel {

/// A place in the side bar that the mouse can mean.
struct SideBarPart {
    enum class Kind { None, MenuButton, Grip, Entry, ScrollUp, ScrollDown };
    Kind kind = Kind::None;
    int number = 0; ///< of the entry

    bool operator==(const SideBarPart &) const = default;
};

/// Heights that follow from the fonts, in device-independent pixels.
struct SideBarHeights {
    int header = 32;
    int row = 28; ///< of a row, and of the bar of small icons
};

/// Where everything is in a side bar of a given size. From the top: header, page, grip, rows, and the
/// bar of small icons if there is an entry that no row shows.
///
/// The page has the first claim on the height. The bar is always there when it is needed, so that every
/// entry can be reached in a side bar of any size.
class SideBarLayout {
public:
    SideBarLayout() = default;
    SideBarLayout(const QSize &size, const SideBarHeights &heights, const SideBarView &view);

    /// How many rows there is room for beside a page of that height, in a side bar with so many shown
    /// entries.
    static int Room(int height, const SideBarHeights &heights, int shownCount, int pageHeight);
    /// The height that a page has before the rows get any: two thirds, or as much as is comfortable if that
    /// is less, and at least what it needs to be seen whole.
    static int EasyPage(int height, const SideBarHeights &heights, int wholePage);
    /// How many rows the user means who drags the upper edge of the rows to `y`.
    int RowsForEdgeAt(int y) const;

    QRect Header() const { return header; }
    /// Empty if there is no menu.
    QRect MenuButton() const { return menuButton; }
    QRect Page() const { return page; }
    QRect Grip() const { return grip; }
    /// All rows and the bar.
    QRect Strip() const { return strip; }
    /// Empty if every entry has a row.
    QRect Bar() const { return bar; }
    /// Empty if the rows can't be scrolled.
    QRect ScrollUp() const { return scrollUp; }
    QRect ScrollDown() const { return scrollDown; }
    /// The row or the small icon of an entry, empty for one that isn't shown.
    QRect Entry(int number) const { return entries.value(number); }
    SideBarPart At(const QPoint &point) const;

    static constexpr int border = 1;
    static constexpr int gripHeight = 7;

private:
    void PlaceBar(const SideBarView &view);
    void Mirror(int width);

    int rowHeight = 1;
    int shownCount = 0;
    QRect header;
    QRect menuButton;
    QRect page;
    QRect grip;
    QRect strip;
    QRect bar;
    QRect scrollUp;
    QRect scrollDown;
    QHash<int, QRect> entries;
};

} // namespace tressel
