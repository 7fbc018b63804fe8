// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/Failure.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

namespace tressel {

class Events;
class FileSystem;
struct Session;

// The routines on names and paths of folders that all tools share.

/// The name with every character that no folder name may hold replaced by "_": / tab : * ? " < > |
/// A "\" stays, so a name keeps its nested folders; a level ".." becomes "__", so that none leads out.
QString MendedName(const QString &name);

/// True if a level of the entry is "..": such an entry is mended and never looked for as it stands.
bool LeadsOut(const QString &entry);

/// A name that comes from the disc as an entry of the list, where "\" would be a level: it becomes "_".
QString EntryOfName(const QString &name);

/// The same for a run: lets pending events run nine times and leaves its result in session.LastFixedName
/// as well.
QString FixFolderName(const QString &name, Events &events, Session &session);

/// Every level of the path but the first piece, from the top down, each as a whole path.
QStringList LevelsOf(const FileSystem &files, const QString &path);

/// True if the path is a folder. A path of up to three characters is never looked up and gives false.
bool FolderPathExists(FileSystem &files, const QString &path);

/// Called with each level of a path that was tried, and with its failure if it had one.
using LevelTried = std::function<void(const QString &level, const std::optional<Failure> &failure)>;

/// Makes every level of the path but the first piece, from the top down; failures are ignored. False if
/// a level failed, which an existing one does. Where all above the last level is there, that one may be
/// all that is tried.
bool MakeFolderPath(FileSystem &files, const QString &path, const LevelTried &tried = {});

/// True for the one folder that RemoveFolderPath never touches.
bool IsProtectedFolder(const QString &folder);

/// Tries to remove every level of the path but the first piece, from the top down, and ignores failures:
/// what goes is what is empty when its turn comes. False if a level failed.
bool RemoveFolderPath(FileSystem &files, const QString &path, const LevelTried &tried = {});

} // namespace tressel
