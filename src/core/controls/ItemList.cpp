// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "controls/ItemList.h"

namespace tressel {

const QString &ItemList::Item(int index) const
{
    if (index < 0 || index >= ListCount())
        throw Failure(FailureNumber::SubscriptOutOfRange);
    return Items().at(index);
}

void ItemList::AddItem(const QString &text)
{
    items.append(text);
    NoteChanged();
}

void ItemList::RemoveItem(int index)
{
    if (index < 0 || index >= ListCount())
        throw Failure(FailureNumber::InvalidProcedureCall);
    items.removeAt(index);
    if (listIndex == index)
        listIndex = -1;
    else if (listIndex > index)
        --listIndex;
    OnRemoved(index);
    NoteChanged();
}

void ItemList::Clear()
{
    items.clear();
    listIndex = -1;
    OnCleared();
    NoteChanged();
}

void ItemList::SetItems(const QStringList &texts)
{
    items = texts;
    listIndex = -1;
    OnCleared();
    NoteChanged();
}

void ItemList::SetListIndex(int index)
{
    if (index < -1 || index >= ListCount())
        throw Failure(FailureNumber::InvalidPropertyValue);
    Select(index);
    Click.Raise();
}

void ItemList::Select(int index)
{
    listIndex = index;
    NoteChanged();
    OnSelected();
}

void ItemList::UserSelects(int index)
{
    // A view may speak of a row that a handler has taken out meanwhile.
    if (index >= 0 && index < ListCount())
        UserAct([&] { SetListIndex(index); });
}

} // namespace tressel
