// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace tressel {

/// Whether one of the parts of a text between the delimiters is the item.
bool ItemExists(const QString &ListText, const QString &Item, const QString &Delimiter);

/// The text without the parts that are the item.
QString DeleteListItem(const QString &ListText, const QString &Item, const QString &Delimiter);

/// Keeps a list of items in one text, the latest first and no more than so many: puts an item at its head, or
/// takes it out. An empty item changes nothing.
QString UpdateDelimitedList(const QString &ListText, const QString &Item, const QString &Delimiter,
                            int MaxItems, bool Remove);

} // namespace tressel
