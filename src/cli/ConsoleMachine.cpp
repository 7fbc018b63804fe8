// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "ConsoleMachine.h"

#include "base/Failure.h"

namespace tressel {

BoxAnswer ConsoleDialogs::Show(const MessageBox &box)
{
    const auto answer = onBox ? onBox(box) : std::nullopt;
    if (!answer)
        throw Unanswered{box.text};
    return *answer;
}

void ConsoleDialogs::ShowFatal(int number, const QString &description)
{
    throw Failure(static_cast<FailureNumber>(number), description);
}

std::optional<FileDialogAnswer> ConsoleDialogs::OpenFile(const FileDialogRequest &request)
{
    throw Unanswered{request.title};
}

std::optional<FileDialogAnswer> ConsoleDialogs::SaveFile(const FileDialogRequest &request)
{
    throw Unanswered{request.title};
}

std::optional<QString> ConsoleDialogs::ChooseFolder(const QString &prompt, const QString &)
{
    throw Unanswered{prompt};
}

std::optional<quint32> ConsoleDialogs::ChooseColour(quint32)
{
    throw Unanswered{QStringLiteral("colour")};
}

std::optional<FontChoice> ConsoleDialogs::ChooseFont(const FontChoice &)
{
    throw Unanswered{QStringLiteral("font")};
}

ConsoleMachine::ConsoleMachine(FileSystem &fileSystem, Clock &systemClock, Program &runningProgram,
                               Databases &readDatabases)
    : files(fileSystem)
    , clock(systemClock)
    , databases(readDatabases)
    , program(runningProgram)
{
}

Machine ConsoleMachine::AsMachine()
{
    return {files,  hive,      clock,  sound,   shell,     dialogs,
            events, clipboard, screen, program, databases, network};
}

} // namespace tressel
