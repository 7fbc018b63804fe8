// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

namespace tressel {

/// The event loop as a long run sees it.
class Events {
public:
    virtual ~Events() = default;

    /// Lets pending events run: a click or a key may be served before this returns. May return at once
    /// where it was called a moment ago, so it can be called for every name of a run.
    virtual void LetEventsRun() = 0;
    /// Shows the window as it is now and lets pending events run, each time it is called: for the steps of
    /// an animation, which nobody would see otherwise.
    virtual void ShowAnimationStep() = 0;
    /// Shows the window as it is now while something outside is waited for. No click and no key is served
    /// before this returns, so nothing can be begun anew meanwhile.
    virtual void KeepPainting() = 0;
    /// Shows the busy pointer, or the default one again. Calls don't nest.
    virtual void SetBusyPointer(bool busy) = 0;
};

} // namespace tressel
