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

namespace {

/// The last thing before the end, when no window is left to tell it.
void SaveSettings(FileHive &hive)
{
    const QString problem = hive.FlushAtEnd();
    if (!problem.isEmpty())
        qWarning("The settings of this run could not be saved. %s", qUtf8Printable(problem));
}

} // namespace

int main(int count, char **arguments)
{
    // The toolkit takes its own options out of the arguments; the rest is the program's command line.
    QApplication toolkit(count, arguments);
    QApplication::setApplicationName(u"tressel"_s);
    QApplication::setDesktopFileName(u"tressel"_s);
    QApplication::setWindowIcon(ProgramIcon(u"tressel"_s));
    // The program ends when the main form says so: the tip window goes before the main one is there.
    QApplication::setQuitOnLastWindowClosed(false);

    const PosixSystemFacts facts;
    FileHive hive(FileHive::DefaultFolder(), facts);
    PosixProgram program(count, arguments, [&hive] { SaveSettings(hive); });
    Desktop desktop(program, hive);
    const EndSignals endSignals([&desktop] { desktop.End(); });
    desktop.Start();
    return QApplication::exec();
}
