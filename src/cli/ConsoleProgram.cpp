// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "ConsoleProgram.h"

namespace tressel {

using namespace Qt::StringLiterals;

ConsoleProgram::ConsoleProgram(FileSystem &disc, Clock &clock, Program &program)
    : machine(disc, clock, program)
    , application(machine.AsMachine())
    , form(Started())
{
}

MainForm &ConsoleProgram::Started()
{
    application.settings.Write(keys::ShowTips, u"0"_s);
    // No command needs the database of the last session, and opening one takes a process.
    application.settings.Write(keys::DatabaseFile, QString());
    application.Start();
    return application.frmMain();
}

} // namespace tressel
