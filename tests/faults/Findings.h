// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Tree.h"

#include <string>

namespace tressel::faults {

/// Where a program keeps its settings, and a line of them that its user had stored before.
inline const std::string settingsFile = "config/tressel/settings";
inline const std::string storedValue = "\"Show Tips at Startup\"=\"0\"\n";

// What there is to say of the folder afterwards, where EachWhole isn't all. What a kill may leave stands in
// README.md.

Finding Replaced(const Evidence &evidence);
/// A report may leave out what couldn't be read, if it says so.
Finding Reported(const Evidence &evidence);
Finding Split(const Evidence &evidence);
/// A file that is to be erased may hold anything as soon as that has begun, but is found by its name or gone.
Finding Erased(const Evidence &evidence);
/// The settings are those of one of several saves.
Finding Saved(const Evidence &evidence);

// Of the window's tools, whose settings have cases of their own.

/// A report that stops in its middle leaves what is written by then.
Finding ReportedInWindow(const Evidence &evidence);
/// The parts that were made by then stay, the last perhaps short, and a batch file for so many.
Finding SplitInWindow(const Evidence &evidence);
/// The file that is put together may be any; its parts stay.
Finding JoinedInWindow(const Evidence &evidence);
Finding ErasedInWindow(const Evidence &evidence);
/// A name may be left with the "_" behind it by way of which each is reached.
Finding RenamedInWindow(const Evidence &evidence);
Finding RemovedInWindow(const Evidence &evidence);

// What the window's tools are known to pass over without a word; see Case.

/// All that fails once a report is begun.
bool ReportPassesOver(const std::string &where, int error, const Evidence &evidence);
/// A read, which ends the parts as the end of the file would.
bool SplitPassesOver(const std::string &where, int error, const Evidence &evidence);
/// A read, for which zeros stand in.
bool JoinPassesOver(const std::string &where, int error, const Evidence &evidence);
/// All but what makes a path inaccessible.
bool ErasePassesOver(const std::string &where, int error, const Evidence &evidence);
/// A rename and a removal end where they fail.
bool PassesOverAll(const std::string &where, int error, const Evidence &evidence);

} // namespace tressel::faults
