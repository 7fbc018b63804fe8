// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "faces/TimerPulse.h"

namespace tressel {

TimerPulse::TimerPulse(Timer &control, QObject *parent)
    : QObject(parent)
    , timer(control)
    , pulse(this)
{
    connect(&pulse, &QTimer::timeout, this, [this] { timer.Elapse(); });
}

void TimerPulse::TakeOver()
{
    const bool runs = timer.IsEnabled() && timer.Interval() > 0;
    if (!runs)
        pulse.stop();
    else if (!pulse.isActive() || pulse.interval() != timer.Interval())
        pulse.start(timer.Interval());
}

} // namespace tressel
