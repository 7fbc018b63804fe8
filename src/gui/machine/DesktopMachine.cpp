// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "machine/DesktopMachine.h"

namespace tressel {

using namespace Qt::StringLiterals;

DesktopMachine::DesktopMachine(Program &runningProgram, SettingsHive &settingsHive)
    : program(runningProgram)
    , hive(settingsHive)
    , dialogs(cursor, u"Tressel"_s)
    , events(updates, cursor)
    , databases(events)
{
}

Machine DesktopMachine::AsMachine()
{
    return {files,  hive,      clock,  sound,   shell,     dialogs,
            events, clipboard, screen, program, databases, network};
}

} // namespace tressel
