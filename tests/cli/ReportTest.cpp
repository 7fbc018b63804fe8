// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "Command.h"
#include "CommandStage.h"

#include <csignal>
#include <gtest/gtest.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

/// A folder "w" with two files, a folder in it with one, and in that an empty one.
class Report : public CommandStage {
protected:
    Report()
    {
        memory.files.PutFile(u"C:\\Work\\w\\b.mp3"_s, "12");
        memory.files.PutFile(u"C:\\Work\\w\\a.mp3"_s, "1");
        memory.files.PutFile(u"C:\\Work\\w\\Live\\c.mp3"_s);
        memory.files.PutFolder(u"C:\\Work\\w\\Live\\old"_s);
    }
    Ended Of(const QStringList &words) { return Run(QStringList{u"report"_s, u"w"_s} + words); }

    const QByteArray whole = "************************\n Start Of File Listing: \n************************\n"
                             " \nC:\\Work\\w\n   a.mp3\n   b.mp3\n \n"
                             " \nC:\\Work\\w\\Live\n   c.mp3\n \n"
                             " \nC:\\Work\\w\\Live\\old\n \n";
};

TEST_F(Report, LinesGoToStandardOutputAndTheCountBesideThem)
{
    const Ended ended = Of({});
    EXPECT_EQ(ended.out, whole);
    EXPECT_EQ(ended.err, "listed 3 folders, 3 files, unreadable 0\n");
    EXPECT_EQ(ended.status, AllDone);
    EXPECT_EQ(Changes(), 0);
}

TEST_F(Report, EachFolderIsReadOnceAndNoLengthIsAskedFor)
{
    Of({});
    EXPECT_EQ(memory.journal.About(u"List"_s),
              (QStringList{u"C:\\Work\\w"_s, u"C:\\Work\\w\\Live"_s, u"C:\\Work\\w\\Live\\old"_s}));
}

TEST_F(Report, DashIsStandardOutput)
{
    EXPECT_EQ(Of({u"--output"_s, u"-"_s}).out, whole);
    EXPECT_EQ(Changes(), 0);
}

TEST_F(Report, FoldersAloneAreALineEach)
{
    EXPECT_EQ(Of({u"--folders-only"_s}).out, "C:\\Work\\w \nC:\\Work\\w\\Live \nC:\\Work\\w\\Live\\old \n");
    EXPECT_EQ(Of({u"--folders-only"_s}).err, "listed 3 folders, unreadable 0\n");
}

TEST_F(Report, NulsTellALineBreakFromTwoNames)
{
    EXPECT_EQ(Of({u"--null"_s, u"--folders-only"_s}).out,
              QByteArray("C:\\Work\\w |C:\\Work\\w\\Live |C:\\Work\\w\\Live\\old |").replace('|', '\0'));
}

TEST_F(Report, NamesAreQuotedForATerminalAlone)
{
    memory.files.PutFile(u"C:\\Work\\w\\Live\\old\\x\u202ey"_s);
    EXPECT_TRUE(Of({}).out.contains("   x\u202ey\n"));
    out.isTerminal = true;
    EXPECT_TRUE(Of({}).out.contains("   'x'$'\\342\\200\\256''y'\n"));
}

TEST_F(Report, OutputInsideTheTreeDoesNotListItself)
{
    const Ended ended = Of({u"--names-only"_s, u"--output"_s, u"w\\Live\\r.txt"_s});
    EXPECT_EQ(ended.err, "");
    EXPECT_EQ(ended.out, "listed 3 folders, 3 files, unreadable 0\n");
    EXPECT_EQ(memory.files.Bytes(u"C:\\Work\\w\\Live\\r.txt"_s),
              " \r\nC:\\Work\\w\r\na.mp3\r\nb.mp3\r\n \r\n \r\nC:\\Work\\w\\Live\r\nc.mp3\r\n \r\n"
              " \r\nC:\\Work\\w\\Live\\old\r\n \r\n");
    const QByteArray first = memory.files.Bytes(u"C:\\Work\\w\\Live\\r.txt"_s);
    EXPECT_EQ(Of({u"--names-only"_s, u"--force"_s, u"--output"_s, u"w\\Live\\r.txt"_s}).status, AllDone);
    EXPECT_EQ(memory.files.Bytes(u"C:\\Work\\w\\Live\\r.txt"_s), first);
}

TEST_F(Report, OutputThatIsThereIsReplacedByForceAlone)
{
    memory.files.PutFile(u"C:\\Work\\r.txt"_s, "precious");
    const Ended refused = Of({u"--output=r.txt"_s});
    EXPECT_EQ(refused.status, SomethingFailed);
    EXPECT_EQ(refused.err, "tressel-cli: C:\\Work\\r.txt: File already exists\n");
    EXPECT_EQ(memory.files.Bytes(u"C:\\Work\\r.txt"_s), "precious");
    EXPECT_EQ(Of({u"--output=r.txt"_s, u"--force"_s, u"--folders-only"_s}).status, AllDone);
    EXPECT_TRUE(memory.files.Bytes(u"C:\\Work\\r.txt"_s).startsWith("C:\\Work\\w \r\n"));
}

TEST_F(Report, StoppedRunLeavesNoOutput)
{
    stops.signal = SIGTERM;
    stops.after = 2;
    EXPECT_EQ(Of({u"--output=r.txt"_s}).status, 143);
    EXPECT_FALSE(memory.files.Exists(u"C:\\Work\\r.txt"_s));
    EXPECT_EQ(Below(u"C:\\Work"_s).filter(u"r.txt"_s), QStringList());
}

TEST_F(Report, StoppedRunTellsWhatItListed)
{
    stops.signal = SIGINT;
    stops.after = 2;
    const Ended ended = Of({});
    EXPECT_EQ(ended.status, 130);
    EXPECT_EQ(ended.err, "listed 2 folders, 3 files, unreadable 0\n");
}

TEST_F(Report, UnreadableFolderIsNamedAndItsPathListed)
{
    memory.files.FailAt(Operation::List, u"C:\\Work\\w\\Live"_s, 1, FailureNumber::PathFileAccessError);
    const Ended ended = Of({u"--quiet"_s, u"--names-only"_s});
    EXPECT_EQ(ended.out, " \nC:\\Work\\w\na.mp3\nb.mp3\n \n \nC:\\Work\\w\\Live\n \n");
    EXPECT_EQ(ended.err, "tressel-cli: C:\\Work\\w\\Live: Path/File access error\n");
    EXPECT_EQ(ended.status, SomethingFailed);
}

TEST_F(Report, LinkIsListedAndNotFollowed)
{
    memory.files.PutLink(u"C:\\Work\\w\\Live\\old\\up"_s, u"C:\\Work\\w"_s);
    EXPECT_TRUE(Of({u"--names-only"_s}).out.endsWith("\\old\nup\n \n"));
}

TEST_F(Report, LinkOnTheCommandLineIsResolved)
{
    memory.files.PutLink(u"C:\\Work\\link"_s, u"w\\Live"_s);
    EXPECT_EQ(Run({u"report"_s, u"link\\old\\..\\.."_s, u"--folders-only"_s}).out,
              "C:\\Work\\w \nC:\\Work\\w\\Live \nC:\\Work\\w\\Live\\old \n");
}

TEST_F(Report, LostOutputEndsTheRun)
{
    out.problem = Failure(FailureNumber::DiskFull);
    const Ended ended = Of({});
    EXPECT_EQ(ended.status, SomethingFailed);
    EXPECT_TRUE(ended.err.endsWith("tressel-cli: standard output: Disk full\n"));
    EXPECT_EQ(memory.journal.Count(u"List"_s), 0);
}

TEST_F(Report, NeedsOneFolder)
{
    EXPECT_EQ(Run({u"report"_s}).status, WrongUsage);
    EXPECT_EQ(Run({u"report"_s, u""_s}).status, WrongUsage);
    EXPECT_EQ(Of({u"w"_s}).status, WrongUsage);
    EXPECT_EQ(Of({u"--output"_s}).status, WrongUsage);
    EXPECT_EQ(Of({u"--output=x"_s, u"--output=y"_s}).status, WrongUsage);
    EXPECT_EQ(Run({u"report"_s, u"none"_s}).err,
              "tressel-cli: C:\\Work\\none: It is no folder that could be listed\n");
}

} // namespace
