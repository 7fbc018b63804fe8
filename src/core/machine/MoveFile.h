// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace tressel {

class FileSystem;

/// Makes a copy of a file, with its rights and its time, and has it written down to the medium. Never
/// overwrites: 58 if the target exists. After a failure nothing is left of the copy.
void CopyFile(FileSystem &files, const QString &from, const QString &to);

/// Gives a file another path, also on another volume, where it is copied, with its rights and
/// its time, and then removed. A link stays a link. Never overwrites: 58 if the target exists. After a
/// failure the file is where it was, and nothing else is left.
void MoveFile(FileSystem &files, const QString &from, const QString &to);

} // namespace tressel
