// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "controls/FileList.h"

#include "machine/Paths.h"

namespace tressel {

QStringList ShownFiles(FileSystem &files, const QString &folder)
{
    QStringList names;
    for (const FolderEntry &entry : files.List(folder)) {
        const bool isFile = entry.kind == EntryKind::File
            || (entry.kind == EntryKind::Link && FileExists(files, JoinPath(files, folder, entry.name)));
        if (isFile && !entry.hidden)
            names += entry.name;
    }
    return names;
}

FileList::FileList(Form &form, const QString &name, FileSystem &fileSystem)
    : ListBox(form, name)
    , files(fileSystem)
{
}

void FileList::SetPath(const QString &folder)
{
    if (!FolderExists(files, folder))
        throw Failure(FailureNumber::PathNotFound);
    path = folder;
    Refresh();
}

void FileList::Refresh()
{
    QStringList names;
    try {
        names = ShownFiles(files, path);
    } catch (const Failure &) {
        // A folder that can't be read shows no files.
    }
    SetItems(names);
}

} // namespace tressel
