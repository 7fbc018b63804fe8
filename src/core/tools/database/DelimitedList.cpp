// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/database/DelimitedList.h"

#include <QStringList>

namespace tressel {

namespace {

/// No parts for an empty text.
QStringList Split(const QString &text, const QString &delimiter)
{
    return text.isEmpty() ? QStringList() : text.split(delimiter);
}

} // namespace

bool ItemExists(const QString &ListText, const QString &Item, const QString &Delimiter)
{
    return Split(ListText, Delimiter).contains(Item);
}

QString DeleteListItem(const QString &ListText, const QString &Item, const QString &Delimiter)
{
    QStringList parts = Split(ListText, Delimiter);
    parts.removeAll(Item);
    return parts.join(Delimiter);
}

QString UpdateDelimitedList(const QString &ListText, const QString &Item, const QString &Delimiter,
                            int MaxItems, bool Remove)
{
    if (Item.isEmpty())
        return ListText;
    QString text = ListText;
    if (!ItemExists(text, Item, Delimiter)) {
        // Kept: an item that isn't there comes in also where it was to go.
        text = Item + Delimiter + text;
        if (text.endsWith(Delimiter))
            text.chop(Delimiter.size());
    } else if (Remove) {
        text = DeleteListItem(text, Item, Delimiter);
    }
    QStringList parts = Split(text, Delimiter);
    if (!Remove && parts.size() >= 2) {
        parts = parts.first(qMin<qsizetype>(parts.size(), MaxItems));
        const qsizetype place = parts.indexOf(Item);
        if (place > 0)
            parts.move(place, 0);
    }
    return parts.join(Delimiter);
}

} // namespace tressel
