// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace tressel {

/// How a command ended, as its exit status.
enum ExitStatus : int {
    AllDone = 0,
    SomethingFailed = 1,
    WrongUsage = 2,
    Interrupted = 130, ///< 128 + SIGINT, as shells have it
};

/// A line on standard output, names that aren't UTF-8 byte for byte.
void Print(const QString &line);

/// The same on standard error, where standard output is taken by what the command was asked for.
void PrintAside(const QString &line);

/// "tressel-cli: " and a sentence on standard error.
void PrintError(const QString &sentence);

/// From here on SIGINT and SIGTERM are only noted.
void NoteInterruptions();
bool WasInterrupted();

/// A bar on standard error that shows how far a run is; nothing where that isn't a terminal.
class ProgressLine {
public:
    explicit ProgressLine(bool wanted);
    ~ProgressLine();
    ProgressLine(const ProgressLine &) = delete;
    ProgressLine &operator=(const ProgressLine &) = delete;

    /// True if there is anybody to see it and the last time that it was drawn is a twentieth of a second ago.
    bool IsDue() const;
    /// Draws the bar anew if that is due.
    void Show(double done, double total);
    /// Takes the bar away, to make room for a line.
    void Clear();
    bool IsShown() const { return isShown; }

private:
    bool isShown;
    bool isDrawn = false;
    qint64 lastDrawn = 0;
};

} // namespace tressel
