// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "controls/FolderList.h"

#include "machine/Paths.h"

namespace tressel {

FolderList::FolderList(Form &form, const QString &name, FileSystem &fileSystem)
    : ItemList(form, name)
    , files(fileSystem)
{
    const QList<Volume> volumes = files.Volumes();
    path = volumes.isEmpty() ? QString(files.Separator()) : volumes.first().root;
}

void FolderList::SetPath(const QString &folder)
{
    if (!FolderExists(files, folder))
        throw Failure(FailureNumber::PathNotFound);
    // Only a root keeps the separator at its end.
    QString wanted = folder;
    while (wanted.endsWith(files.Separator()) && wanted != DriveOf(files, wanted))
        wanted.chop(1);
    const bool isAnother = wanted != path;
    path = wanted;
    ListAnew();
    if (isAnother)
        Change.Raise();
}

void FolderList::Refresh()
{
    ListAnew();
}

QString FolderList::SelectedPath() const
{
    return ListIndex() < 0 ? path : paths.at(ListIndex());
}

void FolderList::UserActivates(int index)
{
    if (index < 0 || index >= ListCount())
        return;
    UserAct([&] {
        const QString folder = paths.at(index);
        // A folder that has gone since it was listed, or can't be entered: the list stays where it is.
        if (FolderExists(files, folder))
            SetPath(folder);
    });
}

void FolderList::ListAnew()
{
    const QString root = DriveOf(files, path);
    QStringList rows{root};
    paths = {root};
    depths = {0};
    QString above = root;
    const QStringList levels =
        WithSeparator(files, path).mid(root.size()).split(files.Separator(), Qt::SkipEmptyParts);
    for (const QString &level : levels) {
        above = JoinPath(files, above, level);
        rows += level;
        paths += above;
        depths += depths.last() + 1;
    }
    presentRow = static_cast<int>(rows.size()) - 1;

    QList<FolderEntry> entries;
    try {
        entries = files.List(path);
    } catch (const Failure &) {
        // A folder that can't be read shows no sub folders; the way out of it stays on show.
    }
    for (const FolderEntry &entry : entries) {
        const QString below = JoinPath(files, path, entry.name);
        const bool isFolder =
            entry.kind == EntryKind::Folder || (entry.kind == EntryKind::Link && FolderExists(files, below));
        if (!isFolder || entry.hidden)
            continue;
        rows += entry.name;
        paths += below;
        depths += presentRow + 1;
    }
    SetItems(rows);
}

} // namespace tressel
