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
    QList<FolderEntry> entries = files.List(folder);
    others.reserve(entries.size());
    for (FolderEntry &entry : entries) {
        const bool isFolder = entry.kind == EntryKind::Folder
            || (entry.kind == EntryKind::Link && FolderExists(files, PathOf(entry.name)));
        (isFolder ? folders : others).append(std::move(entry.name));
    }
}

RenameFolder::~RenameFolder() = default;

void RenameFolder::Rename(QString &path, const QString &newName)
{
    PutPath(newPath, newName);
    files.Rename(path, newPath);
    path.swap(newPath);
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
