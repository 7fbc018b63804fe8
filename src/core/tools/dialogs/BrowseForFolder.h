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

/// The same, starting at the present folder if there is one of that path, and nowhere else.
QString BrowseFromPresent(Dialogs &dialogs, FileSystem &files, const QString &title, const QString &present);

} // namespace tressel
