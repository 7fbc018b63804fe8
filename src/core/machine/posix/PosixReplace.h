// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

namespace tressel {

/// Puts other contents in place of a file's through a file beside it. Fails as FileSystem::ReplaceContents
/// does.
void ReplaceContentsAtOnce(const QString &path, const QByteArray &bytes);

} // namespace tressel
