// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "machine/Events.h"
#include "support/Journal.h"

#include <QList>

#include <functional>

namespace tressel {

/// Events that a test has queued: LetEventsRun runs those whose turn it is, and so a run can be entered
/// again or cancelled at a known place. An act that never had its turn fails the test.
class MemoryEvents : public Events {
public:
    explicit MemoryEvents(Journal &journal)
        : journal(journal)
    {
    }
    ~MemoryEvents() override;
    MemoryEvents(const MemoryEvents &) = delete;
    MemoryEvents &operator=(const MemoryEvents &) = delete;

    /// Does something at the `call`-th call of LetEventsRun from now on, the next one being the first.
    void At(int call, std::function<void()> act);
    /// Does something at the first call of LetEventsRun at which the condition holds.
    void When(std::function<bool()> condition, std::function<void()> act);

    /// How often LetEventsRun was called.
    int Calls() const { return calls; }
    bool IsBusy() const { return busy; }

    void LetEventsRun() override;
    /// The same as LetEventsRun here.
    void ShowAnimationStep() override { LetEventsRun(); }
    /// Counted, and runs nothing: no act of a test may come in here.
    void KeepPainting() override { ++waits; }
    /// How often KeepPainting was called.
    int Waits() const { return waits; }
    /// Journal: "BusyPointer" about "on" or "off".
    void SetBusyPointer(bool isBusy) override;

private:
    struct Queued {
        std::function<bool()> condition;
        std::function<void()> act;
    };

    Journal &journal;
    QList<Queued> queue;
    int calls = 0;
    int waits = 0;
    bool busy = false;
};

} // namespace tressel
