// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace tressel {

class Dialogs;
class FileSystem;

/// Asks for a folder, starting at StartPath. An empty title asks "Please, Select a folder.". Returns an
/// empty text if the user cancelled. Fails with 6 for a start path beyond 32767 characters.
QString BrowseForFolder(Dialogs &dialogs, FileSystem &files, const QString &Title, const QString &StartPath);

} // namespace tressel
