// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "jet/Wire.h"
#include "machine/posix/Descriptor.h"

#include <QByteArray>

#include <chrono>
#include <optional>
#include <string>
#include <string_view>
#include <sys/types.h>

namespace tressel {

class Events;

/// A running tressel-jet with one question to answer. It is killed at the end of this object's life, whatever
/// it does by then.
class JetProcess {
public:
    struct Frame {
        jet::FrameKind kind;
        std::string_view content; ///< good until the next frame is asked for
    };

    /// `program` is its whole path, `file` the database open for reading. `patience` is how long it may take
    /// until the next frame is there.
    JetProcess(const QByteArray &program, const Descriptor &file, const std::string &question, Events &events,
               std::chrono::milliseconds patience);
    ~JetProcess();
    JetProcess(const JetProcess &) = delete;
    JetProcess &operator=(const JetProcess &) = delete;

    /// The next frame. Nothing if it ended, could not be started, sent what is no frame, or took too long.
    std::optional<Frame> Next();

private:
    using Clock = std::chrono::steady_clock;

    void Start(const QByteArray &program, int question, int answer, int file);
    std::optional<Frame> TakeFrame();
    bool Receive(Clock::time_point deadline);
    bool Wait(Clock::time_point deadline);

    Events &events;
    std::chrono::milliseconds patience;
    pid_t process = -1;
    Descriptor output;
    std::string received;
    std::size_t taken = 0; ///< bytes of it that were handed out
};

} // namespace tressel
