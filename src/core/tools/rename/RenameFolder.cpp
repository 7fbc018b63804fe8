// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/rename/RenameFolder.h"

#include "machine/FileSystem.h"
#include "machine/Paths.h"

namespace tressel {

RenameFolder::RenameFolder(FileSystem &fileSystem, const QString &folder)
    : files(fileSystem)
    , base(WithSeparator(files, folder))
    , hold(files.Hold(folder))
{
    for (const FolderEntry &entry : files.List(folder)) {
        const bool isFolder = entry.kind == EntryKind::Folder
            || (entry.kind == EntryKind::Link && FolderExists(files, PathOf(entry.name)));
        (isFolder ? folders : others) += entry.name;
    }
}

RenameFolder::~RenameFolder() = default;

void RenameFolder::Rename(const QString &name, const QString &newName)
{
    PutPath(from, name);
    PutPath(to, newName);
    files.Rename(from, to);
}

bool RenameFolder::HasFile(const QString &name)
{
    const QString place = PathOf(name);
    return files.Status(place, Links::Keep) && !FolderExists(files, place);
}

bool RenameFolder::TellsCaseApart()
{
    for (const QStringList *names : {&folders, &others}) {
        for (const QString &name : *names) {
            const QString otherCase = name.toUpper() == name ? name.toLower() : name.toUpper();
            if (otherCase == name)
                continue;
            if (!files.Status(PathOf(otherCase), Links::Keep))
                return true;
            if (!folders.contains(otherCase) && !others.contains(otherCase))
                return false;
        }
    }
    return true;
}

} // namespace tressel
