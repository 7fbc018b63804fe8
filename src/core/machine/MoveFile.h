// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace tressel {

class FileSystem;

/// Gives a file another path, also on another volume, where it is copied and then removed. Never
/// overwrites: 58 if the target exists. After a failure the file is where it was, and nothing else is left.
void MoveFile(FileSystem &files, const QString &from, const QString &to);

} // namespace tressel
