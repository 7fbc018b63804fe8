// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/Control.h"

namespace tressel {

/// Raises an event again and again while it is enabled. It has no look; whoever runs the event loop
/// watches the time.
class Timer : public Control {
public:
    /// The interval is in milliseconds; with 0 the timer rests.
    Timer(Form &form, const QString &name, int interval = 0);

    int Interval() const { return interval; }
    void SetInterval(int milliseconds);

    Event<> Tick;

    // For faces.
    /// The interval has passed. Nothing happens while the timer is disabled or rests.
    void Elapse();

private:
    int interval;
};

} // namespace tressel
