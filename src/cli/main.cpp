// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "Commands.h"
#include "Console.h"
#include "ConsoleMachine.h"
#include "StandardStreams.h"
#include "base/Failure.h"
#include "machine/TextFile.h"
#include "machine/posix/JetDatabases.h"
#include "machine/posix/PosixClock.h"
#include "machine/posix/PosixFileSystem.h"
#include "machine/posix/PosixProgram.h"

#include <array>
#include <climits>
#include <new>
#include <unistd.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

/// Arguments as text, in which every byte of a name finds its way back to the disc.
QStringList TextOf(int count, char **arguments)
{
    QStringList texts;
    for (int index = 1; index < count; ++index)
        texts += DecodeText(QByteArray(arguments[index]), NameBytes::Raw);
    return texts;
}

QString WorkingFolder()
{
    std::array<char, PATH_MAX> folder;
    const char *path = getcwd(folder.data(), folder.size());
    return path ? DecodeText(QByteArray(path), NameBytes::Raw) : u"/"_s;
}

int Run(int count, char **arguments, StandardStreams &streams)
{
    PosixFileSystem files;
    PosixClock clock;
    PosixProgram program(count, arguments, [&streams] {
        streams.Out().Flush();
        return !streams.Out().Problem();
    });
    NoEvents events;
    JetDatabases databases(events);
    ConsoleMachine machine(files, clock, program, databases);
    StopSignals stops;
    return RunCommandLine(TextOf(count, arguments), {streams, machine.AsMachine(), stops, WorkingFolder()});
}

int TellEnd(StandardStreams &streams, const QString &reason)
{
    streams.Err().Write(EncodeText(u"tressel-cli: "_s + reason + u'\n'));
    return SomethingFailed;
}

} // namespace

int main(int count, char **arguments)
{
    FillClosedDescriptors();
    StopSignals::TakeOver();
    StandardStreams streams;
    try {
        return Run(count, arguments, streams);
    } catch (const Failure &failure) {
        return TellEnd(streams, failure.description);
    } catch (const std::bad_alloc &) {
        return TellEnd(streams, DescriptionOf(FailureNumber::OutOfMemory));
    }
}
