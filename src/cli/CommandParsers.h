// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Arguments.h"

namespace tressel {

// One for each command. The first of the arguments is the command's name.
Command ParseCreate(const QStringList &arguments, const QString &workingFolder);
Command ParseSeries(const QStringList &arguments, const QString &workingFolder);
Command ParseReport(const QStringList &arguments, const QString &workingFolder);

/// A path from the root, without levels that are empty or "." and without a separator at its end.
QString AbsolutePath(const QString &path, const QString &workingFolder);

} // namespace tressel
