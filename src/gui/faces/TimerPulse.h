// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/Timer.h"

#include <QTimer>

namespace tressel {

/// Watches the time for a timer, which has no widget.
class TimerPulse : public QObject {
public:
    /// The timer must outlive it.
    TimerPulse(Timer &control, QObject *parent);

    /// Takes over whether the timer runs, and how fast.
    void TakeOver();

private:
    Timer &timer;
    QTimer pulse;
};

} // namespace tressel
