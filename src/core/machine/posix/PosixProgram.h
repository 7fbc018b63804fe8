// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "machine/Program.h"

#include <QByteArray>

#include <functional>

namespace tressel {

/// The whole path of the executable that runs; empty if the system doesn't tell.
QByteArray RunningExecutable();

/// The running process. Its program folder is the folder of the executable if the program's files lie
/// there, as in a build tree or a portable unpack, else share/tressel beside the folder of the executable.
class PosixProgram : public Program {
public:
    /// The arguments are those of `main`, the program's own name first. `beforeEnd` is called by End, to
    /// write down what is still held in memory; if it says that this failed, no status says that all went
    /// well. It may be empty.
    PosixProgram(int count, char **arguments, std::function<bool()> beforeEnd);
    /// The same for an executable that is somewhere else.
    PosixProgram(QByteArray executable, int count, char **arguments, std::function<bool()> beforeEnd);

    QString Folder() const override;
    /// The program folder if this user may write there, else "tressel" in the user's data folder, which is
    /// made if it isn't there.
    QString WritableFolder() const override;
    QString ExecutableName() const override;
    /// The arguments with one blank between them, so that a path with blanks, which a shell hands over as
    /// one argument, still names its file.
    QString CommandLine() const override;
    [[noreturn]] void End(int status) override;

private:
    QByteArray executable; ///< whole path
    QByteArray folder;
    QByteArray commandLine;
    std::function<bool()> beforeEnd;
};

} // namespace tressel
