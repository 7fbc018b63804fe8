// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "controls/CheckListBox.h"

namespace tressel {

bool CheckListBox::IsChecked(int index) const
{
    if (index < 0 || index >= ListCount())
        throw Failure(FailureNumber::SubscriptOutOfRange);
    return marks.value(index);
}

void CheckListBox::SetChecked(int index, bool isChecked)
{
    if (IsChecked(index) == isChecked)
        return;
    if (index >= marks.size())
        marks.resize(index + 1);
    marks[index] = isChecked;
    NoteChanged();
    ItemCheck.Raise(index);
}

void CheckListBox::SetBackColor(ColourNumber colour)
{
    backColor = colour;
    NoteChanged();
}

void CheckListBox::UserToggles(int index)
{
    // A view may speak of a row that a handler has taken out meanwhile.
    if (index >= 0 && index < ListCount())
        UserAct([&] { SetChecked(index, !IsChecked(index)); });
}

void CheckListBox::OnRemoved(int index)
{
    if (index < marks.size())
        marks.removeAt(index);
}

void CheckListBox::OnCleared()
{
    marks.clear();
}

} // namespace tressel
