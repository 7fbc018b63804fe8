// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/emptyfolders/EmptyFolderSearch.h"

#include "base/Steps.h"
#include "machine/Events.h"
#include "machine/Paths.h"
#include "tools/RunWatch.h"
#include "tools/WorkArea.h"
#include "tools/emptyfolders/EmptyFoldersPage.h"

namespace tressel {

using namespace Qt::StringLiterals;

EmptyFolderSearch::EmptyFolderSearch(const ToolContext &context, EmptyFoldersPage &emptyFolders)
    : page(emptyFolders)
    , area(context.area)
    , files(context.machine.files)
    , events(context.machine.events)
    , watch(context.watch)
{
}

void EmptyFolderSearch::FindEmptyFolders(const QString &Path)
{
    watch.Next(Path);
    events.LetEventsRun();
    QList<FolderEntry> entries;
    Steps steps;
    // Kept: a folder that can't be read yields no entry and so counts as empty.
    steps.Do([&] { entries = files.List(Path); });
    for (const FolderEntry &entry : entries) {
        if (stopFlag == stop)
            break;
        events.LetEventsRun();
        if (entry.kind == EntryKind::Folder && !WalkInto(Path + entry.name))
            break;
    }
    if (entries.isEmpty() && stopFlag == runOn)
        AddFound(Path);
}

bool EmptyFolderSearch::WalkInto(const QString &folder)
{
    const auto isThere = [&] {
        const auto status = files.Status(folder, Links::Keep);
        return status && status->kind == EntryKind::Folder;
    };
    if (!isThere())
        return false;
    FindEmptyFolders(WithSeparator(files, folder));
    Steps steps;
    steps.Do([&] { page.DirListRemove.SetPath(folder); });
    // Kept: without the entry the walk doesn't find its place in the listing again and leaves the rest of it.
    return isThere();
}

void EmptyFolderSearch::AddFound(const QString &Path)
{
    page.ListRemove.AddItem(Path);
    watch.Did(Outcome::Found, Path);
    area.lblStatusLine.SetCaption(u"Found "_s + QString::number(page.ListRemove.ListCount()));
    events.LetEventsRun();
}

} // namespace tressel
