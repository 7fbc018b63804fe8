// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Console.h"
#include "ConsoleMachine.h"
#include "forms/Application.h"

namespace tressel {

/// The program as a command drives it: started without the tips, with its forms at hand.
class ConsoleProgram {
public:
    ConsoleProgram(FileSystem &disc, Clock &clock, Program &program);

    ConsoleMachine machine;
    Application application;
    MainForm &form;

private:
    MainForm &Started();
};

/// What an interrupted run does at its next step: says what was done so far, which stays, and ends the
/// process. Nothing if there was no interruption.
template <typename Conclude>
void EndIfInterrupted(Program &program, ProgressLine &progress, Conclude &&conclude)
{
    if (!WasInterrupted())
        return;
    progress.Clear();
    conclude();
    program.End(Interrupted);
}

} // namespace tressel
