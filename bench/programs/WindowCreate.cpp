// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

// Shows the main window, loads a list file by the button for it and presses Create:
// tressel-window-create DESTINATION LIST
// Prints the seconds on the clock and those of the processor from the first press to the last paint.

#include "machine/posix/PosixProgram.h"
#include "settings/HiveTree.h"
#include "windows/Desktop.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QTimer>

#include <cstdio>
#include <ctime>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

/// Answers the file dialog that comes up next.
void AnswerWith(const QString &file)
{
    QTimer::singleShot(0, [file] {
        auto *const dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
        if (!dialog || !dialog->isVisible()) {
            AnswerWith(file);
            return;
        }
        dialog->selectFile(file);
        QMetaObject::invokeMethod(dialog, "accept", Qt::QueuedConnection);
    });
}

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
    MemorySettingsHive hive;
    PosixProgram program(1, arguments, {});
    Desktop desktop(program, hive);
    desktop.application.settings.Write(keys::ShowTips, u"0"_s);
    desktop.application.settings.Write(keys::Sound, u"1"_s);
    desktop.application.settings.Write(keys::FileExt, u"0"_s);
    desktop.Start();
    ShowAll(desktop);

    QElapsedTimer clock;
    clock.start();
    const double before = ProcessorSeconds();
    MainForm &form = desktop.application.frmMain();
    AnswerWith(QString::fromLocal8Bit(arguments[2]));
    form.textLists.btnGBLoadFile.UserClicks();
    form.area.txtStrtPath.SetText(QString::fromLocal8Bit(arguments[1]));
    form.btnGBToolbarCreate.UserClicks();
    ShowAll(desktop);
    std::printf("%.4f %.4f\n", static_cast<double>(clock.nsecsElapsed()) / 1e9, ProcessorSeconds() - before);
    std::fflush(stdout);
    return 0;
}
