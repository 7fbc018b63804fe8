// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "controls/Control.h"

#include <utility>

namespace tressel {

Control::Control(Form &owner, QString controlName)
    : form(owner)
    , name(std::move(controlName))
{
    form.Register(*this);
    NoteChanged();
}

Control::~Control()
{
    form.Forget(*this);
}

void Control::SetEnabled(bool isEnabled)
{
    enabled = isEnabled;
    NoteChanged();
}

void Control::SetVisible(bool isVisible)
{
    visible = isVisible;
    NoteChanged();
}

void Control::SetToolTip(const QString &text)
{
    toolTip = text;
    NoteChanged();
}

void Control::SetLeft(int twips)
{
    left = twips;
    NoteChanged();
}

void Control::SetTop(int twips)
{
    top = twips;
    NoteChanged();
}

void Control::SetWidth(int twips)
{
    if (twips < 0)
        throw Failure(FailureNumber::InvalidPropertyValue);
    width = twips;
    NoteChanged();
}

void Control::SetHeight(int twips)
{
    if (twips < 0)
        throw Failure(FailureNumber::InvalidPropertyValue);
    height = twips;
    NoteChanged();
}

void Control::SetTakesDrops(bool takes)
{
    takesDrops = takes;
    NoteChanged();
}

void Control::UserDrops(const QStringList &paths)
{
    if (takesDrops)
        UserAct([&] { Drop.Raise(paths); });
}

void Control::UserAct(const std::function<void()> &act)
{
    if (enabled)
        form.Dispatch(act);
}

} // namespace tressel
