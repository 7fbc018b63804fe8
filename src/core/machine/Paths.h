// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <optional>

namespace tressel {

class FileSystem;

/// The path with the separator at its end; a path that has one stays as it is, an empty one becomes the
/// separator.
QString WithSeparator(const FileSystem &files, const QString &path);

/// The folder and the name put together with exactly one separator between them.
QString JoinPath(const FileSystem &files, const QString &folder, const QString &name);

/// A name that a user wrote, with "\" for a level, in the form of the platform.
QString EntryToPath(const FileSystem &files, const QString &entry);
/// The way back: a path of the disc as an entry of the list, with "\" for a level. Where a name may have a
/// "\" in it, that becomes "_", so that the entry has no level that the path hasn't.
QString PathToEntry(const FileSystem &files, const QString &path);

/// True if something is there and it is a folder; a link to a folder counts as one.
bool FolderExists(FileSystem &files, const QString &path);

/// True if something is there and it isn't a folder; a link to a file counts as one.
bool FileExists(FileSystem &files, const QString &path);

/// The path of the folder that an entry names below a start folder; nothing if none is there, or if a link or
/// ".." leads to it.
std::optional<QString> FolderBelow(FileSystem &files, const QString &start, const QString &entry);

/// What stands behind the last separator; the whole path without one.
QString FileNameOf(const FileSystem &files, const QString &path);

/// What stands before the last separator, the root with its separator; empty without one.
QString FolderOf(FileSystem &files, const QString &path);

/// The root of the volume that the path is on: the longest root of a volume that it starts with. On a
/// platform with drive letters "C:\". The first volume's root if none fits.
QString DriveOf(FileSystem &files, const QString &path);

/// True for the root of a volume as the volume itself spells it, with the separator at its end.
bool IsDriveRoot(FileSystem &files, const QString &path);

/// A path on drive C:, which rules fall back on, in the form of the platform. Without drive letters that
/// drive is the root: "C:\a" becomes "/a", and "C:" the empty text that stands before a "/name". Any
/// other path stays as it is.
QString OnDriveC(const FileSystem &files, const QString &path);

/// A path on drive A:, in the form of the platform: "A:\a". Drive A: is a mounted floppy disc and nothing
/// else; fails with 71 if there is none.
QString OnDriveA(FileSystem &files, const QString &path);

} // namespace tressel
