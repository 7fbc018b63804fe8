// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "Command.h"
#include "CommandStage.h"

#include <csignal>
#include <gtest/gtest.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

class Create : public CommandStage {
protected:
    QStringList Made() { return Below(u"C:\\Work\\out"_s); }
    Ended Into(const QStringList &words)
    {
        return Run(QStringList{u"create"_s, u"--to"_s, u"out"_s} + words);
    }
    /// Expects that nothing was changed on the disc, the destination included.
    void ExpectNothingMade()
    {
        EXPECT_EQ(Changes(), 0);
        EXPECT_EQ(Below(u"C:\\Work"_s).filter(u"out"_s), QStringList());
    }
};

TEST_F(Create, LevelsAreMadeAndTheDestinationIsNotCounted)
{
    const Ended ended = Run({u"create"_s, u"one"_s, u"--to"_s, u"new\\out"_s, u"two: 2"_s, u"a\\b"_s});
    EXPECT_EQ(ended.out, "made 4, already there 0, failed 0\n");
    EXPECT_EQ(ended.err, "");
    EXPECT_EQ(ended.status, AllDone);
    EXPECT_EQ(Below(u"C:\\Work\\new\\out"_s),
              (QStringList{u"a\\"_s, u"a\\b\\"_s, u"one\\"_s, u"two_ 2\\"_s}));
}

TEST_F(Create, DestinationGoesUpWhereItSays)
{
    memory.files.PutFolder(u"C:\\Work\\a"_s);
    Run({u"create"_s, u"--to"_s, u"a\\..\\..\\b"_s, u"x"_s});
    EXPECT_TRUE(memory.files.Exists(u"C:\\b\\x"_s));
}

TEST_F(Create, EntryNeverLeadsOutOfTheDestination)
{
    memory.files.PutFolder(u"C:\\escaped"_s);
    memory.files.PutFile(u"C:\\Work\\l.txt"_s, "..\\..\\escaped\nx\\..\\y\n..\n");
    const Ended ended = Into({u"--list"_s, u"l.txt"_s});
    EXPECT_EQ(ended.out, "made 6, already there 1, failed 0\n");
    EXPECT_EQ(Made(),
              (QStringList{u"__\\"_s, u"__\\__\\"_s, u"__\\__\\escaped\\"_s, u"x\\"_s, u"x\\__\\"_s,
                           u"x\\__\\y\\"_s}));
}

TEST_F(Create, PlantedLinkIsNotGoneThrough)
{
    memory.files.PutFolder(u"C:\\Else"_s);
    memory.files.PutLink(u"C:\\Work\\out\\link"_s, u"C:\\Else"_s);
    const Ended ended = Into({u"link\\x"_s});
    EXPECT_EQ(ended.status, SomethingFailed);
    EXPECT_EQ(ended.out, "made 0, already there 0, failed 1\n");
    EXPECT_EQ(Below(u"C:\\Else"_s), QStringList());
}

TEST_F(Create, ExistingFolderGivesTheNameBeforeItASuffix)
{
    memory.files.PutFolder(u"C:\\Work\\out\\b"_s);
    EXPECT_EQ(Into({u"a"_s, u"b"_s}).out, "made 2, already there 1, failed 0\n");
    EXPECT_EQ(Made(), (QStringList{u"a\\"_s, u"a (1)\\"_s, u"b\\"_s}));
}

TEST_F(Create, FirstExistingFolderGivesTheLastNameOfTheListASuffix)
{
    memory.files.PutFolder(u"C:\\Work\\out\\a"_s);
    EXPECT_EQ(Into({u"a"_s, u"last?"_s}).out, "made 2, already there 1, failed 0\n");
    EXPECT_EQ(Made(), (QStringList{u"a\\"_s, u"last_\\"_s, u"last_ (1)\\"_s}));
}

TEST_F(Create, MendedNameThatIsThereIsLeftAlone)
{
    memory.files.PutFolder(u"C:\\Work\\out\\What_"_s);
    EXPECT_EQ(Into({u"What?"_s}).out, "made 0, already there 1, failed 0\n");
}

TEST_F(Create, EntryOfFourCharactersStandsForANewDestination)
{
    const Ended ended = Into({u"--remove-ext"_s, u"abcd"_s});
    EXPECT_EQ(ended.out, "made 1, already there 0, failed 0\n");
    EXPECT_EQ(Made(), QStringList());
    EXPECT_TRUE(memory.files.Exists(u"C:\\Work\\out"_s));
}

TEST_F(Create, ShortEntryOrNameThatCannotBeLeavesAllUnmade)
{
    const Ended ended = Into({u"--remove-ext"_s, u"one.txt"_s, u"abc"_s, QString(260, u'x'), u"two.txt"_s});
    EXPECT_EQ(ended.status, SomethingFailed);
    EXPECT_EQ(ended.out, "");
    EXPECT_EQ(ended.err,
              "tressel-cli: abc: It is too short for four characters to be taken off\n"
              "tressel-cli: "
                  + QByteArray(260, 'x')
                  + ": It is longer than 255 bytes, the most that a name can be\n"
                    "tressel-cli: nothing was made\n");
    ExpectNothingMade();
}

TEST_F(Create, ListThatCannotBeReadWholeMakesNotEvenTheDestination)
{
    memory.files.PutFile(u"C:\\Work\\l.txt"_s, "report.txt\nabc\nnotes.txt\n");
    const Ended ended = Into({u"--remove-ext"_s, u"--list"_s, u"l.txt"_s});
    EXPECT_EQ(ended.status, SomethingFailed);
    EXPECT_EQ(ended.err,
              "tressel-cli: abc: It is too short for an extension to be taken off\n"
              "tressel-cli: nothing was made\n");
    ExpectNothingMade();
}

TEST_F(Create, ListThatFailsInTheMiddleMakesNothing)
{
    memory.files.PutFile(u"C:\\Work\\l.txt"_s, "a\nb\n");
    memory.files.FailAt(Operation::ReadBytes, u"C:\\Work\\l.txt"_s, 2, FailureNumber::DeviceIoError);
    const Ended ended = Into({u"--list"_s, u"l.txt"_s});
    EXPECT_EQ(ended.err, "tressel-cli: l.txt: Device I/O error\ntressel-cli: nothing was made\n");
    EXPECT_EQ(ended.status, SomethingFailed);
    ExpectNothingMade();
}

TEST_F(Create, FolderOfNamesIsReadOnce)
{
    memory.files.PutFile(u"C:\\Work\\in\\a.txt"_s);
    memory.files.PutFile(u"C:\\Work\\in\\b.txt"_s);
    memory.files.SetHidden(u"C:\\Work\\in\\b.txt"_s);
    EXPECT_EQ(Into({u"--names-of"_s, u"in"_s}).out, "made 1, already there 0, failed 0\n");
    EXPECT_EQ(memory.journal.Count(u"List"_s), 1);
    EXPECT_EQ(Made(), QStringList{u"a.txt\\"_s});
}

TEST_F(Create, FolderOfNamesThatCannotBeReadIsNamed)
{
    memory.files.PutFolder(u"C:\\Work\\in"_s);
    memory.files.FailAt(Operation::List, u"C:\\Work\\in"_s, 1, FailureNumber::PathFileAccessError);
    EXPECT_EQ(Into({u"--names-of"_s, u"in"_s}).err,
              "tressel-cli: in: Path/File access error\ntressel-cli: nothing was made\n");
    ExpectNothingMade();
}

TEST_F(Create, ListBeyondItsIndexSaysWhy)
{
    QByteArray lines;
    for (int line = 0; line < 32768; ++line)
        lines += QByteArray::number(line) + '\n';
    in.bytes = lines;
    const Ended ended = Into({u"--list"_s, u"-"_s});
    EXPECT_EQ(ended.status, SomethingFailed);
    EXPECT_EQ(ended.err,
              "tressel-cli: 32768 names are more than the 32767 that a list of folders takes\n"
              "tressel-cli: nothing was made\n");
    ExpectNothingMade();
}

TEST_F(Create, EndlessListIsRefused)
{
    in.bytes = QByteArray((64 << 20) + 1, 'x');
    EXPECT_EQ(Into({u"--list"_s, u"-"_s}).err,
              "tressel-cli: -: It is longer than 64 MiB, the most that a list can be\n"
              "tressel-cli: nothing was made\n");
    ExpectNothingMade();
}

TEST_F(Create, ListComesFromStandardInput)
{
    in.bytes = "; comment\r\n\r\na\\b\nc";
    EXPECT_EQ(Into({u"--list"_s, u"-"_s}).out, "made 3, already there 0, failed 0\n");
    EXPECT_EQ(Made(), (QStringList{u"a\\"_s, u"a\\b\\"_s, u"c\\"_s}));
}

TEST_F(Create, NamesBetweenNulsAreTakenAsTheyStand)
{
    in.bytes = QByteArray("; a\0b c\0", 8);
    EXPECT_EQ(Into({u"--null"_s, u"--list=-"_s}).out, "made 2, already there 0, failed 0\n");
    EXPECT_EQ(Made(), (QStringList{u"; a\\"_s, u"b c\\"_s}));
}

TEST_F(Create, EmptyListMakesNothing)
{
    EXPECT_EQ(Into({u"--list"_s, u"-"_s}).out, "made 0, already there 0, failed 0\n");
    ExpectNothingMade();
}

TEST_F(Create, EachFailureNamesItsFolderAndItsReasonOnce)
{
    memory.files.PutFile(u"C:\\Work\\out\\taken"_s, "x");
    memory.files.FailAt(Operation::MakeFolder, u"C:\\Work\\out\\full"_s, 0, FailureNumber::DiskFull);
    const Ended ended = Into({u"a"_s, u"taken"_s, u"full"_s, u"taken\\below"_s});
    EXPECT_EQ(ended.out, "made 1, already there 0, failed 3\n");
    EXPECT_EQ(ended.err,
              "tressel-cli: C:\\Work\\out\\taken: Something that is no folder is in its place\n"
              "tressel-cli: C:\\Work\\out\\full: Disk full\n"
              "tressel-cli: C:\\Work\\out\\taken\\below: Something that is no folder is in its place\n");
    EXPECT_EQ(ended.status, SomethingFailed);
}

TEST_F(Create, QuietHidesNoFailure)
{
    memory.files.PutFile(u"C:\\Work\\out\\taken"_s, "x");
    const Ended ended = Into({u"--quiet"_s, u"taken"_s});
    EXPECT_EQ(ended.out, "");
    EXPECT_EQ(ended.err, "tressel-cli: C:\\Work\\out\\taken: Something that is no folder is in its place\n");
    EXPECT_EQ(ended.status, SomethingFailed);
}

TEST_F(Create, DestinationThatCannotBeMadeIsNamedOnce)
{
    memory.files.FailAt(Operation::MakeFolder, u"C:\\Work\\out"_s, 0, FailureNumber::PathFileAccessError);
    const Ended ended = Into({u"a"_s, u"b"_s});
    EXPECT_EQ(ended.err, "tressel-cli: C:\\Work\\out: Path/File access error\n");
    EXPECT_EQ(ended.out, "made 0, already there 0, failed 1\n");
    EXPECT_EQ(ended.status, SomethingFailed);
}

TEST_F(Create, DestinationThatIsAFileIsNamed)
{
    memory.files.PutFile(u"C:\\Work\\out"_s, "precious");
    EXPECT_EQ(Into({u"a"_s}).err,
              "tressel-cli: C:\\Work\\out: It is no folder\ntressel-cli: nothing was made\n");
    EXPECT_EQ(Changes(), 0);
}

TEST_F(Create, DryRunSaysWhatARunDoesAndTouchesNothing)
{
    memory.files.PutFolder(u"C:\\Work\\out\\b"_s);
    const QStringList entries{u"a\\x"_s, u"b"_s, u"a\\x"_s, u"c?"_s};
    const Ended dry = Into(QStringList{u"--dry-run"_s} + entries);
    EXPECT_EQ(dry.out,
              "make C:\\Work\\out\\a\nmake C:\\Work\\out\\a\\x\nmake C:\\Work\\out\\a\\x (1)\n"
              "make C:\\Work\\out\\c_\n");
    EXPECT_EQ(dry.err, "would have made 4, already there 2, failed 0\n");
    EXPECT_EQ(Changes(), 0);
    EXPECT_EQ(Into(entries).out, "made 4, already there 2, failed 0\n");
    EXPECT_EQ(Made(), (QStringList{u"a\\"_s, u"a\\x\\"_s, u"a\\x (1)\\"_s, u"b\\"_s, u"c_\\"_s}));
}

TEST_F(Create, DryRunShowsTheDestinationThatIsMissing)
{
    const Ended dry = Into({u"--dry-run"_s, u"--quiet"_s, u"a"_s});
    EXPECT_EQ(dry.out, "make C:\\Work\\out\nmake C:\\Work\\out\\a\n");
    EXPECT_EQ(dry.err, "");
    ExpectNothingMade();
}

TEST_F(Create, SignalIsTakenBetweenTwoFolders)
{
    stops.signal = SIGTERM;
    stops.after = 3;
    const Ended ended = Into({u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s});
    EXPECT_EQ(ended.status, 143);
    EXPECT_EQ(ended.out, "made " + QByteArray::number(Made().size()) + ", already there 0, failed 0\n");
    EXPECT_LT(Made().size(), 5);
}

TEST_F(Create, OneSourceOfNamesIsNeeded)
{
    for (const QStringList &words : {QStringList{},
                                     {u"--list=l"_s, u"a"_s},
                                     {u"--list=l"_s, u"--names-of=d"_s},
                                     {u"--names-of=d"_s, u"a"_s}}) {
        const Ended ended = Into(words);
        EXPECT_EQ(ended.status, WrongUsage);
        EXPECT_TRUE(ended.err.endsWith("(see tressel-cli create --help)\n")) << ended.err.constData();
    }
    EXPECT_EQ(Run({u"create"_s, u"a"_s}).err,
              "tressel-cli: create needs --to DIR (see tressel-cli create --help)\n");
}

} // namespace
