// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace tressel {

class Arguments;
class Console;

/// How a command ended, as its exit status. A run that a signal stopped ends with 128 and its number.
enum ExitStatus : int {
    AllDone = 0,
    SomethingFailed = 1,
    WrongUsage = 2,
    StoppedBySignal = 128,
};

/// An option of a command: "--name", or "--name VALUE" where it has a value.
struct CommandOption {
    QString name; ///< without its dashes
    QString value; ///< what stands for the value in a help text, "DIR" and "FILE" for paths; empty for none
    QString help; ///< what it does, in a line or more
    QStringList choices = {}; ///< all the values there are; empty for any
};

/// One command of the program: all that help, suggestions and completions say of it, and what it does.
/// It stands in a file of its own in commands/ and in the table of Commands.cpp, and nowhere else.
struct Command {
    QString name;
    QString line; ///< what it does, in one line of help
    QStringList usage; ///< what stands behind its name, one for each way to call it
    QString about; ///< what it does, in full: lines of at most 100 characters
    QList<CommandOption> options; ///< --help is understood without being told
    QStringList words; ///< what its first operand can be; empty for anything
    QString example; ///< a command line that does something useful, and what that is
    /// Does it, with arguments that fit the options. What a person did wrong leaves as UsageError, a stop
    /// as Stopped; a Failure that leaves it is told without a target.
    int (*run)(const Arguments &arguments, Console &console);
};

/// Options that mean the same wherever they are understood.
namespace shared {
const CommandOption &Quiet(); ///< no progress and no closing line
const CommandOption &DryRun(); ///< says what would be done, and does nothing
const CommandOption &Null(); ///< names end in NUL
const CommandOption &Force(); ///< may overwrite an output file
} // namespace shared

} // namespace tressel
