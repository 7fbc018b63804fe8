// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "controls/CheckBox.h"

#include <utility>

namespace tressel {

CheckBox::CheckBox(Form &form, const QString &name, QString text)
    : Captioned(form, name)
    , caption(std::move(text))
{
}

void CheckBox::SetCaption(const QString &text)
{
    caption = text;
    NoteChanged();
}

void CheckBox::SetValue(int newValue)
{
    if (newValue < 0 || newValue > 2)
        throw Failure(FailureNumber::InvalidPropertyValue);
    if (value == newValue)
        return;
    value = newValue;
    NoteChanged();
    Click.Raise();
}

void CheckBox::UserToggles()
{
    UserAct([this] { SetChecked(!IsChecked()); });
}

} // namespace tressel
