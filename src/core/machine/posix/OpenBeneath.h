// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "machine/posix/Descriptor.h"

namespace tressel {

/// Opens a folder by a path of any length from an open folder on, through no link and never above it. The
/// folder is there to start from, not to be read. One that isn't open leaves the system's error in errno:
/// ELOOP for a link on the way.
Descriptor OpenBeneath(int folder, const char *path);

/// The same for systems that can't do it in one step: one level after the other.
Descriptor OpenLevelByLevel(int folder, const char *path);

} // namespace tressel
