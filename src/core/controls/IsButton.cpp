// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "controls/IsButton.h"

#include <utility>

namespace tressel {

IsButton::IsButton(Form &form, const QString &name, QString text)
    : Control(form, name)
    , caption(std::move(text))
{
}

void IsButton::SetCaption(const QString &text)
{
    caption = text;
    NoteChanged();
}

void IsButton::UserClicks()
{
    UserAct([this] { Click.Raise(); });
}

} // namespace tressel
