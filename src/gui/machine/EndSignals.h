// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QSocketNotifier>

#include <functional>
#include <memory>

namespace tressel {

/// Hears the signals by which a system asks a program to end (SIGTERM, SIGINT, SIGHUP) and passes them on
/// as an event, so that the program can end in its own way. Only one at a time.
class EndSignals {
public:
    /// `asked` is called from the event loop, once for each time that signals came.
    explicit EndSignals(std::function<void()> asked);
    ~EndSignals();
    EndSignals(const EndSignals &) = delete;
    EndSignals &operator=(const EndSignals &) = delete;

private:
    std::unique_ptr<QSocketNotifier> notifier;
};

} // namespace tressel
