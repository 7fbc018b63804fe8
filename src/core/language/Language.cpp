// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "language/Language.h"

#include "base/Numbers.h"
#include "base/Steps.h"
#include "base/Text.h"
#include "language/Session.h"
#include "machine/Clock.h"
#include "machine/Dialogs.h"
#include "machine/Events.h"
#include "machine/FileSystem.h"
#include "machine/Paths.h"
#include "machine/Sound.h"

#include <QStringList>

#include <array>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

/// In the order in which they are replaced. Kept: the second one is the control character 9.
constexpr std::array<char16_t, 9> illegalCharacters{u'/', u'\t', u':', u'*', u'?', u'"', u'<', u'>', u'|'};

/// The one folder that RemoveFolderPath never touches. Kept: an old guard, compared to the letter, so that
/// it speaks only where drives have letters.
const QString protectedFolder = u"C:\\Test1"_s;

/// The 1-based position of a match, 0 for none, in the 16 bits that text routines count in.
std::int16_t Position(const QString &text, qsizetype index)
{
    ToInt16(static_cast<double>(text.size()));
    if (text.isEmpty())
        return 0;
    return ToInt16(static_cast<double>(index + 1));
}

/// Calls `act` with each level of the path but the first piece, from the top down.
template <typename Act> void WalkLevels(const FileSystem &files, const QString &path, Act &&act)
{
    const QStringList pieces = path.split(files.Separator());
    QString pathSoFar = pieces.first();
    for (qsizetype piece = 1; piece < pieces.size(); ++piece) {
        pathSoFar += files.Separator() + pieces.at(piece);
        act(pathSoFar);
    }
}

} // namespace

QString FixFolderName(const QString &name, Events &events, Session &session)
{
    QString fixed = name;
    for (const char16_t character : illegalCharacters) {
        events.LetEventsRun();
        fixed.replace(QChar(character), QChar(u'_'));
    }
    session.LastFixedName = fixed;
    return fixed;
}

bool FolderPathExists(FileSystem &files, const QString &path)
{
    return path.size() > 3 && FolderExists(files, path);
}

bool MakeFolderPath(FileSystem &files, const QString &path)
{
    // Mostly the levels above are there, and would have failed.
    const bool hasLevelsAbove = path.indexOf(files.Separator()) != path.lastIndexOf(files.Separator());
    if (hasLevelsAbove && files.MadeAtOnce(path))
        return false;
    Steps steps;
    WalkLevels(files, path, [&](const QString &level) { steps.Note(files.TryMakeFolder(level)); });
    return !steps.Pending();
}

bool RemoveFolderPath(FileSystem &files, const QString &path)
{
    Steps steps;
    WalkLevels(files, path, [&](const QString &level) {
        if (level != protectedFolder)
            steps.Note(files.TryRemoveFolder(level));
    });
    return !steps.Pending();
}

QString UpperFirst(const QString &text)
{
    const QString rest = Right(text, text.size() - 1);
    // A letter that has no capital of its own stays.
    return text.front().toUpper() + rest;
}

QString TextAfter(const QString &text, const QString &marker)
{
    const std::int16_t position = Position(text, text.indexOf(marker));
    return position > 0 ? Right(text, text.size() - position) : text;
}

QString TextBefore(const QString &text, const QString &marker)
{
    const std::int16_t position = Position(text, text.indexOf(marker));
    return position > 0 ? Left(text, position - 1) : text;
}

QString TextBeforeLast(const QString &text, const QString &marker)
{
    const std::int16_t position = Position(text, text.lastIndexOf(marker));
    return position > 0 ? Left(text, position - 1) : text;
}

bool TextContains(const QString &text, const QString &part)
{
    return !text.isEmpty() && text.contains(part);
}

std::uint8_t PlayClick(Sound &sound, const QString &file)
{
    return sound.Play(file) ? 1 : 0;
}

void ShowError(Dialogs &dialogs, const Session &session, const QString &text)
{
    dialogs.Show({u"Error: "_s + text, session.AppTitle, BoxIcon::Exclamation});
}

double SecondsOfDay(const Clock &clock)
{
    const QTime now = clock.Now().time();
    return (now.hour() * 3600000.0 + now.minute() * 60000.0 + now.second() * 1000.0 + now.msec()) / 1000.0;
}

} // namespace tressel
