// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringView>

namespace tressel {

class NativePath;

/// An entry as the system's calls take it: a name, or a path, from an open folder on.
struct EntryPlace {
    int folder;
    const char *name;
};

/// Gives what `from` names the path `to`, never in place of something that is there. Fails as
/// FileSystem::Rename does.
void RenameWithoutOverwriting(const NativePath &from, const NativePath &to);

/// The short way that most renames take: what is directly in an open folder gets another name there. False if
/// the paths are more than names, or it failed; nothing has happened then.
bool RenamedAtOnce(int folder, QStringView from, QStringView to);

/// The same as RenameWithoutOverwriting for file systems that can't refuse to overwrite by themselves. A file
/// gets its new name as a second one, which takes no other's place, and loses the old one then. Where that
/// can't be, for a folder too, it is looked first and renamed then: two steps, so another program can come
/// between them.
void RenameBySmallerSteps(const NativePath &from, const NativePath &to);

/// The same by way of a name that nothing has. If the second of the two steps fails, the entry gets its old
/// name back. 0, or the system's error.
int RenameByDetour(const EntryPlace &from, const EntryPlace &to);

/// Puts an entry in the place of another. 0, or the system's error.
int RenameOver(const EntryPlace &from, const EntryPlace &to);
/// Gives a file a name that nothing has; EEXIST if something has it.
int RenameToNew(const EntryPlace &from, const EntryPlace &to);

} // namespace tressel
