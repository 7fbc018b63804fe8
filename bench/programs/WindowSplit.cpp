// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

// Shows the main window and has its splitter page work: tressel-window-split split|join FILE
// A split gives parts of 100 MiB. Prints the seconds on the clock and those of the processor from the press
// of the button to the last paint.

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
    if (count != 3)
        return 2;
    const bool joins = QString::fromLocal8Bit(arguments[1]) == u"join"_s;
    MemorySettingsHive hive;
    PosixProgram program(1, arguments, {});
    Desktop desktop(program, hive);
    desktop.application.settings.Write(keys::ShowTips, u"0"_s);
    desktop.application.settings.Write(keys::Sound, u"1"_s);
    desktop.application.settings.Write(keys::SplitSize, u"102400"_s);
    desktop.application.settings.Write(keys::OpenExplorer, u"0"_s);
    desktop.application.settings.Write(keys::DeleteParts, u"0"_s);
    desktop.Start();
    SplitterPage &page = desktop.application.frmMain().splitter;
    page.cboFileName.UserEdits(QString::fromLocal8Bit(arguments[2]));
    ShowAll(desktop);

    QElapsedTimer clock;
    clock.start();
    const double before = ProcessorSeconds();
    (joins ? page.btnGBJoinFile : page.btnGBSplitFile).UserClicks();
    ShowAll(desktop);
    std::printf("%.4f %.4f\n", static_cast<double>(clock.nsecsElapsed()) / 1e9, ProcessorSeconds() - before);
    std::fflush(stdout);
    return page.lblFileCount.Caption().contains(u"Finished"_s) ? 0 : 1;
}
