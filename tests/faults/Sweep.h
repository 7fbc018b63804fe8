// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "RunUnderFault.h"

#include <array>
#include <span>
#include <string>
#include <vector>

namespace tressel::faults {

/// What a run under a fault came to. From FalseSuccess on it is a mistake of the program.
enum class Verdict {
    Done, ///< all is as without the fault
    Told, ///< it failed and said so
    Untouched, ///< killed: all is as it was
    PartWay, ///< killed: some of it is done, and what is there is whole
    Silent, ///< it failed where its tool passes over that without a word
    FalseSuccess, ///< it said that all is done, and it isn't
    Crash, ///< ended by a signal, or hung
    HalfWritten, ///< a file is neither the old nor the new one, or has gone
    NoReason, ///< it failed and didn't say where, or with a status that scripts don't know
    GaveUp, ///< it took a call for failed that a signal interrupted, or that did a part of its work
    Leftover, ///< something of its own stays behind
};
constexpr std::size_t verdictCount = 11;

/// All points of one case.
struct Row {
    std::string name;
    int points = 0;
    std::array<int, verdictCount> counts{};
    std::vector<std::string> mistakes; ///< a line each
};

std::span<const Fault> AllFaults();
/// A kill at each call of whatever kind.
const Fault &Kill();

/// Runs a case with each of the faults at the first, the second ... call of its kind, until a run meets no
/// fault any more. A case that can't be run twice alike gives a row with that mistake alone.
/// With a stride of n only one of n points is gone to.
Row Sweep(Bench &bench, const Case &subject, std::span<const Fault> faults, int stride);

} // namespace tressel::faults
