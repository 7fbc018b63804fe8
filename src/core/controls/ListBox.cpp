// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "controls/ListBox.h"

namespace tressel {

void ListBox::UserActivates(int index)
{
    if (index < 0 || index >= ListCount())
        return;
    if (ListIndex() != index)
        UserSelects(index);
    UserAct([this] { DoubleClick.Raise(); });
}

void ListBox::UserPointsAt(int row)
{
    UserAct([&] { MouseMove.Raise(row >= 0 && row < ListCount() ? row : -1); });
}

} // namespace tressel
