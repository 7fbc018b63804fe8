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
    application.Start();
    return application.frmMain();
}

} // namespace tressel
