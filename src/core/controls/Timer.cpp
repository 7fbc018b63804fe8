// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "controls/Timer.h"

namespace tressel {

Timer::Timer(Form &form, const QString &name, int milliseconds)
    : Control(form, name)
    , interval(milliseconds)
{
}

void Timer::SetInterval(int milliseconds)
{
    interval = milliseconds;
    NoteChanged();
}

void Timer::Elapse()
{
    if (interval > 0)
        UserAct([this] { Tick.Raise(); });
}

} // namespace tressel
