// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "controls/Label.h"

#include <utility>

namespace tressel {

Label::Label(Form &form, const QString &name, QString text)
    : Captioned(form, name)
    , caption(std::move(text))
{
}

void Label::SetCaption(const QString &text)
{
    if (caption == text)
        return;
    caption = text;
    NoteChanged();
    Change.Raise();
}

void Label::SetForeColor(ColourNumber colour)
{
    foreColor = colour;
    NoteChanged();
}

void Label::SetBold(bool isBold)
{
    bold = isBold;
    NoteChanged();
}

void Label::SetFontFamily(const QString &family)
{
    fontFamily = family;
    NoteChanged();
}

void Label::UserClicks()
{
    UserAct([this] { Click.Raise(); });
}

void Label::TakeWidth(int twips)
{
    if (Width() == twips)
        return;
    SetWidth(twips);
    Owner().Dispatch([this] { Resize.Raise(); });
}

} // namespace tressel
