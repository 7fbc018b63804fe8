// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Command.h"

namespace tressel {

// One for each file of this folder.
Command CompletionsCommand();
Command CreateCommand();
Command DatabaseCommand();
Command RenameCommand();
Command ReportCommand();
Command SeriesCommand();

} // namespace tressel
