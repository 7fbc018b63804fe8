// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

namespace tressel {

/// What ends a command between two of its steps: a signal. No Failure, so that no run takes it for one of its
/// own.
struct Stopped {
    int signal = 0;
};

/// Asks whether the run is to stop.
class StopRequests {
public:
    virtual ~StopRequests() = default;

    /// The number of the signal that wants the run to stop, 0 for none.
    virtual int Pending() = 0;
    void ThrowIfPending()
    {
        if (const int signal = Pending())
            throw Stopped{signal};
    }
};

/// The signals of the process.
class StopSignals : public StopRequests {
public:
    /// From here on SIGINT, SIGTERM and SIGHUP are only noted, but for those that whoever started the process
    /// had it ignore. A pipe without a reader and a file beyond its limit become failures of a step.
    static void TakeOver();
    /// The signal that was noted, 0 for none.
    static int Noted();

    int Pending() override { return Noted(); }
};

} // namespace tressel
