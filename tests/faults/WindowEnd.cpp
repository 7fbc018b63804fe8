// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

// The program with its window, without a display, which is asked to end as soon as it is up. It then saves
// its settings as at every end.

#include "machine/posix/PosixProgram.h"
#include "machine/posix/PosixSystemFacts.h"
#include "settings/FileHive.h"
#include "windows/Desktop.h"

#include <QApplication>
#include <QTimer>

using namespace tressel;

int main(int count, char **arguments)
{
    QApplication toolkit(count, arguments);
    QApplication::setQuitOnLastWindowClosed(false);
    const PosixSystemFacts facts;
    FileHive hive(FileHive::DefaultFolder(), facts);
    Desktop *running = nullptr;
    PosixProgram program(count, arguments, [&] { return SaveSettings(hive, running); });
    Desktop desktop(program, hive);
    running = &desktop;
    desktop.Start();
    QTimer::singleShot(0, [&desktop] { desktop.End(); });
    return QApplication::exec();
}
