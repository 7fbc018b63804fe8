// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "Command.h"
#include "CommandStage.h"

#include <csignal>
#include <gtest/gtest.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

/// Commands on C:\Work\w, which holds the empty folders a\b, c and d\e, and a file in d.
class Empty : public CommandStage {
protected:
    Empty()
    {
        for (const QString &folder : {u"a\\b"_s, u"c"_s, u"d\\e"_s})
            memory.files.PutFolder(u"C:\\Work\\w\\"_s + folder);
        memory.files.PutFile(u"C:\\Work\\w\\d\\file"_s);
    }

    QStringList Left() { return Below(u"C:\\Work\\w"_s); }
};

TEST_F(Empty, ListNamesEachEmptyFolderAfterThoseBelowIt)
{
    const Ended ended = Run({u"empty"_s, u"list"_s, u"w"_s});
    EXPECT_EQ(ended.status, AllDone);
    EXPECT_EQ(ended.out, "C:\\Work\\w\\a\\b\nC:\\Work\\w\\c\nC:\\Work\\w\\d\\e\n");
    EXPECT_EQ(ended.err, "found 3, failed 0\n");
    EXPECT_EQ(Changes(), 0);
}

TEST_F(Empty, ListWithCascadeCountsFoldersOfEmptyFolders)
{
    EXPECT_EQ(Run({u"empty"_s, u"list"_s, u"--cascade"_s, u"--null"_s, u"--quiet"_s, u"w"_s}).out,
              QByteArray("C:\\Work\\w\\a\\b\nC:\\Work\\w\\a\nC:\\Work\\w\\c\nC:\\Work\\w\\d\\e\n")
                  .replace('\n', '\0'));
}

TEST_F(Empty, RemoveTakesWhatListNames)
{
    const Ended ended = Run({u"empty"_s, u"remove"_s, u"w"_s});
    EXPECT_EQ(ended.out, "removed 3, failed 0\n");
    EXPECT_EQ(Left(), (QStringList{u"a\\"_s, u"d\\"_s, u"d\\file"_s}));
}

TEST_F(Empty, CascadeGoesUpButNeverTakesTheFolderItself)
{
    memory.files.RemoveFile(u"C:\\Work\\w\\d\\file"_s);
    EXPECT_EQ(Run({u"empty"_s, u"remove"_s, u"--cascade"_s, u"w"_s}).out, "removed 5, failed 0\n");
    EXPECT_EQ(Left(), QStringList());
    EXPECT_TRUE(memory.files.Exists(u"C:\\Work\\w"_s));
    EXPECT_EQ(Run({u"empty"_s, u"remove"_s, u"w"_s}).out, "removed 0, failed 0\n");
    EXPECT_EQ(Run({u"empty"_s, u"remove"_s, u"--self"_s, u"w"_s}).out, "removed 1, failed 0\n");
    EXPECT_FALSE(memory.files.Exists(u"C:\\Work\\w"_s));
}

TEST_F(Empty, DryRunSaysWhatARunWouldDo)
{
    const Ended ended = Run({u"empty"_s, u"remove"_s, u"--cascade"_s, u"--dry-run"_s, u"w"_s});
    EXPECT_EQ(
        ended.out,
        "remove C:\\Work\\w\\a\\b\nremove C:\\Work\\w\\a\nremove C:\\Work\\w\\c\nremove C:\\Work\\w\\d\\e\n");
    EXPECT_EQ(ended.err, "would have removed 4, failed 0\n");
    EXPECT_EQ(Changes(), 0);
}

TEST_F(Empty, UnreadableFolderIsNamedAndCountsAsFull)
{
    memory.files.FailAt(Operation::List, u"C:\\Work\\w\\a\\b"_s, 1, FailureNumber::PathFileAccessError);
    const Ended ended = Run({u"empty"_s, u"remove"_s, u"--cascade"_s, u"w"_s});
    EXPECT_EQ(ended.status, SomethingFailed);
    EXPECT_EQ(ended.err, "tressel-cli: C:\\Work\\w\\a\\b: Path/File access error\n");
    EXPECT_EQ(ended.out, "removed 2, failed 1\n");
    EXPECT_TRUE(memory.files.Exists(u"C:\\Work\\w\\a\\b"_s));
}

TEST_F(Empty, FolderThatCannotBeLookedAtIsNamedAndLeftAlone)
{
    memory.files.FailAt(Operation::Status, u"C:\\Work\\w\\c"_s, 0, FailureNumber::DeviceIoError);
    const Ended ended = Run({u"empty"_s, u"remove"_s, u"--cascade"_s, u"w"_s});
    EXPECT_EQ(ended.status, SomethingFailed);
    EXPECT_EQ(ended.err, "tressel-cli: C:\\Work\\w\\c: Path/File access error\n");
    EXPECT_EQ(ended.out, "removed 3, failed 1\n");
    EXPECT_TRUE(memory.files.Exists(u"C:\\Work\\w\\c"_s));
}

TEST_F(Empty, LinksAreContentAndNeverFollowed)
{
    memory.files.PutFolder(u"C:\\Other\\x"_s);
    memory.files.PutLink(u"C:\\Work\\w\\c\\link"_s, u"C:\\Other"_s);
    EXPECT_EQ(Run({u"empty"_s, u"remove"_s, u"--cascade"_s, u"w"_s}).out, "removed 3, failed 0\n");
    EXPECT_TRUE(memory.files.Exists(u"C:\\Other\\x"_s));
    EXPECT_TRUE(memory.files.Exists(u"C:\\Work\\w\\c\\link"_s));
}

TEST_F(Empty, FolderThatFillsBeforeItsTurnStays)
{
    memory.files.FailAt(Operation::RemoveFolder, u"C:\\Work\\w\\c"_s, 1, FailureNumber::PathFileAccessError);
    const Ended ended = Run({u"empty"_s, u"remove"_s, u"w"_s});
    EXPECT_EQ(ended.status, SomethingFailed);
    EXPECT_EQ(ended.out, "removed 2, failed 1\n");
    EXPECT_TRUE(memory.files.Exists(u"C:\\Work\\w\\c"_s));
}

TEST_F(Empty, SignalStopsBetweenTwoFoldersWithTheCount)
{
    stops.signal = SIGTERM;
    stops.after = 3;
    const Ended ended = Run({u"empty"_s, u"remove"_s, u"w"_s});
    EXPECT_EQ(ended.status, StoppedBySignal + SIGTERM);
    EXPECT_EQ(ended.out, "removed 1, failed 0\n");
}

TEST_F(Empty, WhatIsNoFolderIsRefused)
{
    EXPECT_EQ(Run({u"empty"_s, u"list"_s, u"gone"_s}).err, "tressel-cli: C:\\Work\\gone: Path not found\n");
    EXPECT_EQ(Run({u"empty"_s, u"list"_s, u"w\\d\\file"_s}).err,
              "tressel-cli: C:\\Work\\w\\d\\file: It is no folder\n");
}

TEST_F(Empty, UsageIsAskedFor)
{
    EXPECT_EQ(Run({u"empty"_s}).status, WrongUsage);
    EXPECT_EQ(Run({u"empty"_s, u"drop"_s, u"w"_s}).status, WrongUsage);
    EXPECT_EQ(Run({u"empty"_s, u"list"_s}).status, WrongUsage);
    EXPECT_EQ(Run({u"empty"_s, u"list"_s, u"--self"_s, u"w"_s}).status, WrongUsage);
}

} // namespace
