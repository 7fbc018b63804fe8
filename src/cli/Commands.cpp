// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "Commands.h"

#include "Arguments.h"
#include "Console.h"
#include "Help.h"
#include "SafeName.h"
#include "commands/CommandFiles.h"

#include <algorithm>
#include <new>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

/// What the program's own words are understood with: it has no options but those looked for beforehand.
const Command &NoCommand()
{
    static const Command none{};
    return none;
}

QStringList NamesOfCommands()
{
    QStringList names;
    for (const Command &command : Commands())
        names += command.name;
    return names;
}

const Command &CommandOf(const QString &name)
{
    if (name.isEmpty())
        throw UsageError{u"no command given"_s};
    const QList<Command> &all = Commands();
    const auto found =
        std::ranges::find_if(all, [&](const Command &command) { return command.name == name; });
    if (found != all.end())
        return *found;
    throw UsageError{u"unknown command %1%2"_s.arg(SafeName(name), DidYouMean(name, NamesOfCommands()))};
}

int ShowText(const QString &text, const Surroundings &surroundings)
{
    Console console(surroundings, Arguments(NoCommand(), {}));
    console.Line(text);
    return console.Finish(AllDone);
}

int TellUsageError(const UsageError &error, const QString &help, const Surroundings &surroundings)
{
    Console console(surroundings, Arguments(NoCommand(), {}));
    console.FailAs(u"%1 (see %2)"_s.arg(error.sentence, help));
    return WrongUsage;
}

} // namespace

const QList<Command> &Commands()
{
    static const QList<Command> all{CreateCommand(), SeriesCommand(),   ReportCommand(),
                                    RenameCommand(), DatabaseCommand(), CompletionsCommand()};
    return all;
}

int RunCommand(const Command &command, const QStringList &words, const Surroundings &surroundings)
{
    const Arguments arguments(command, words);
    Console console(surroundings, arguments);
    int status = AllDone;
    const int endedBy = console.Conclude([&] { status = command.run(arguments, console); }, [] {});
    return console.Finish(endedBy == AllDone ? status : endedBy);
}

int RunCommandLine(const QStringList &words, const Surroundings &surroundings)
{
    QString help = u"tressel-cli --help"_s;
    try {
        const QString first = words.value(0);
        if (first == u"--help"_s || first == u"-h"_s)
            return ShowText(HelpOfProgram(), surroundings);
        if (first == u"--version"_s)
            return ShowText(VersionLine(), surroundings);
        const Command &command = CommandOf(first);
        help = u"tressel-cli %1 --help"_s.arg(command.name);
        const QStringList rest = words.mid(1);
        if (Arguments::AskForHelp(command, rest))
            return ShowText(HelpOf(command), surroundings);
        return RunCommand(command, rest, surroundings);
    } catch (const UsageError &error) {
        return TellUsageError(error, help, surroundings);
    }
}

} // namespace tressel
