// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "controls/PictureBox.h"

namespace tressel {

PictureBox::PictureBox(Form &form, const QString &name)
    : Frame(form, name)
{
}

void PictureBox::SetHandPointer(bool hasOne)
{
    handPointer = hasOne;
    NoteChanged();
}

void PictureBox::UserMovesMouse(int buttons, int x)
{
    UserAct([&] { MouseMove.Raise(buttons, x); });
}

void PictureBox::UserPressesMouse()
{
    UserAct([this] { MouseDown.Raise(); });
}

void PictureBox::UserReleasesMouse()
{
    UserAct([this] { MouseUp.Raise(); });
}

void PictureBox::UserClicks()
{
    UserAct([this] { Click.Raise(); });
}

} // namespace tressel
