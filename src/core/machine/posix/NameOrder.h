// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "machine/FileSystem.h"

namespace tressel {

/// Sorts what a folder has by name without regard to case, and names that differ in case alone by their
/// characters.
void SortByName(QList<FolderEntry> &entries);

} // namespace tressel
