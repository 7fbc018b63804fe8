// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "CommandStage.h"
#include "Commands.h"
#include "Console.h"
#include "Tally.h"

#include <csignal>
#include <gtest/gtest.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

class CommandLine : public CommandStage { };

TEST_F(CommandLine, HelpNamesEveryCommandWithItsLine)
{
    for (const QString &word : {u"--help"_s, u"-h"_s}) {
        const Ended ended = Run({word});
        EXPECT_EQ(ended.status, AllDone);
        EXPECT_EQ(ended.err, "");
        for (const Command &command : Commands())
            EXPECT_TRUE(ended.out.contains((u"  "_s + command.name).toUtf8())
                        && ended.out.contains(command.line.toUtf8()));
    }
}

TEST_F(CommandLine, EachCommandHasHelpWithItsOptionsAndAnExample)
{
    for (const Command &command : Commands()) {
        const Ended ended = Run({command.name, u"--help"_s});
        EXPECT_EQ(ended.status, AllDone);
        EXPECT_EQ(ended.err, "");
        EXPECT_EQ(Run({command.name, u"-h"_s}).out, ended.out);
        EXPECT_TRUE(ended.out.startsWith("Usage: tressel-cli " + command.name.toUtf8() + ' '));
        EXPECT_TRUE(ended.out.contains("\nExample: tressel-cli " + command.name.toUtf8() + ' '));
        for (const CommandOption &option : command.options)
            EXPECT_TRUE(ended.out.contains("  --" + option.name.toUtf8())) << option.name.toStdString();
        for (const QByteArray &line : ended.out.split('\n'))
            EXPECT_LE(QString::fromUtf8(line).size(), 110) << line.constData();
    }
}

TEST_F(CommandLine, HelpComesWhateverElseIsWrong)
{
    const Ended ended = Run({u"create"_s, u"--bogus"_s, u"-h"_s});
    EXPECT_EQ(ended.status, AllDone);
    EXPECT_TRUE(ended.out.startsWith("Usage: tressel-cli create"));
}

TEST_F(CommandLine, WrongUsageNamesTheHelpOfItsCommand)
{
    const Ended ended = Run({u"report"_s, u"--folder-only"_s, u"x"_s});
    EXPECT_EQ(ended.status, WrongUsage);
    EXPECT_EQ(ended.out, "");
    EXPECT_EQ(ended.err,
              "tressel-cli: unknown option --folder-only, did you mean --folders-only? "
              "(see tressel-cli report --help)\n");
}

TEST_F(CommandLine, UnknownCommandIsGuessed)
{
    EXPECT_EQ(Run({u"serise"_s}).err,
              "tressel-cli: unknown command serise, did you mean series? (see tressel-cli --help)\n");
    EXPECT_EQ(Run({u"\033[2J"_s}).err,
              "tressel-cli: unknown command ''$'\\033''[2J' (see tressel-cli --help)\n");
    EXPECT_EQ(Run({}).err, "tressel-cli: no command given (see tressel-cli --help)\n");
    EXPECT_EQ(Run({}).status, WrongUsage);
}

TEST_F(CommandLine, VersionIsALine)
{
    EXPECT_EQ(Run({u"--version"_s}).out, "tressel-cli 5.0.1450\n");
}

TEST_F(CommandLine, StandardOutputThatIsLostIsAFailure)
{
    out.problem = Failure(FailureNumber::DiskFull);
    for (const QStringList &words : {QStringList{u"--help"_s},
                                     {u"--version"_s},
                                     {u"create"_s, u"-h"_s},
                                     {u"create"_s, u"--to"_s, u"o"_s, u"a"_s}}) {
        const Ended ended = Run(words);
        EXPECT_EQ(ended.status, SomethingFailed);
        EXPECT_EQ(ended.err, "tressel-cli: standard output: Disk full\n") << words.join(u' ').toStdString();
    }
}

TEST_F(CommandLine, CompletionsKnowEveryCommandAndOption)
{
    for (const QString &shell : {u"bash"_s, u"zsh"_s, u"fish"_s}) {
        const Ended ended = Run({u"completions"_s, shell});
        EXPECT_EQ(ended.status, AllDone);
        for (const Command &command : Commands()) {
            EXPECT_TRUE(ended.out.contains(command.name.toUtf8()));
            for (const CommandOption &option : command.options)
                EXPECT_TRUE(ended.out.contains(option.name.toUtf8())) << option.name.toStdString();
        }
    }
    EXPECT_EQ(Run({u"completions"_s, u"csh"_s}).status, WrongUsage);
}

class ConsoleTest : public CommandStage {
protected:
    /// Does something as the run of a command with these options would.
    Ended With(const QStringList &options, int (*run)(const Arguments &, Console &))
    {
        const Command command{u"sample"_s, {}, {}, {}, {shared::Quiet(), shared::Null()}, {}, {}, run};
        return RunAs(command, options);
    }
};

TEST_F(ConsoleTest, BarIsDrawnWhereStandardErrorAloneIsATerminal)
{
    const auto run = [](const Arguments &, Console &console) {
        console.ShowProgress(1, 4);
        return console.Status();
    };
    EXPECT_EQ(With({}, run).err, "");
    err.isTerminal = true;
    EXPECT_EQ(With({}, run).err, "\r[##########..............................] 1 of 4\033[K\r\033[K");
    EXPECT_EQ(With({u"--quiet"_s}, run).err, "");
    out.isTerminal = true;
    EXPECT_EQ(With({}, run).err, "");
}

TEST_F(ConsoleTest, BarMakesRoomForAMessage)
{
    err.isTerminal = true;
    const Ended ended = With({}, [](const Arguments &, Console &console) {
        console.ShowProgress(1, 4);
        console.Fail(u"C:\\a\nb"_s, Failure(FailureNumber::DiskFull));
        return console.Status();
    });
    EXPECT_TRUE(ended.err.endsWith("\033[K\r\033[Ktressel-cli: 'C:\\a'$'\\n''b': Disk full\n"));
    EXPECT_EQ(ended.status, SomethingFailed);
}

TEST_F(ConsoleTest, QuietTakesTheCountAwayAndNoFailure)
{
    const auto run = [](const Arguments &, Console &console) {
        console.Fail(u"x"_s, u"Because"_s);
        console.Aside(u"by the way"_s);
        console.Count(u"did 1"_s);
        return console.Status();
    };
    EXPECT_EQ(With({}, run).out, "did 1\n");
    const Ended ended = With({u"--quiet"_s}, run);
    EXPECT_EQ(ended.out, "");
    EXPECT_EQ(ended.err, "tressel-cli: x: Because\n");
    EXPECT_EQ(ended.status, SomethingFailed);
}

TEST_F(ConsoleTest, NamesGoRawIntoAPipeAndQuotedToATerminal)
{
    const auto run = [](const Arguments &, Console &console) {
        console.Line(u"make "_s + console.Shown(u"a\nb"_s));
        return console.Status();
    };
    EXPECT_EQ(With({}, run).out, "make a\nb\n");
    EXPECT_EQ(With({u"--null"_s}, run).out, QByteArray("make a\nb\0", 9));
    out.isTerminal = true;
    EXPECT_EQ(With({}, run).out, "make 'a'$'\\n''b'\n");
}

TEST_F(ConsoleTest, SignalEndsTheWorkAndTheCountIsTold)
{
    const auto run = [](const Arguments &, Console &console) {
        Tally tally(console);
        return console.Conclude(
            [&] {
                for (int step = 0; step < 10; ++step) {
                    tally.Next({});
                    tally.Did(Outcome::Made, {});
                }
            },
            [&] { console.Count(u"made %1"_s.arg(tally.Count(Outcome::Made))); });
    };
    stops.after = 2;
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        stops.signal = signal;
        const Ended ended = With({}, run);
        EXPECT_EQ(ended.out, "made 2\n");
        EXPECT_EQ(ended.status, 128 + signal);
    }
}

TEST_F(ConsoleTest, WhateverLeavesACommandHasWords)
{
    EXPECT_EQ(
        With({}, [](const Arguments &, Console &) -> int { throw Failure(FailureNumber::DeviceIoError); })
            .err,
        "tressel-cli: Device I/O error\n");
    const Ended ended = With({}, [](const Arguments &, Console &) -> int { throw std::bad_alloc(); });
    EXPECT_EQ(ended.err, "tressel-cli: Out of memory\n");
    EXPECT_EQ(ended.status, SomethingFailed);
}

TEST_F(ConsoleTest, QuestionWithoutAnAnswerEndsTheCommand)
{
    const Ended ended = With({}, [](const Arguments &, Console &console) -> int {
        console.machine.dialogs.Show({u"Overwrite?"_s, {}, BoxIcon::Question, BoxButtons::YesNo});
        return AllDone;
    });
    EXPECT_EQ(ended.err, "tressel-cli: there is no answer to: Overwrite?\n");
    EXPECT_EQ(ended.status, SomethingFailed);
}

} // namespace
