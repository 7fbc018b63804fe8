// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "widgets/SideBarView.h"

#include "controls/SideBar.h"

namespace tressel {

QList<int> SideBarView::Shown() const
{
    QList<int> shown;
    for (const SideBarEntryView &entry : entries) {
        if (entry.shown)
            shown.append(entry.number);
    }
    return shown;
}

SideBarView ViewOf(const SideBar &bar)
{
    SideBarView view;
    const bool hasIcons = !bar.ImageList().isEmpty();
    for (int number = 1; number <= bar.Items().Count(); ++number) {
        const SideBarItem &item = bar.Items()[number];
        view.entries.append({number, item.Caption(), hasIcons ? item.Image() : 0, item.IsVisible()});
    }
    view.rows = bar.RowEntries();
    view.rest = bar.RestEntries();
    view.open = bar.SelectedItem() ? bar.SelectedItem()->Index() : 0;
    view.mirrored = bar.RightToLeft();
    view.showMenu = bar.ShowMenu();
    view.canScrollUp = bar.CanScrollUp();
    view.canScrollDown = bar.CanScrollDown();
    view.enabled = bar.IsEnabled();
    return view;
}

} // namespace tressel
