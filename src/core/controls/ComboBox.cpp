// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "controls/ComboBox.h"

#include <algorithm>

namespace tressel {

ComboBox::ComboBox(Form &form, const QString &name, Kind boxKind)
    : ItemList(form, name)
    , kind(boxKind)
{
}

void ComboBox::SetText(const QString &newText)
{
    if (kind == Kind::List) {
        const qsizetype index = Items().indexOf(newText);
        if (index < 0)
            throw Failure(FailureNumber::InvalidPropertyValue);
        SetListIndex(static_cast<int>(index));
        return;
    }
    if (text == newText)
        return;
    text = newText;
    NoteChanged();
    Change.Raise();
}

void ComboBox::UserEdits(const QString &newText)
{
    if (kind == Kind::Editable)
        UserAct([&] { SetText(newText); });
}

void ComboBox::UserSteps(int count)
{
    const qsizetype from = Items().indexOf(text);
    bool isNumber = false;
    text.toLongLong(&isNumber);
    if (ListCount() == 0 || (from < 0 && isNumber))
        return;
    const int to = from < 0 ? 0 : std::clamp(static_cast<int>(from) + count, 0, ListCount() - 1);
    if (to != from)
        UserSelects(to);
}

bool ComboBox::UserPressesKey(int key)
{
    int left = key;
    UserAct([&] { KeyDown.Raise(left); });
    return left == 0;
}

void ComboBox::OnSelected()
{
    // Choosing an entry is told by Click alone, though the text changes with it.
    text = ListIndex() < 0 ? QString() : Item(ListIndex());
}

} // namespace tressel
