// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/ListItemTip.h"

#include "controls/ListBox.h"

namespace tressel {

void ShowListItemTip(ListBox &list, int row)
{
    const bool isEntry = row >= 0 && row < list.ListCount();
    list.SetToolTip(isEntry ? u' ' + list.Item(row) + u' ' : QString());
}

} // namespace tressel
