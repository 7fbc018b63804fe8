// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "machine/FileSystem.h"

#include <sys/stat.h>

namespace tressel {

/// The kind of an entry by its mode.
inline EntryKind KindOfMode(mode_t mode)
{
    if (S_ISREG(mode))
        return EntryKind::File;
    if (S_ISDIR(mode))
        return EntryKind::Folder;
    return S_ISLNK(mode) ? EntryKind::Link : EntryKind::Other;
}

} // namespace tressel
