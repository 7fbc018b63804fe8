// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

class QMimeData;

namespace tressel {

/// The local files and folders that are dragged, in their order, in the form in which the file system's
/// interface takes paths: a byte that isn't UTF-8 is a lone surrogate. Anything else that is dragged is
/// left out.
QStringList DroppedPaths(const QMimeData &dragged);

} // namespace tressel
