// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "StopRequests.h"
#include "Streams.h"
#include "machine/FileSystem.h"
#include "machine/Machine.h"

#include <QString>

#include <functional>

namespace tressel {

class Arguments;

/// What one run of the program stands in.
struct Surroundings {
    Streams &streams;
    Machine machine;
    StopRequests &stops;
    QString workingFolder; ///< absolute; relative paths of the command line start here
};

/// What a command speaks through, and what it works with. Results go to standard output, all else to standard
/// error. A name that is part of a sentence is written by SafeName, one that is a result by Shown.
class Console {
public:
    /// Takes --quiet and --null from the arguments.
    Console(const Surroundings &surroundings, const Arguments &arguments);

    Machine machine;
    Streams &streams;

    /// A path of the command line made absolute: links and ".." are resolved in the part that exists. With
    /// Links::Keep the last name is left as it is.
    QString Path(const QString &typed, Links last = Links::Follow) const;

    /// A result: the text and a line end, or a NUL with --null. Names in it have gone through Shown.
    void Line(const QString &text);
    /// What stands before others in a line: the text and a tab, or a NUL with --null.
    void Cell(const QString &text);
    /// A name as a result shows it: byte for byte, but for a terminal as SafeName has it.
    QString Shown(const QString &name) const;
    /// Something that failed: what, and why. It counts.
    void Fail(const QString &path, const Failure &failure);
    void Fail(const QString &path, const QString &reason);
    /// A sentence about something that failed. It counts.
    void FailAs(const QString &sentence);
    /// A sentence that is no failure, unless it is to be quiet.
    void Aside(const QString &sentence);
    /// Asks a person something on standard error and returns what is typed; nothing where there is nobody to
    /// ask.
    std::optional<QString> Ask(const QString &question);
    bool EndsInNul() const { return lineEnd == '\0'; }

    /// Whether anything failed so far.
    bool HasFailed() const { return hasFailed; }
    /// How the command ends if nothing else comes.
    int Status() const;

    /// To be called between two steps: throws Stopped where the run is to stop, and where nobody can take its
    /// results any more.
    void BetweenSteps();
    /// Shows how far the run is, if there is anybody to see it: a terminal whose standard output goes
    /// elsewhere.
    void ShowProgress(double done, double total);

    /// The closing line of a writing command, which counts what was really done; nothing if it is to be
    /// quiet.
    void Count(const QString &sentence);
    /// Does the work of a command and then, whatever ended it, calls `close`, which tells what was really
    /// done. A Failure that leaves the work is told as one without a target. Returns the exit status.
    int Conclude(const std::function<void()> &work, const std::function<void()> &close);

    /// Writes what is held back, and says why where that fails. Returns the exit status that `status`
    /// becomes.
    int Finish(int status);

private:
    void WriteOut(const QString &text, char end);
    void WriteAside(const QString &line);
    void ClearProgress();

    StopRequests &stops;
    QString workingFolder;
    bool isQuiet;
    char lineEnd;
    bool hasFailed = false;
    bool showsProgress;
    bool isBarDrawn = false;
    qint64 barDrawnAt = 0;
};

/// A standard output that can't be written ends a run like this. No Failure, so that no run takes it for one
/// of its own.
struct OutputLost { };

} // namespace tressel
