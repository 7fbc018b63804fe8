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

const QStringList &FolderList::Items() const
{
    return Listed().rows;
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
    Refresh();
    if (isAnother)
        Change.Raise();
}

void FolderList::Refresh()
{
    listing.reset();
    Clear();
}

QString FolderList::SelectedPath() const
{
    return ListIndex() < 0 ? path : PathOf(ListIndex());
}

int FolderList::PresentRow() const
{
    return Listed().presentRow;
}

void FolderList::UserActivates(int index)
{
    if (index < 0 || index >= ListCount())
        return;
    UserAct([&] {
        const QString folder = PathOf(index);
        // A folder that has gone since it was listed, or can't be entered: the list stays where it is.
        if (FolderExists(files, folder))
            SetPath(folder);
    });
}

const FolderList::Listing &FolderList::Listed() const
{
    if (!listing)
        listing = ListDisc();
    return *listing;
}

FolderList::Listing FolderList::ListDisc() const
{
    const QString root = DriveOf(files, path);
    Listing listed{{root}};
    listed.rows += path.mid(root.size()).split(files.Separator(), Qt::SkipEmptyParts);
    listed.presentRow = static_cast<int>(listed.rows.size()) - 1;

    QList<FolderEntry> entries;
    try {
        entries = files.List(path);
    } catch (const Failure &) {
        // A folder that can't be read shows no sub folders; the way out of it stays on show.
    }
    for (const FolderEntry &entry : entries) {
        const bool isFolder = entry.kind == EntryKind::Folder
            || (entry.kind == EntryKind::Link && FolderExists(files, JoinPath(files, path, entry.name)));
        if (isFolder && !entry.hidden)
            listed.rows += entry.name;
    }
    return listed;
}

QString FolderList::PathOf(int row) const
{
    const Listing &listed = Listed();
    QString above = listed.rows.first();
    for (int level = 1; level <= std::min(row, listed.presentRow); ++level)
        above = JoinPath(files, above, listed.rows.at(level));
    return row <= listed.presentRow ? above : JoinPath(files, above, listed.rows.at(row));
}

} // namespace tressel
