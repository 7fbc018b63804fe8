// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "CountingFiles.h"

#include "machine/Paths.h"

#include <utility>

namespace tressel {

void CountingFiles::StartCounting(const QString &destination)
{
    // A run tests "destination//entry".
    testedBelow = WithSeparator(files, destination) + files.Separator();
    done = {};
}

CreationCount CountingFiles::Count() const
{
    CreationCount count = done;
    AddEntry(count);
    return count;
}

std::optional<FileStatus> CountingFiles::Status(const QString &path, Links links)
{
    const auto status = files.Status(path, links);
    if (!testedBelow.isEmpty() && path.startsWith(testedBelow))
        nextExists = status && status->kind == EntryKind::Folder;
    return status;
}

std::optional<Failure> CountingFiles::TryMakeFolder(const QString &path)
{
    const bool isTopLevel = path.indexOf(files.Separator()) == path.lastIndexOf(files.Separator());
    if (isTopLevel) {
        CallHook();
        BeginEntry();
    }
    const auto failure = files.TryMakeFolder(path);
    NoteLevel(path, !failure);
    return failure;
}

bool CountingFiles::MadeAtOnce(const QString &path)
{
    CallHook();
    // If not, the entry begins with the first of its levels.
    if (!files.MadeAtOnce(path))
        return false;
    BeginEntry();
    NoteLevel(path, true);
    return true;
}

void CountingFiles::CallHook() const
{
    if (onEntry)
        onEntry();
}

void CountingFiles::BeginEntry()
{
    AddEntry(done);
    ++done.tried;
    entryExisted = std::exchange(nextExists, false);
}

void CountingFiles::NoteLevel(const QString &path, bool made)
{
    lastLevelMade = made;
    lastLevel = path;
    if (made)
        ++done.made;
}

void CountingFiles::AddEntry(CreationCount &to) const
{
    if (to.tried == 0)
        return;
    const bool failed = !lastLevelMade && !FolderExists(files, lastLevel);
    if (failed)
        ++to.failed;
    else if (entryExisted || !lastLevelMade)
        ++to.alreadyThere;
}

} // namespace tressel
