// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "support/TemporaryFolder.h"

#include <csignal>
#include <filesystem>
#include <functional>
#include <set>
#include <string>
#include <sys/resource.h>
#include <sys/types.h>
#include <vector>

namespace tressel {

/// How a run of the program ended, and what it said.
struct Outcome {
    int status = -1; ///< the exit status, or the signal that ended it, negative
    std::string out;
    std::string err;
};

/// A temporary folder, and the built program to run in it with a home of its own. The folder goes with it.
class CommandPlace {
public:
    CommandPlace();

    /// Runs the program and waits for its end; as another user if a number is given, which takes root.
    Outcome RunCli(const std::vector<std::string> &arguments, uid_t asUser = 0) const;

    /// Writes a file.
    std::filesystem::path Put(const std::string &name, const std::string &contents) const;
    static std::string Contents(const std::filesystem::path &path);
    /// The paths of all that is below a folder, links not followed.
    std::set<std::string> Below(const std::string &name) const;

private:
    /// In the program that is about to start: puts it where the run is to be. False if that can't be.
    bool MakeReady(uid_t asUser) const;

    TemporaryFolder temporary;

public:
    const std::filesystem::path folder{temporary.Path().toStdString()};

    // How the program is run from now on.

    std::filesystem::path workingFolder = folder; ///< where it is started
    std::string standardInput = "/dev/null"; ///< a path
    std::string standardOutput; ///< a path that takes it in place of Outcome::out; empty for none
    int outputDescriptor = -1; ///< what takes it in place of both
    bool outIsTerminal = false; ///< Outcome::out is what a terminal would have shown
    bool errIsTerminal = false;
    std::set<int> closed; ///< descriptors
    std::set<int> ignored; ///< signals
    std::filesystem::path interruptAfter; ///< a run is interrupted as soon as this is there
    std::function<bool()> interruptWhen; ///< the same, as soon as it says so
    mutable pid_t running = -1; ///< the program that is to be interrupted
    int interruptWith = SIGINT;
    rlim_t longestFile = RLIM_INFINITY; ///< bytes that a file of it may have
};

} // namespace tressel
