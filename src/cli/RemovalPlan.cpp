// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "RemovalPlan.h"

#include "Console.h"
#include "Tally.h"
#include "language/FolderPaths.h"
#include "machine/Paths.h"

namespace tressel {

using namespace Qt::StringLiterals;

RemovalPlan::RemovalPlan(Console &toConsole, Tally &toTally)
    : console(toConsole)
    , files(toConsole.machine.files)
    , tally(toTally)
{
}

void RemovalPlan::Remove(const QString &path)
{
    bool hasGone = false;
    for (const QString &level : LevelsOf(files, path)) {
        hasGone = !IsProtectedFolder(level) && WouldGo(level);
        if (!hasGone)
            continue;
        gone += level;
        console.Line(u"remove "_s + console.Shown(level));
        tally.Did(Outcome::Removed, level);
    }
    if (!hasGone)
        TellRest(path);
}

bool RemovalPlan::WouldGo(const QString &folder)
{
    const auto status = files.Status(folder, Links::Keep);
    return status && status->kind == EntryKind::Folder && !gone.contains(folder) && !HoldsSomething(folder);
}

void RemovalPlan::TellRest(const QString &path)
{
    const auto status = files.Status(path, Links::Keep);
    if (!status || gone.contains(path))
        tally.Did(Outcome::NotThere, path);
    else if (status->kind == EntryKind::Folder)
        tally.Did(Outcome::Kept, path);
    else
        tally.Failed(path, {FailureNumber::PathFileAccessError, u"It is no folder"_s});
}

bool RemovalPlan::HoldsSomething(const QString &folder)
{
    const auto known = stays.constFind(folder);
    if (known != stays.constEnd() && !gone.contains(JoinPath(files, folder, *known)))
        return true;
    try {
        return LooksForWhatStays(folder);
    } catch (const Failure &) {
        return true;
    }
}

bool RemovalPlan::LooksForWhatStays(const QString &folder)
{
    const auto reader = files.Read(folder);
    while (const auto entry = reader->Next()) {
        if (gone.contains(JoinPath(files, folder, entry->name)))
            continue;
        stays.insert(folder, entry->name);
        return true;
    }
    return false;
}

} // namespace tressel
