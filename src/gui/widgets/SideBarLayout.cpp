// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "widgets/SideBarLayout.h"

#include <algorithm>
#include <cmath>

namespace tressel {

namespace {

/// A page of this height leaves any more to the rows.
constexpr int comfortablePage = 320;

/// What page and rows have between them.
int Shared(int height, const SideBarHeights &heights)
{
    return height - 2 * SideBarLayout::border - heights.header - SideBarLayout::gripHeight;
}

} // namespace

SideBarLayout::SideBarLayout(const QSize &size, const SideBarHeights &heights, const SideBarView &view)
    : rowHeight(heights.row)
    , shownCount(static_cast<int>(view.Shown().size()))
{
    const QRect inner = QRect(QPoint(), size).adjusted(border, border, -border, -border);
    header = QRect(inner.topLeft(), QSize(inner.width(), heights.header));
    if (view.showMenu)
        menuButton = QRect(header.right() + 1 - heights.header, header.top(), heights.header, heights.header);

    const bool hasBar = !view.rest.isEmpty();
    const int stripRows = static_cast<int>(view.rows.size()) + (hasBar ? 1 : 0);
    strip =
        QRect(inner.left(), inner.bottom() + 1 - stripRows * rowHeight, inner.width(), stripRows * rowHeight);
    grip = QRect(inner.left(), strip.top() - gripHeight, inner.width(), gripHeight);
    page = QRect(QPoint(inner.left(), header.bottom() + 1), QPoint(inner.right(), grip.top() - 1));

    QRect row(strip.topLeft(), QSize(strip.width(), rowHeight));
    for (const int number : view.rows) {
        entries.insert(number, row);
        row.translate(0, rowHeight);
    }
    if (hasBar) {
        bar = row;
        PlaceBar(view);
    }
    if (view.mirrored)
        Mirror(size.width());
}

void SideBarLayout::PlaceBar(const SideBarView &view)
{
    // So the first small icon stands below the icons of the rows.
    constexpr int indent = 4;
    int room = bar.width() - indent;
    if (view.canScrollUp || view.canScrollDown) {
        constexpr int scrollWidth = 22;
        scrollDown = QRect(bar.right() + 1 - scrollWidth, bar.top(), scrollWidth, rowHeight);
        scrollUp = scrollDown.translated(-scrollWidth, 0);
        room -= 2 * scrollWidth;
    }
    const auto count = static_cast<int>(view.rest.size());
    const int cell = std::min(rowHeight + 6, std::max(room, 0) / count);
    QRect place(bar.left() + indent, bar.top(), cell, rowHeight);
    for (const int number : view.rest) {
        entries.insert(number, place);
        place.translate(cell, 0);
    }
}

void SideBarLayout::Mirror(int width)
{
    const auto turn = [width](QRect &rect) {
        if (!rect.isEmpty())
            rect.moveLeft(width - rect.right() - 1);
    };
    for (QRect *rect : {&menuButton, &scrollUp, &scrollDown})
        turn(*rect);
    for (QRect &rect : entries)
        turn(rect);
}

int SideBarLayout::Room(int height, const SideBarHeights &heights, int shownCount, int pageHeight)
{
    const int stripRows = std::max(Shared(height, heights) - pageHeight, 0) / heights.row;
    return stripRows >= shownCount ? shownCount : std::max(stripRows - 1, 0);
}

int SideBarLayout::EasyPage(int height, const SideBarHeights &heights, int wholePage)
{
    return std::max(wholePage, std::min(Shared(height, heights) * 2 / 3, comfortablePage));
}

int SideBarLayout::RowsForEdgeAt(int y) const
{
    const double wanted = static_cast<double>(strip.bottom() + 1 - y) / rowHeight;
    const int stripRows = static_cast<int>(std::lround(wanted));
    return stripRows >= shownCount ? shownCount : std::max(stripRows - 1, 0);
}

SideBarPart SideBarLayout::At(const QPoint &point) const
{
    using Kind = SideBarPart::Kind;
    if (menuButton.contains(point))
        return {Kind::MenuButton};
    if (grip.contains(point))
        return {Kind::Grip};
    if (scrollUp.contains(point))
        return {Kind::ScrollUp};
    if (scrollDown.contains(point))
        return {Kind::ScrollDown};
    for (auto entry = entries.cbegin(); entry != entries.cend(); ++entry) {
        if (entry.value().contains(point))
            return {Kind::Entry, entry.key()};
    }
    return {};
}

} // namespace tressel
