// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <atomic>
#include <climits>

namespace tressel::faults {

/// The kinds of calls to the system that can be made to fail. Any stands for all of them, counted together.
enum class Kind : int {
    Any,
    Open,
    Read,
    Write,
    Sync,
    Close,
    Rename,
    Link,
    Symlink,
    Unlink,
    Mkdir,
    Rmdir,
    Stat,
    Readdir,
    Seek,
    Truncate,
    Chmod,
    Chown,
    Attribute,
    Times,
    Lock,
    Readlink,
    Room,
};

/// What becomes of the call that the fault strikes, beside the numbers of the system's errors.
constexpr int shortened = -1; ///< it is carried out for half of its bytes, one at the least
constexpr int killed = -2; ///< the process is killed instead

/// The variable that holds the path of the file in which both sides have the plan.
constexpr const char *planVariable = "TRESSEL_FAULT_PLAN";
/// Set in a program that the one under test has started.
constexpr const char *startedVariable = "TRESSEL_FAULT_STARTED";

/// What the runner asks of the library in the program under test, and what it hears back: memory that the
/// two share. Calls count only where they touch something at the root or below.
struct FaultPlan {
    std::array<char, PATH_MAX> root; ///< without "/" at its end
    Kind kind;
    int number; ///< the call to strike, from 1 on; 0 for none
    int outcome; ///< an error of the system, or one of the two above
    bool lasts; ///< all calls of the kind from that one on fail
    bool inStarted; ///< faults strike what the program under test starts, and not that one itself
    bool isOldSystem; ///< it knows neither renaming without overwriting nor files without a name

    std::atomic<int> calls; ///< of the kind, so far
    std::atomic<bool> struck;
    std::array<char, 24> call; ///< the name of the one that was struck
    std::array<char, 256> path; ///< and what it was about
};

} // namespace tressel::faults
