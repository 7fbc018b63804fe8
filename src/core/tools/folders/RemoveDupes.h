// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/ComboBox.h"
#include "controls/ListBox.h"

namespace tressel {

/// Takes out every entry that equals an earlier one without regard to case; the order of the rest stays.
/// Quadratic, for short lists. Counts in 16 bits and fails with 6 beyond them.
void RemoveDupes(ItemList &list);

/// The same for the recent paths of the listing page, the files to erase, and the files to split.
inline void KillCBDupes(ComboBox &combo)
{
    RemoveDupes(combo);
}
inline void KillLBDupes(ListBox &list)
{
    RemoveDupes(list);
}
inline void KillLBDupesCBO(ComboBox &combo)
{
    RemoveDupes(combo);
}

} // namespace tressel
