// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace tressel {

/// The running program: where its files are, what it was started with, and how it ends.
class Program {
public:
    virtual ~Program() = default;

    /// The folder with the language files, the tips and the click sound; without a separator at its end.
    virtual QString Folder() const = 0;
    /// Where the program may write files of its own: the program folder itself, or the user's data
    /// folder where the program folder can't be written.
    virtual QString WritableFolder() const = 0;
    /// The file name of the program without its extension.
    virtual QString ExecutableName() const = 0;
    /// Everything behind the program's name, as one string.
    virtual QString CommandLine() const = 0;
    /// Ends the process at once, with this exit status; nothing on the stack is unwound.
    [[noreturn]] virtual void End(int status) = 0;
};

} // namespace tressel
