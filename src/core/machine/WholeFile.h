// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

namespace tressel {

class FileSystem;
enum class OpenFor;

/// How many bytes of a file are read whole at most.
constexpr qint64 largestList = 64LL << 20;
constexpr qint64 largestProgramText = 4LL << 20; ///< a language file, the tips

/// All bytes of a file, opened for Reading or Streaming. Fails as FileSystem::Open does, and with 7 and a
/// sentence about it for a file that is larger than `largest`, a whole number of MiB.
QByteArray ReadWhole(FileSystem &files, const QString &path, qint64 largest, OpenFor purpose);

/// Puts other contents in place of a file's, or makes the file, as FileSystem::Replace does: after a failure
/// the old contents stand whole.
void ReplaceContents(FileSystem &files, const QString &path, const QByteArray &bytes);

} // namespace tressel
