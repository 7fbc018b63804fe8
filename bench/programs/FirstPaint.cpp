// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

// Starts the program as its own entry does and ends with the first paint of the main window. With
// --prepare it only notes in the settings that there is to be no tip window before it.

#include "FirstPaint.h"

#include "machine/posix/PosixProgram.h"
#include "machine/posix/PosixSystemFacts.h"
#include "settings/FileHive.h"
#include "widgets/ProgramIcons.h"
#include "windows/Desktop.h"

#include <QApplication>

#include <cstring>

using namespace tressel;
using namespace Qt::StringLiterals;

int main(int count, char **arguments)
{
    QApplication toolkit(count, arguments);
    QApplication::setApplicationName(u"tressel"_s);
    QApplication::setWindowIcon(ProgramIcon(u"tressel"_s));
    const PosixSystemFacts facts;
    FileHive hive(FileHive::DefaultFolder(), facts);
    PosixProgram program(count, arguments, {});
    Desktop desktop(program, hive);
    if (count > 1 && std::strcmp(arguments[1], "--prepare") == 0) {
        desktop.application.settings.Write(keys::ShowTips, u"0"_s);
        hive.Flush();
        return 0;
    }
    EndWithFirstPaint end;
    desktop.Start();
    return QApplication::exec();
}
