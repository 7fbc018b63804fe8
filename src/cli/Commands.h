// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Command.h"

namespace tressel {

struct Surroundings;

/// All commands, in the order of the help text.
const QList<Command> &Commands();

/// Runs one command with the words behind its name. Throws UsageError; gives words to whatever else leaves
/// it.
int RunCommand(const Command &command, const QStringList &words, const Surroundings &surroundings);

/// Runs the program with the words behind its name. The result is the exit status. What is told to standard
/// output has been written when this returns.
int RunCommandLine(const QStringList &words, const Surroundings &surroundings);

} // namespace tressel
