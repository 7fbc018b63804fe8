// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "controls/TextBox.h"

#include <utility>

namespace tressel {

TextBox::TextBox(Form &form, const QString &name, QString initialText)
    : Control(form, name)
    , text(std::move(initialText))
{
}

void TextBox::SetText(const QString &newText)
{
    if (text == newText)
        return;
    text = newText;
    NoteChanged();
    Change.Raise();
}

void TextBox::SetLocked(bool isLocked)
{
    locked = isLocked;
    NoteChanged();
}

void TextBox::SetHint(const QString &newHint)
{
    hint = newHint;
    NoteChanged();
}

void TextBox::SelectAll()
{
    selectAll = true;
    NoteChanged();
}

void TextBox::UserEdits(const QString &newText)
{
    if (!locked)
        UserAct([&] { SetText(newText); });
}

void TextBox::UserEnters()
{
    UserAct([this] { GotFocus.Raise(); });
}

void TextBox::UserLeaves()
{
    UserAct([this] { LostFocus.Raise(); });
}

bool TextBox::TakeSelectAll()
{
    return std::exchange(selectAll, false);
}

} // namespace tressel
