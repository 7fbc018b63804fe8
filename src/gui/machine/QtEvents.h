// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "machine/Events.h"

#include <chrono>
#include <functional>

namespace tressel {

class BusyCursor;
class FaceUpdates;

/// The window's event loop. Letting events run shows first what changed, and costs nothing where it is
/// asked for too often: a run that calls it for every name spends most of its time on the names.
class QtEvents : public Events {
public:
    using Time = std::chrono::nanoseconds;

    /// `clock` tells a time that never goes back, from any beginning.
    QtEvents(FaceUpdates &updates, BusyCursor &cursor, std::function<Time()> clock = SteadyTime);

    /// Returns at once if it ran less than 20 ms ago, or less than four times its own last length ago.
    void LetEventsRun() override;
    void ShowAnimationStep() override;
    void KeepPainting() override;
    void SetBusyPointer(bool busy) override;

private:
    static Time SteadyTime();

    FaceUpdates &updates;
    BusyCursor &cursor;
    std::function<Time()> clock;
    Time resumeAt = Time::min();
};

} // namespace tressel
