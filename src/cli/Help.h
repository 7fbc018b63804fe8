// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Command.h"

namespace tressel {

// Texts without a line end at their end.

/// What the program can do, from the table of commands.
QString HelpOfProgram();
/// All about one command: how to call it, what it does, its options, an example.
QString HelpOf(const Command &command);
/// The program's name and version.
QString VersionLine();

} // namespace tressel
