// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "machine/posix/PosixProgram.h"
#include "settings/HiveTree.h"
#include "windows/Desktop.h"

#include <QApplication>

#include <functional>

/// The program with its main window, silent and without tips, and settings that last as long as it does.
class MeasuredWindow {
public:
    /// `arguments`: those of main, at least the program's own name.
    explicit MeasuredWindow(char **arguments);

    /// Writes a setting before the start.
    void Put(const tressel::KeyEntry &key, const QString &text);
    /// Shows the main window and lets it come to rest.
    void Start();
    tressel::MainForm &Form() { return desktop.application.frmMain(); }
    /// Has the window show all that changed.
    void ShowAll();
    /// Does something and prints the seconds on the clock and those of the processor until the window shows
    /// what came of it.
    void Measure(const std::function<void()> &act);

private:
    int argumentCount = 1;
    QApplication toolkit;
    tressel::MemorySettingsHive hive;
    tressel::PosixProgram program;
    tressel::Desktop desktop;
};

/// Answers the dialog of this kind that comes up next.
template <typename Dialog> void AnswerNext(const std::function<void(Dialog &)> &answer)
{
    QMetaObject::invokeMethod(
        qApp,
        [answer] {
            auto *const dialog = qobject_cast<Dialog *>(QApplication::activeModalWidget());
            if (dialog && dialog->isVisible())
                answer(*dialog);
            else
                AnswerNext<Dialog>(answer);
        },
        Qt::QueuedConnection);
}
