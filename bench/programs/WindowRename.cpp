// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

// Shows the main window and has its rename page put the files of a folder into upper case:
// tressel-window-rename FOLDER
// Prints the seconds on the clock and those of the processor from the press to the last paint.

#include "machine/posix/PosixProgram.h"
#include "settings/HiveTree.h"
#include "windows/Desktop.h"

#include <QApplication>
#include <QElapsedTimer>

#include <cstdio>
#include <ctime>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

/// Has the window show all that changed.
void ShowAll(Desktop &desktop)
{
    desktop.machine.updates.Flush();
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

double ProcessorSeconds()
{
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

} // namespace

int main(int count, char **arguments)
{
    QApplication toolkit(count, arguments);
    if (count != 2)
        return 2;
    MemorySettingsHive hive;
    PosixProgram program(1, arguments, {});
    Desktop desktop(program, hive);
    desktop.application.settings.Write(keys::ShowTips, u"0"_s);
    desktop.application.settings.Write(keys::Sound, u"1"_s);
    desktop.application.settings.Write(keys::IndxBar, u"7"_s);
    desktop.Start();
    RenamePage &page = desktop.application.frmMain().rename;
    page.txtCurrentPath.SetText(QString::fromLocal8Bit(arguments[1]));
    page.optCase.Select(RenamePage::Uppercase);
    ShowAll(desktop);

    QElapsedTimer clock;
    clock.start();
    const double before = ProcessorSeconds();
    page.btnGBRename.UserClicks();
    ShowAll(desktop);
    std::printf("%.4f %.4f\n", static_cast<double>(clock.nsecsElapsed()) / 1e9, ProcessorSeconds() - before);
    std::fflush(stdout);
    return 0;
}
