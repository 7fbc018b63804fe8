// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ConsoleMachine.h"
#include "StopRequests.h"
#include "Streams.h"
#include "support/MemoryMachine.h"

#include <functional>
#include <gtest/gtest.h>
#include <ostream>

/// Bytes as GoogleTest prints them when an assertion fails.
inline void PrintTo(const QByteArray &bytes, std::ostream *out)
{
    *out << '"' << bytes.constData() << '"';
}

namespace tressel {

struct Command;
struct Surroundings;

/// A stream in memory that a command writes to.
class MemoryOutput : public Output {
public:
    void Write(QByteArrayView bytes) override
    {
        if (!problem)
            written += bytes;
    }
    void Flush() override { }
    std::optional<Failure> Problem() const override { return problem; }
    bool IsTerminal() const override { return isTerminal; }

    QByteArray written;
    std::optional<Failure> problem; ///< from now on nothing is taken any more
    bool isTerminal = false;
};

/// A stream in memory that a command reads.
class MemoryInput : public Input {
public:
    QByteArray Read(qint64 maximum) override
    {
        const QByteArray piece = bytes.left(maximum);
        bytes.remove(0, piece.size());
        return piece;
    }
    bool IsTerminal() const override { return isTerminal; }

    QByteArray bytes;
    bool isTerminal = false;
};

/// A wish to stop that a test has queued.
class MemoryStops : public StopRequests {
public:
    int Pending() override { return asked++ >= after ? signal : 0; }

    int signal = 0;
    int after = 0; ///< so many steps are left alone before
    int asked = 0;
};

/// How a run in process ended, and what it said.
struct Ended {
    int status = -1;
    QByteArray out;
    QByteArray err;
};

/// A place for commands that run in the test's own process: a memory machine and streams in memory. The
/// folder they are started in is C:\Work.
class CommandStage : public testing::Test {
protected:
    CommandStage();

    /// Runs the program with the words behind its name.
    Ended Run(const QStringList &words);
    /// Runs a command of the test's own.
    Ended RunAs(const Command &command, const QStringList &words);
    /// What stands below a folder, as MemoryFileSystem::Tree has it.
    QStringList Below(const QString &folder) { return memory.files.Tree(folder); }
    /// How often the disc was changed.
    int Changes() const;

private:
    Ended Stage(const std::function<int(const Surroundings &)> &run);

protected:
    MemoryMachine memory;
    FileSystem *disc = &memory.files; ///< what commands work on
    MemoryInput in;
    MemoryOutput out;
    MemoryOutput err;
    MemoryStops stops;
    QString workingFolder = QStringLiteral("C:\\Work");
};

} // namespace tressel
