// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QString>

namespace tressel {

class SideBar;

/// One entry as a face shows it.
struct SideBarEntryView {
    int number = 0;
    QString caption;
    int image = 0; ///< 0: no icon
    bool shown = true;

    /// The caption without the blanks around it, which would show as a misalignment.
    QString Words() const { return caption.trimmed(); }
};

/// What a face shows of a side bar: a copy, so that it can go on showing it while the control is being
/// rebuilt with its redraw off.
struct SideBarView {
    QList<SideBarEntryView> entries; ///< all, by number
    QList<int> rows; ///< the entries in rows, from the top
    QList<int> rest; ///< the entries in the bar of small icons
    int open = 0; ///< number of the open entry, 0 for none
    bool mirrored = false;
    bool showMenu = false;
    bool canScrollUp = false;
    bool canScrollDown = false;
    bool enabled = true;

    /// The entry of that number; fails nowhere: an empty one for a number outside.
    SideBarEntryView Entry(int number) const { return entries.value(number - 1); }
    SideBarEntryView OpenEntry() const { return Entry(open); }
    /// Shown entries in their order.
    QList<int> Shown() const;
};

SideBarView ViewOf(const SideBar &bar);

} // namespace tressel
