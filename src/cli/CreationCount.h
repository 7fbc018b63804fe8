// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

namespace tressel {

/// What a creation run really did, as it was seen at the disc.
struct CreationCount {
    int made = 0; ///< folders that came into being
    int alreadyThere = 0; ///< entries whose folder existed before
    int failed = 0; ///< entries that have no folder now
    int tried = 0; ///< entries that the run got to
};

/// Prints what was made, unless it is to be quiet, and gives the exit status for it.
int TellCreation(const CreationCount &count, bool quiet);

} // namespace tressel
