// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/folders/RemoveDupes.h"

#include "base/Numbers.h"

namespace tressel {

void RemoveDupes(ItemList &list)
{
    for (std::int16_t i = 0; i < list.ListCount() - 1; i = ToInt16(i + 1.0)) {
        std::int16_t j = ToInt16(i + 1.0);
        while (j <= list.ListCount() - 1) {
            if (list.Item(j).compare(list.Item(i), Qt::CaseInsensitive) == 0)
                list.RemoveItem(j);
            else
                j = ToInt16(j + 1.0);
        }
    }
}

} // namespace tressel
