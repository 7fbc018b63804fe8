// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "controls/Frame.h"

#include <utility>

namespace tressel {

Frame::Frame(Form &form, const QString &name, QString text)
    : Captioned(form, name)
    , caption(std::move(text))
{
}

void Frame::SetCaption(const QString &text)
{
    caption = text;
    NoteChanged();
}

void Frame::SetBackColor(ColourNumber colour)
{
    backColor = colour;
    NoteChanged();
}

} // namespace tressel
