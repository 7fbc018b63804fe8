// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "Command.h"
#include "CommandStage.h"

#include <csignal>
#include <gtest/gtest.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

class Rename : public CommandStage {
protected:
    void Put(const QStringList &names)
    {
        for (const QString &name : names)
            memory.files.PutFile(u"C:\\Work\\w\\"_s + name, name.toUtf8());
    }
    Ended Act(const QString &act, const QStringList &more)
    {
        return Run(QStringList{u"rename"_s, act, u"w"_s} + more);
    }
    QStringList Names() { return Below(u"C:\\Work\\w"_s); }
};

TEST_F(Rename, CaseOfFiles)
{
    Put({u"a.txt"_s, u"B.TXT"_s});
    memory.files.PutFolder(u"C:\\Work\\w\\sub"_s);
    const Ended ended = Act(u"case"_s, {u"--upper"_s});
    EXPECT_EQ(ended.status, AllDone);
    EXPECT_EQ(ended.out, "renamed 1, not renamed 0\n");
    EXPECT_EQ(ended.err, "");
    EXPECT_EQ(Names(), (QStringList{u"A.TXT"_s, u"B.TXT"_s, u"sub\\"_s}));
    // One rename a name that changes, and none for one that doesn't.
    EXPECT_EQ(Changes(), 1);
}

TEST_F(Rename, KindsOfEntries)
{
    Put({u"file"_s});
    memory.files.PutFolder(u"C:\\Work\\w\\sub"_s);
    EXPECT_EQ(Act(u"case"_s, {u"--upper"_s, u"--folders"_s}).out, "renamed 1, not renamed 0\n");
    EXPECT_EQ(Names(), (QStringList{u"file"_s, u"SUB\\"_s}));
    EXPECT_EQ(Act(u"case"_s, {u"--first-letter"_s, u"--files"_s}).out, "renamed 1, not renamed 0\n");
    EXPECT_EQ(Names(), (QStringList{u"File"_s, u"SUB\\"_s}));
    EXPECT_EQ(Act(u"case"_s, {u"--lower"_s, u"--both"_s}).out, "renamed 2, not renamed 0\n");
    EXPECT_EQ(Names(), (QStringList{u"file"_s, u"sub\\"_s}));
}

TEST_F(Rename, TheRulesAreThoseOfTheWindow)
{
    Put({u"my SONG.MP3"_s});
    Act(u"case"_s, {u"--lower"_s, u"--first-letter"_s});
    EXPECT_EQ(Names(), QStringList{u"My song.mp3"_s});
    Act(u"case"_s, {u"--upper"_s, u"--every-word"_s});
    EXPECT_EQ(Names(), QStringList{u"My Song.mp3"_s});
    Act(u"extension"_s, {u"--from"_s, u"*.MP3"_s, u"--to"_s, u".ogg"_s});
    EXPECT_EQ(Names(), QStringList{u"My Song.ogg"_s});
    Act(u"extension"_s, {u"--from"_s, u"mp3"_s, u"--to"_s, u"wav"_s});
    EXPECT_EQ(Names(), QStringList{u"My Song.ogg"_s});
    Act(u"extension"_s, {u"--all"_s, u".tar.gz"_s});
    EXPECT_EQ(Names(), QStringList{u"My Song.tar.gz"_s});
    Act(u"replace"_s, {u"--from"_s, u" "_s, u"--to"_s, u"_"_s});
    EXPECT_EQ(Names(), QStringList{u"My_Song.tar.gz"_s});
    Act(u"replace"_s, {u"--from=_Song"_s, u"--to="_s});
    EXPECT_EQ(Names(), QStringList{u"My.tar.gz"_s});
}

TEST_F(Rename, ChainsFindAnOrder)
{
    Put({u"a"_s, u"aa"_s, u"aaaa"_s});
    EXPECT_EQ(Act(u"replace"_s, {u"--from"_s, u"a"_s, u"--to"_s, u"aa"_s}).out, "renamed 3, not renamed 0\n");
    EXPECT_EQ(Names(), (QStringList{u"aa"_s, u"aaaa"_s, u"aaaaaaaa"_s}));
    EXPECT_EQ(memory.files.Bytes(u"C:\\Work\\w\\aa"_s), "a");
}

TEST_F(Rename, WhereCaseTellsNothingApartANameInOtherCaseIsTaken)
{
    Put({u"one"_s, u"TWO"_s});
    const Ended ended = Act(u"replace"_s, {u"--from"_s, u"one"_s, u"--to"_s, u"two"_s});
    EXPECT_EQ(ended.status, SomethingFailed);
    EXPECT_EQ(ended.err,
              "tressel-cli: C:\\Work\\w\\one: Its name would be TWO, which is there already\n"
              "tressel-cli: nothing was renamed\n");
    EXPECT_EQ(Act(u"case"_s, {u"--every-word"_s}).out, "renamed 2, not renamed 0\n");
    EXPECT_EQ(Names(), (QStringList{u"One"_s, u"Two"_s}));
    EXPECT_EQ(memory.files.Bytes(u"C:\\Work\\w\\Two"_s), "TWO");
}

TEST_F(Rename, WhatCantBeIsRefusedWithEveryReason)
{
    Put({u"a.jpg"_s, u"a.png"_s, u"b.jpg"_s, u"keep.gif"_s, u"keep.jpg"_s});
    memory.files.PutFolder(u"C:\\Work\\w\\b.gif"_s);
    const Ended ended = Act(u"extension"_s, {u"--all"_s, u"gif"_s});
    EXPECT_EQ(ended.status, SomethingFailed);
    EXPECT_EQ(ended.out, "");
    EXPECT_EQ(ended.err,
              "tressel-cli: C:\\Work\\w\\a.png: Its name would be a.gif, as that of a.jpg\n"
              "tressel-cli: C:\\Work\\w\\b.jpg: Its name would be b.gif, which is there already\n"
              "tressel-cli: C:\\Work\\w\\keep.jpg: Its name would be keep.gif, which is there already\n"
              "tressel-cli: nothing was renamed\n");
    EXPECT_EQ(Changes(), 0);
}

TEST_F(Rename, NamesThatCantBe)
{
    Put({u"a"_s, u"ab"_s});
    EXPECT_EQ(Act(u"replace"_s, {u"--from"_s, u"a"_s, u"--to"_s, u""_s}).err,
              "tressel-cli: C:\\Work\\w\\a: Nothing would be left of its name\n"
              "tressel-cli: nothing was renamed\n");
    EXPECT_EQ(Act(u"replace"_s, {u"--from"_s, u"a"_s, u"--to"_s, u"."_s}).err,
              "tressel-cli: C:\\Work\\w\\a: Its name would be ., which stands for a folder\n"
              "tressel-cli: nothing was renamed\n");
    EXPECT_EQ(Act(u"replace"_s, {u"--from"_s, u"b"_s, u"--to"_s, QString(255, u'x')}).err,
              "tressel-cli: C:\\Work\\w\\ab: Its name would be longer than 255 bytes\n"
              "tressel-cli: nothing was renamed\n");
    EXPECT_EQ(Changes(), 0);
}

TEST_F(Rename, ADryRunTellsPairsAndTouchesNothing)
{
    Put({u"a.txt"_s, u"b.txt"_s, u"c.doc"_s});
    const QStringList words{u"--from"_s, u"txt"_s, u"--to"_s, u"md"_s, u"--dry-run"_s};
    const Ended ended = Act(u"extension"_s, words);
    EXPECT_EQ(ended.status, AllDone);
    EXPECT_EQ(ended.out, "a.txt -> a.md\nb.txt -> b.md\n");
    EXPECT_EQ(ended.err, "would have renamed 2\n");
    const Ended withNul = Act(u"extension"_s, words + QStringList{u"--null"_s, u"--quiet"_s});
    EXPECT_EQ(withNul.out, QByteArray("a.txt\0a.md\0b.txt\0b.md\0", 22));
    EXPECT_EQ(withNul.err, "");
    EXPECT_EQ(Changes(), 0);
}

TEST_F(Rename, ADryRunIsRefusedAsARunIs)
{
    Put({u"a.jpg"_s, u"a.png"_s});
    const Ended ended = Act(u"extension"_s, {u"--all"_s, u"gif"_s, u"--dry-run"_s});
    EXPECT_EQ(ended.status, SomethingFailed);
    EXPECT_EQ(ended.out, "");
}

TEST_F(Rename, AFailureStopsTheRunAndTellsWhatWasDone)
{
    Put({u"a1"_s, u"b1"_s, u"c1"_s});
    memory.files.FailAt(Operation::Rename, u"C:\\Work\\w\\b1"_s, 1, FailureNumber::DeviceIoError);
    const Ended ended = Act(u"replace"_s, {u"--from"_s, u"1"_s, u"--to"_s, u"2"_s});
    EXPECT_EQ(ended.status, SomethingFailed);
    EXPECT_EQ(ended.out, "renamed 1, not renamed 2\n");
    EXPECT_EQ(ended.err,
              "tressel-cli: C:\\Work\\w\\b1: Device I/O error\n"
              "tressel-cli: renamed a1 -> a2\n"
              "tressel-cli: not renamed b1 -> b2\n"
              "tressel-cli: not renamed c1 -> c2\n");
    EXPECT_EQ(Names(), (QStringList{u"a2"_s, u"b1"_s, u"c1"_s}));
}

TEST_F(Rename, ASignalEndsItBetweenTwoNames)
{
    Put({u"a1"_s, u"b1"_s, u"c1"_s});
    stops.signal = SIGINT;
    stops.after = 2;
    const Ended ended = Act(u"replace"_s, {u"--from"_s, u"1"_s, u"--to"_s, u"2"_s});
    EXPECT_EQ(ended.status, StoppedBySignal + SIGINT);
    EXPECT_EQ(ended.out, "renamed 2, not renamed 1\n");
    EXPECT_EQ(Names(), (QStringList{u"a2"_s, u"b2"_s, u"c1"_s}));
}

TEST_F(Rename, NothingToDoIsNoFailure)
{
    Put({u"A"_s});
    const Ended ended = Act(u"case"_s, {u"--upper"_s});
    EXPECT_EQ(ended.status, AllDone);
    EXPECT_EQ(ended.out, "renamed 0, not renamed 0\n");
    EXPECT_EQ(Act(u"case"_s, {u"--upper"_s, u"--quiet"_s}).out, "");
}

TEST_F(Rename, AFolderThatIsntThere)
{
    const Ended ended = Run({u"rename"_s, u"case"_s, u"gone"_s, u"--upper"_s});
    EXPECT_EQ(ended.status, SomethingFailed);
    EXPECT_EQ(ended.err, "tressel-cli: C:\\Work\\gone: Path not found\n");
}

TEST_F(Rename, WrongUsage)
{
    const QList<std::pair<QStringList, QByteArray>> rows{
        {{}, "rename needs one of case, extension or replace"},
        {{u"upper"_s, u"w"_s}, "rename needs one of case, extension or replace"},
        {{u"case"_s}, "rename case needs one DIR"},
        {{u"case"_s, u""_s, u"--upper"_s}, "rename case needs one DIR"},
        {{u"case"_s, u"w"_s, u"x"_s, u"--upper"_s}, "rename case needs one DIR"},
        {{u"case"_s, u"w"_s}, "rename case needs --upper, --lower, --first-letter or --every-word"},
        {{u"case"_s, u"w"_s, u"--upper"_s, u"--lower"_s}, "--upper and --lower exclude each other"},
        {{u"case"_s, u"w"_s, u"--upper"_s, u"--to"_s, u"x"_s}, "rename case takes no --to"},
        {{u"case"_s, u"w"_s, u"--upper"_s, u"--all"_s, u"x"_s}, "rename case takes no --all"},
        {{u"case"_s, u"w"_s, u"--upper"_s, u"--files"_s, u"--both"_s},
         "--folders, --files and --both exclude each other"},
        {{u"extension"_s, u"w"_s}, "rename extension needs either --from EXT and --to EXT, or --all EXT"},
        {{u"extension"_s, u"w"_s, u"--all"_s, u"x"_s, u"--to"_s, u"y"_s},
         "rename extension needs either --from EXT and --to EXT, or --all EXT"},
        {{u"extension"_s, u"w"_s, u"--from"_s, u"x"_s}, "rename needs --to TEXT"},
        {{u"extension"_s, u"w"_s, u"--from"_s, u""_s, u"--to"_s, u"y"_s}, "--from needs an extension"},
        {{u"extension"_s, u"w"_s, u"--all"_s, u""_s}, "--all needs an extension"},
        {{u"extension"_s, u"w"_s, u"--all"_s, u"a/b"_s}, "--all may hold none of / \\ : * ? \" < > |"},
        {{u"extension"_s, u"w"_s, u"--all"_s, u"b"_s, u"--folders"_s}, "rename extension takes no --folders"},
        {{u"replace"_s, u"w"_s, u"--to"_s, u"y"_s}, "rename needs --from TEXT"},
        {{u"replace"_s, u"w"_s, u"--from"_s, u""_s, u"--to"_s, u"y"_s}, "--from needs a text to look for"},
        {{u"replace"_s, u"w"_s, u"--from"_s, u"y"_s, u"--to"_s, u"a|b"_s},
         "--to may hold none of / \\ : * ? \" < > |"},
        {{u"replace"_s, u"w"_s, u"--from"_s, u"a"_s, u"--to"_s, u"b"_s, u"--upper"_s},
         "rename replace takes no --upper"},
    };
    Put({u"a"_s});
    for (const auto &[words, sentence] : rows) {
        const Ended ended = Run(QStringList{u"rename"_s} + words);
        EXPECT_EQ(ended.status, WrongUsage) << words.join(u' ').toStdString();
        EXPECT_EQ(ended.err, "tressel-cli: " + sentence + " (see tressel-cli rename --help)\n");
    }
    EXPECT_EQ(Changes(), 0);
}

} // namespace
