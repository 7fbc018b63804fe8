// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "machine/EndSignals.h"
#include "machine/posix/PosixProgram.h"
#include "machine/posix/PosixSystemFacts.h"
#include "settings/FileHive.h"
#include "widgets/ProgramIcons.h"
#include "windows/Desktop.h"

#include <QApplication>

using namespace tressel;
using namespace Qt::StringLiterals;

int main(int count, char **arguments)
{
    // The toolkit gets the program's name alone: the options that it knows may be meant for nobody but the
    // program, whose command line is everything behind the name.
    int toolkitCount = count > 0 ? 1 : 0;
    QApplication toolkit(toolkitCount, arguments);
    QApplication::setApplicationName(u"tressel"_s);
    QApplication::setDesktopFileName(u"tressel"_s);
    QApplication::setWindowIcon(ProgramIcon(u"tressel"_s));
    // The program ends when the main form says so: the tip window goes before the main one is there.
    QApplication::setQuitOnLastWindowClosed(false);

    const PosixSystemFacts facts;
    FileHive hive(FileHive::DefaultFolder(), facts);
    Desktop *running = nullptr;
    PosixProgram program(count, arguments, [&] { return SaveSettings(hive, running); });
    Desktop desktop(program, hive);
    running = &desktop;
    const EndSignals endSignals([&desktop] { desktop.End(); });
    desktop.Start();
    return QApplication::exec();
}
