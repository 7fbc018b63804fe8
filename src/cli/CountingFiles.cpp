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
        if (onEntry)
            onEntry();
        AddEntry(done);
        ++done.tried;
        entryExisted = std::exchange(nextExists, false);
    }
    const auto failure = files.TryMakeFolder(path);
    lastLevelMade = !failure;
    lastLevel = path;
    if (!failure)
        ++done.made;
    return failure;
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
