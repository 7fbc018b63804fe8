// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "CountingRemovals.h"

namespace tressel {

RemovalCount CountingRemovals::Count() const
{
    RemovalCount count = done;
    AddTarget(count);
    return count;
}

std::optional<Failure> CountingRemovals::TryRemoveFolder(const QString &path)
{
    const bool isTopLevel = path.indexOf(files.Separator()) == path.lastIndexOf(files.Separator());
    if (isTopLevel) {
        if (onTarget)
            onTarget();
        AddTarget(done);
        ++done.tried;
    }
    const auto failure = files.TryRemoveFolder(path);
    lastLevelRemoved = !failure;
    lastLevel = path;
    if (!failure)
        ++done.removed;
    return failure;
}

void CountingRemovals::AddTarget(RemovalCount &to) const
{
    if (to.tried == 0 || lastLevelRemoved)
        return;
    const auto status = files.Status(lastLevel, Links::Keep);
    if (!status)
        ++to.missing;
    else if (status->kind == EntryKind::Folder && HoldsSomething(lastLevel))
        ++to.kept;
    else
        ++to.failed;
}

bool CountingRemovals::HoldsSomething(const QString &folder) const
{
    try {
        return files.Read(folder)->Next().has_value();
    } catch (const Failure &) {
        // What can't be read isn't known to hold anything.
        return false;
    }
}

} // namespace tressel
