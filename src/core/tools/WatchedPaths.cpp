// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/WatchedPaths.h"

#include "base/Steps.h"
#include "language/FolderPaths.h"
#include "machine/FileSystem.h"
#include "machine/Paths.h"
#include "tools/RunWatch.h"

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

struct Refusal {
    QString level;
    Failure failure;
};

bool HoldsSomething(FileSystem &files, const QString &folder)
{
    bool holds = false;
    Steps steps; // what can't be read isn't known to hold anything
    steps.Do([&] { holds = files.Read(folder)->Next().has_value(); });
    return holds;
}

/// Why a path isn't there: those above it that are there were refused too, for being there.
Failure Reason(FileSystem &files, const QList<Refusal> &refusals)
{
    for (const Refusal &refusal : refusals) {
        if (FileExists(files, refusal.level))
            return {refusal.failure.number, u"Something that is no folder is in its place"_s};
        if (!FolderExists(files, refusal.level))
            return refusal.failure;
    }
    return Failure(FailureNumber::PathNotFound);
}

} // namespace

PathEnd MakeFolderPathTelling(FileSystem &files, const QString &path, RunWatch &watch)
{
    bool isMade = false;
    QList<Refusal> refusals;
    MakeFolderPath(files, path, [&](const QString &level, const std::optional<Failure> &failure) {
        isMade = !failure;
        if (failure)
            refusals.append({level, *failure});
        else
            watch.Did(Outcome::Made, level);
    });
    if (isMade)
        return PathEnd::Made;
    if (FolderExists(files, path))
        return PathEnd::StoodThere;
    watch.Failed(path, Reason(files, refusals));
    return PathEnd::NotThere;
}

void RemoveFolderPathTelling(FileSystem &files, const QString &path, RunWatch &watch)
{
    bool isGone = false;
    std::optional<Refusal> last;
    RemoveFolderPath(files, path, [&](const QString &level, const std::optional<Failure> &failure) {
        isGone = level == path && !failure;
        if (failure)
            last = Refusal{level, *failure};
        else
            watch.Did(Outcome::Removed, level);
    });
    if (isGone)
        return;
    const auto status = files.Status(path, Links::Keep);
    const bool wasTried = last && last->level == path;
    // What was refused for another reason than being absent is there, though it can't be looked at.
    if (!status && wasTried && last->failure.number != FailureNumber::PathNotFound)
        watch.Failed(path, last->failure);
    else if (!status)
        watch.Did(Outcome::NotThere, path);
    else if (!wasTried || (status->kind == EntryKind::Folder && HoldsSomething(files, path)))
        watch.Did(Outcome::Kept, path);
    else if (status->kind != EntryKind::Folder)
        watch.Failed(path, {last->failure.number, u"It is no folder"_s});
    else
        watch.Failed(path, last->failure);
}

} // namespace tressel
