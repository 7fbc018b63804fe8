// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "ConsoleMachine.h"

#include "Console.h"

namespace tressel {

using namespace Qt::StringLiterals;

BoxAnswer ConsoleDialogs::Show(const MessageBox &box)
{
    PrintError(box.text);
    return box.defaultAnswer.value_or(BoxAnswer::Ok);
}

void ConsoleDialogs::ShowFatal(int number, const QString &description)
{
    PrintError(u"Run-time error '%1': %2"_s.arg(number).arg(description));
}

std::optional<FileDialogAnswer> ConsoleDialogs::OpenFile(const FileDialogRequest &request)
{
    if (namedFile.isEmpty())
        return {};
    return FileDialogAnswer{{namedFile}, request.folder};
}

ConsoleMachine::ConsoleMachine(FileSystem &fileSystem, Clock &systemClock, Program &runningProgram)
    : files(fileSystem)
    , clock(systemClock)
    , program(runningProgram)
{
}

Machine ConsoleMachine::AsMachine()
{
    return {files, hive, clock, sound, shell, dialogs, events, clipboard, screen, program, databases};
}

} // namespace tressel
