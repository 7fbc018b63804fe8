// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Tree.h"

#include <filesystem>
#include <string>
#include <vector>

namespace tressel::faults {

/// The folder that a tool of the window works in, below a case's.
constexpr const char *workedIn = "place";

/// Which program a case runs.
enum class Subject {
    CommandLine,
    OldSystem, ///< the same on a system that knows neither renaming without overwriting nor files without a
               ///< name
    Reader, ///< the command line, and faults strike the reader of databases that it starts
    ListSave, ///< the window's form saving its list, without a display
    Window, ///< the program with its window, which is asked to end when it is up
    WindowTool, ///< the same, and one of its tools is put to work before; faults strike what that works on
};

/// One thing that a program does with the disc.
struct Case {
    std::string name;
    /// What the program is called with; "@" at the start of a word is the case's folder.
    std::vector<std::string> words;
    /// Puts what it works on into the folder.
    void (*setUp)(const std::filesystem::path &folder);
    /// What there is to say of the folder afterwards.
    Finding (*check)(const Evidence &evidence) = EachWhole;
    Subject subject = Subject::CommandLine;
    int status = 0; ///< of a run without a fault
    /// Whether its tool is known to pass over a fault without a word: the call and its path as a run has
    /// them, and the error. What is said of the folder holds then too.
    bool (*passesOver)(const std::string &where, int error, const Evidence &evidence) = nullptr;
};

/// The table of all cases.
const std::vector<Case> &Cases();

} // namespace tressel::faults
