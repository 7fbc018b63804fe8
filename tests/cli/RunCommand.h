// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "support/TemporaryFolder.h"

#include <filesystem>
#include <set>
#include <string>
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
    TemporaryFolder temporary;

public:
    const std::filesystem::path folder{temporary.Path().toStdString()};
    std::filesystem::path interruptAfter; ///< a run is interrupted as soon as this is there
    std::string standardOutput; ///< what takes the standard output in place of Outcome::out; empty for none
};

} // namespace tressel
