// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Cases.h"
#include "FaultPlan.h"
#include "support/TemporaryFolder.h"

#include <filesystem>
#include <string>

namespace tressel::faults {

/// A call that is to fail, and how.
struct Fault {
    const char *name;
    Kind kind;
    int outcome; ///< as in FaultPlan
    bool lasts = false; ///< as in FaultPlan
    bool isInShortSweep = false;
};

/// How a run went.
struct Run {
    Tree before;
    Tree now;
    int status = -1; ///< the exit status, or the signal that ended it, negative
    std::string out;
    std::string err;
    bool metFault = false;
    std::string where; ///< the fault
};

/// A place for runs, one after the other.
class Bench {
public:
    Bench();
    ~Bench();
    Bench(const Bench &) = delete;
    Bench &operator=(const Bench &) = delete;

    /// Sets the case up anew and runs it, the fault at its so manieth call; without a fault for 0.
    Run RunCase(const Case &subject, const Fault &fault, int number);

private:
    void SetPlan(const Case &subject, const Fault &fault, int number);
    [[noreturn]] void BecomeProgram(const Case &subject) const;
    std::string FirstWordOf(const Case &subject) const;

    TemporaryFolder temporary;
    const std::filesystem::path folder{temporary.Path().toStdString()};
    const std::filesystem::path root = folder / "root"; ///< faults strike below it alone
    const std::filesystem::path disc = root / "disc"; ///< what the case works on
    FaultPlan *plan = nullptr;
};

} // namespace tressel::faults
