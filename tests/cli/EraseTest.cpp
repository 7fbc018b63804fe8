// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "Command.h"
#include "CommandStage.h"

#include <csignal>
#include <gtest/gtest.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

class Erase : public CommandStage {
protected:
    Erase() { memory.files.PutFile(u"C:\\Work\\f"_s, QByteArray(10000, 'a')); }

    Ended EraseF(const QStringList &more = {})
    {
        return Run(QStringList{u"erase"_s, u"--yes"_s, u"f"_s} + more);
    }
    bool IsThere(const QString &name) { return memory.files.Exists(u"C:\\Work\\"_s + name); }
};

TEST_F(Erase, FileIsOverwrittenRenamedCutAndRemoved)
{
    memory.files.SetPlace(u"C:\\Work\\f"_s, 8192);
    const Ended ended = EraseF({u"--passes"_s, u"2"_s});
    EXPECT_EQ(ended.status, AllDone);
    EXPECT_EQ(ended.out, "C:\\Work\\f: overwritten in place\nerased 1, failed 0\n");
    EXPECT_EQ(Below(u"C:\\Work"_s), QStringList());
    QStringList steps;
    for (const JournalEntry &entry : memory.journal.Entries()) {
        if (entry.what != u"Status")
            steps += entry.what;
    }
    EXPECT_EQ(steps,
              (QStringList{u"OpenForWriting"_s, u"FlushFile"_s, u"WriteBytes"_s, u"FlushFile"_s,
                           u"WriteBytes"_s, u"FlushFile"_s, u"ReadBytes"_s, u"Rename"_s, u"ResizeFile"_s,
                           u"FlushFile"_s, u"CloseFile"_s, u"RemoveFile"_s, u"FlushFolder"_s}));
}

TEST_F(Erase, ItIsSaidWhereTheFileSystemWroteElsewhereOrDoesNotTell)
{
    EXPECT_EQ(
        EraseF().out,
        "C:\\Work\\f: overwritten; whether in place the file system doesn't tell\nerased 1, failed 0\n");
    memory.files.PutFile(u"C:\\Work\\f"_s, "x");
    memory.files.SetPlace(u"C:\\Work\\f"_s, 8192, true);
    EXPECT_EQ(
        EraseF().out,
        "C:\\Work\\f: overwritten, but the file system wrote elsewhere: the old contents may still be on the "
        "medium\nerased 1, failed 0\n");
}

TEST_F(Erase, ItIsSaidWhereTheFileSystemKeepsAJournalOfContents)
{
    memory.files.SetPlace(u"C:\\Work\\f"_s, 8192);
    memory.files.PutInJournal(u"C:\\Work\\f"_s);
    const Ended ended = EraseF();
    EXPECT_EQ(ended.status, AllDone);
    EXPECT_EQ(
        ended.out,
        "C:\\Work\\f: overwritten, but the file system keeps a journal of contents too: the old ones may "
        "still be in it\nerased 1, failed 0\n");
}

TEST_F(Erase, KeepNameRemovesTheFileUnderItsOwnName)
{
    EraseF({u"--keep-name"_s});
    EXPECT_EQ(memory.journal.Count(u"Rename"_s), 0);
    EXPECT_EQ(memory.journal.About(u"RemoveFile"_s), QStringList{u"C:\\Work\\f"_s});
}

TEST_F(Erase, NothingIsTouchedWhereOneIsRefused)
{
    memory.files.PutFolder(u"C:\\Work\\folder"_s);
    memory.files.PutLink(u"C:\\Work\\link"_s, u"C:\\Work\\f"_s);
    memory.files.PutFile(u"C:\\Work\\two"_s);
    memory.files.SetNames(u"C:\\Work\\two"_s, 2);
    const Ended ended = EraseF({u"folder"_s, u"link"_s, u"two"_s, u"gone"_s, u".\\f"_s});
    EXPECT_EQ(ended.status, SomethingFailed);
    EXPECT_EQ(ended.out, "");
    EXPECT_EQ(
        ended.err,
        "tressel-cli: C:\\Work\\folder: It is a folder\n"
        "tressel-cli: C:\\Work\\link: It is a link; name the file itself\n"
        "tressel-cli: C:\\Work\\two: The file has 2 names, and its contents would be gone under all of them "
        "(see --all-names)\n"
        "tressel-cli: C:\\Work\\gone: File not found\n"
        "tressel-cli: C:\\Work\\f: It is named twice\n");
    EXPECT_EQ(Changes(), 0);
}

TEST_F(Erase, AllNamesTakesAFileOfSeveralNames)
{
    memory.files.SetNames(u"C:\\Work\\f"_s, 2);
    EXPECT_EQ(EraseF({u"--all-names"_s}).status, AllDone);
    EXPECT_FALSE(IsThere(u"f"_s));
}

TEST_F(Erase, WithoutATerminalItTakesYes)
{
    const Ended ended = Run({u"erase"_s, u"f"_s});
    EXPECT_EQ(ended.status, SomethingFailed);
    EXPECT_EQ(ended.err, "tressel-cli: nothing was erased: without a terminal to ask at, it takes --yes\n");
    EXPECT_EQ(Changes(), 0);
}

TEST_F(Erase, ATerminalIsAsked)
{
    in.isTerminal = true;
    err.isTerminal = true;
    in.bytes = "y\n";
    const Ended refused = Run({u"erase"_s, u"f"_s});
    EXPECT_EQ(refused.status, SomethingFailed);
    EXPECT_EQ(refused.err,
              "  C:\\Work\\f\nErase this file for good? There is no way back. Type \"yes\": "
              "tressel-cli: nothing was erased\n");
    EXPECT_TRUE(IsThere(u"f"_s));
    in.bytes = "yes\n";
    EXPECT_EQ(Run({u"erase"_s, u"f"_s}).status, AllDone);
    EXPECT_FALSE(IsThere(u"f"_s));
}

TEST_F(Erase, DryRunNamesAndTouchesNothing)
{
    const Ended ended = Run({u"erase"_s, u"--dry-run"_s, u"f"_s});
    EXPECT_EQ(ended.out, "erase C:\\Work\\f\n");
    EXPECT_EQ(ended.err, "would have erased 1, failed 0\n");
    EXPECT_EQ(Changes(), 0);
}

TEST_F(Erase, FailureIsNamedAndTheOthersGo)
{
    memory.files.PutFile(u"C:\\Work\\g"_s, "x");
    memory.files.FailAt(Operation::WriteBytes, u"C:\\Work\\f"_s, 1, FailureNumber::DeviceIoError);
    const Ended ended = EraseF({u"g"_s});
    EXPECT_EQ(ended.status, SomethingFailed);
    EXPECT_EQ(ended.err, "tressel-cli: C:\\Work\\f: Device I/O error (it is overwritten in part)\n");
    EXPECT_TRUE(IsThere(u"f"_s));
    EXPECT_FALSE(IsThere(u"g"_s));
    EXPECT_TRUE(ended.out.endsWith("erased 1, failed 1\n")) << ended.out.constData();
}

TEST_F(Erase, WhatCannotBeRemovedHasItsNameBack)
{
    memory.files.FailAt(Operation::RemoveFile, u"C:\\Work"_s, 1, FailureNumber::PathFileAccessError);
    const Ended ended = EraseF();
    EXPECT_EQ(ended.status, SomethingFailed);
    EXPECT_EQ(ended.err, "tressel-cli: C:\\Work\\f: Path/File access error (it is overwritten in part)\n");
    EXPECT_EQ(Below(u"C:\\Work"_s), QStringList{u"f"_s});
}

TEST_F(Erase, WhatCannotHaveItsNameBackIsNamed)
{
    memory.files.FailAt(Operation::RemoveFile, u"C:\\Work"_s, 1, FailureNumber::PathFileAccessError);
    memory.files.FailAt(Operation::Rename, u"C:\\Work"_s, 2, FailureNumber::PathFileAccessError);
    const Ended ended = EraseF();
    const QStringList left = Below(u"C:\\Work"_s);
    ASSERT_EQ(left.size(), 1);
    EXPECT_EQ(ended.err,
              "tressel-cli: C:\\Work\\f: Path/File access error; what is left of it is called "
                  + left.first().toUtf8() + " (it is overwritten in part)\n");
}

TEST_F(Erase, FileHeldByAnotherStaysAsItIs)
{
    memory.files.HoldByAnother(u"C:\\Work\\f"_s);
    EXPECT_EQ(EraseF().status, SomethingFailed);
    EXPECT_EQ(memory.files.Bytes(u"C:\\Work\\f"_s), QByteArray(10000, 'a'));
}

TEST_F(Erase, SignalStopsBetweenTwoBlocksAndSaysSo)
{
    stops.signal = SIGINT;
    stops.after = 1;
    const Ended ended = EraseF();
    EXPECT_EQ(ended.status, StoppedBySignal + SIGINT);
    EXPECT_EQ(ended.err, "tressel-cli: C:\\Work\\f: It is overwritten in part\n");
    EXPECT_EQ(ended.out, "erased 0, failed 0\n");
    EXPECT_TRUE(IsThere(u"f"_s));
}

TEST_F(Erase, PassesAreCounted)
{
    for (const QString &wrong : {u"0"_s, u"36"_s, u"-1"_s, u"two"_s})
        EXPECT_EQ(EraseF({u"--passes="_s + wrong}).status, WrongUsage) << qPrintable(wrong);
    EraseF({u"--passes"_s, u"3"_s});
    EXPECT_EQ(memory.journal.Count(u"WriteBytes"_s), 3);
}

} // namespace
