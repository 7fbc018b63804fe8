// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "CommandStage.h"

#include "Commands.h"
#include "Console.h"

#include <utility>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

/// The streams of a test.
class MemoryStreams : public Streams {
public:
    MemoryStreams(MemoryInput &theIn, MemoryOutput &theOut, MemoryOutput &theErr)
        : in(theIn)
        , out(theOut)
        , err(theErr)
    {
    }

    Input &In() override { return in; }
    Output &Out() override { return out; }
    Output &Err() override { return err; }
    /// The memory machine has no pipes.
    std::unique_ptr<Input> OpenPipe(const QString &) override { throw Failure(FailureNumber::FileNotFound); }

private:
    MemoryInput &in;
    MemoryOutput &out;
    MemoryOutput &err;
};

} // namespace

CommandStage::CommandStage()
{
    memory.files.PutFolder(workingFolder);
}

Ended CommandStage::Run(const QStringList &words)
{
    return Stage([&](const Surroundings &surroundings) { return RunCommandLine(words, surroundings); });
}

Ended CommandStage::RunAs(const Command &command, const QStringList &words)
{
    return Stage([&](const Surroundings &surroundings) { return RunCommand(command, words, surroundings); });
}

Ended CommandStage::Stage(const std::function<int(const Surroundings &)> &run)
{
    MemoryStreams streams(in, out, err);
    ConsoleMachine machine(*disc, memory.clock, memory.program, memory.databases);
    stops.asked = 0;
    const int status = run({streams, machine.AsMachine(), stops, workingFolder});
    return {status, std::exchange(out.written, {}), std::exchange(err.written, {})};
}

int CommandStage::Changes() const
{
    int changes = 0;
    for (const QString &change :
         {u"MakeFolder"_s, u"RemoveFolder"_s, u"RemoveFile"_s, u"Rename"_s, u"OpenForWriting"_s,
          u"WriteBytes"_s, u"ReplaceContents"_s, u"SetReadOnly"_s})
        changes += memory.journal.Count(change);
    return changes;
}

} // namespace tressel
