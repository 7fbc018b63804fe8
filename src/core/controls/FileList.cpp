// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "controls/FileList.h"

#include "machine/Paths.h"

namespace tressel {

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
        for (const FolderEntry &entry : files.List(path)) {
            const bool isFile = entry.kind == EntryKind::File
                || (entry.kind == EntryKind::Link && FileExists(files, JoinPath(files, path, entry.name)));
            if (isFile && !entry.hidden)
                names += entry.name;
        }
    } catch (const Failure &) {
        // A folder that can't be read shows no files.
        names.clear();
    }
    SetItems(names);
}

} // namespace tressel
