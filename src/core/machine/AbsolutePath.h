// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "machine/FileSystem.h"

namespace tressel {

/// A typed path from the root on: relative ones start at `from`, which is absolute. Empty levels and "." go,
/// ".." and links are resolved as far as the path exists, and behind that ".." takes the level before it
/// away. With Links::Keep the last name stays as it is, link or not; not so "..", nor a name with a separator
/// behind it. Fails with 52 for an empty path and with 75 for links that lead round in circles.
QString AbsolutePath(FileSystem &files, const QString &path, const QString &from, Links last);

} // namespace tressel
