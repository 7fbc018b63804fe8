// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "language/FolderPaths.h"

#include "base/Steps.h"
#include "language/Session.h"
#include "machine/Events.h"
#include "machine/FileSystem.h"
#include "machine/Paths.h"

#include <algorithm>
#include <array>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

/// Kept: the second one is the control character 9.
constexpr std::array<char16_t, 9> illegalCharacters{u'/', u'\t', u':', u'*', u'?', u'"', u'<', u'>', u'|'};

const QString levelUp = u".."_s;

/// Notes how one level went and tells it.
void Tell(const LevelTried &tried, Steps &steps, const QString &level, const std::optional<Failure> &failure)
{
    steps.Note(failure);
    if (tried)
        tried(level, failure);
}

} // namespace

QString MendedName(const QString &name)
{
    const auto isIllegal = [](QChar character) {
        return std::ranges::find(illegalCharacters, character.unicode()) != illegalCharacters.end();
    };
    QString mended = name;
    // Most names have nothing to mend and stay shared.
    if (std::ranges::any_of(name, isIllegal))
        std::ranges::replace_if(mended, isIllegal, QChar(u'_'));
    if (!LeadsOut(mended))
        return mended;
    QStringList levels = mended.split(u'\\');
    std::ranges::replace(levels, levelUp, u"__"_s);
    return levels.join(u'\\');
}

bool LeadsOut(const QString &entry)
{
    return entry.contains(levelUp) && entry.split(u'\\').contains(levelUp);
}

QString EntryOfName(const QString &name)
{
    QString entry = name;
    return entry.replace(u'\\', u'_');
}

QString FixFolderName(const QString &name, Events &events, Session &session)
{
    for (std::size_t character = 0; character < illegalCharacters.size(); ++character)
        events.LetEventsRun();
    session.LastFixedName = MendedName(name);
    return session.LastFixedName;
}

QStringList LevelsOf(const FileSystem &files, const QString &path)
{
    QStringList levels;
    const QStringList pieces = path.split(files.Separator());
    QString pathSoFar = pieces.first();
    for (qsizetype piece = 1; piece < pieces.size(); ++piece) {
        pathSoFar += files.Separator() + pieces.at(piece);
        levels += pathSoFar;
    }
    return levels;
}

bool FolderPathExists(FileSystem &files, const QString &path)
{
    return path.size() > 3 && FolderExists(files, path);
}

bool MakeFolderPath(FileSystem &files, const QString &path, const LevelTried &tried)
{
    // Mostly the levels above are there, and would have failed.
    const bool hasLevelsAbove = path.indexOf(files.Separator()) != path.lastIndexOf(files.Separator());
    if (hasLevelsAbove && files.MadeAtOnce(path)) {
        if (tried)
            tried(path, {});
        return false;
    }
    Steps steps;
    for (const QString &level : LevelsOf(files, path))
        Tell(tried, steps, level, files.TryMakeFolder(level));
    return !steps.Pending();
}

bool IsProtectedFolder(const QString &folder)
{
    // Kept: an old guard, compared to the letter, so that it speaks only where drives have letters.
    return folder == u"C:\\Test1"_s;
}

bool RemoveFolderPath(FileSystem &files, const QString &path, const LevelTried &tried)
{
    Steps steps;
    for (const QString &level : LevelsOf(files, path)) {
        if (!IsProtectedFolder(level))
            Tell(tried, steps, level, files.TryRemoveFolder(level));
    }
    return !steps.Pending();
}

} // namespace tressel
