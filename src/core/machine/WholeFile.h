// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

namespace tressel {

class FileSystem;

/// Puts other contents in place of a file's, or makes the file, as FileSystem::Replace does: after a failure
/// the old contents stand whole.
void ReplaceContents(FileSystem &files, const QString &path, const QByteArray &bytes);

} // namespace tressel
