// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "FolderMaker.h"

#include "Console.h"
#include "Tally.h"
#include "language/FolderPaths.h"
#include "machine/Paths.h"

namespace tressel {

using namespace Qt::StringLiterals;

FolderMaker::FolderMaker(Console &toConsole, Tally &toTally, bool dryRun)
    : console(toConsole)
    , files(toConsole.machine.files)
    , tally(toTally)
    , isDryRun(dryRun)
{
}

bool FolderMaker::IsThere(const QString &folder)
{
    return planned.contains(folder) || FolderExists(files, folder);
}

PathEnd FolderMaker::Make(const QString &folder)
{
    return isDryRun ? Plan(folder) : MakeFolderPathTelling(files, folder, tally);
}

bool FolderMaker::MadeAtOnce(const QString &folder)
{
    if (isDryRun || !files.MadeAtOnce(folder))
        return false;
    tally.Did(Outcome::Made, folder);
    return true;
}

PathEnd FolderMaker::Plan(const QString &folder)
{
    if (IsThere(folder))
        return PathEnd::StoodThere;
    for (const QString &level : LevelsOf(files, folder)) {
        if (IsThere(level))
            continue;
        if (FileExists(files, level)) {
            tally.Failed(
                folder,
                {FailureNumber::PathFileAccessError, u"Something that is no folder is in its place"_s});
            return PathEnd::NotThere;
        }
        planned += level;
        console.Line(u"make "_s + console.Shown(level));
        tally.Did(Outcome::Made, level);
    }
    return PathEnd::Made;
}

} // namespace tressel
