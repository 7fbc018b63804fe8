// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

namespace tressel {

class ListBox;

/// Gives a list the text of the row under the pointer as its tool tip, so that a long path can be read whole;
/// below the last row, and for -1, the list has none.
void ShowListItemTip(ListBox &list, int row);

} // namespace tressel
