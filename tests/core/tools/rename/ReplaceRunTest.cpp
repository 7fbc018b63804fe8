// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "RenameFixture.h"

#include <limits>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

class ReplaceRunTest : public RenameFixture {
protected:
    void Press() { page.btnGBReplace.UserClicks(); }
    void Replace(const QString &from, const QString &to)
    {
        page.txtReplaceFrom.SetText(from);
        page.txtReplaceTo.SetText(to);
    }
};

TEST_F(ReplaceRunTest, EveryOccurrenceIsReplaced)
{
    PutFiles({u"a_b_c.mp3"_s, u"d.mp3"_s});
    Replace(u"_"_s, u" "_s);
    Press();
    EXPECT_EQ(Names(), (QStringList{u"a b c.mp3"_s, u"d.mp3"_s}));
    EXPECT_EQ(Renames(),
              (QStringList{u"a_b_c.mp3 -> a b c.mp3_"_s, u"a b c.mp3_ -> a b c.mp3"_s, u"d.mp3 -> d.mp3_"_s,
                           u"d.mp3_ -> d.mp3"_s}));
    EXPECT_EQ(Status(), Total(2));
    EXPECT_EQ(watch.lines,
              (QStringList{u"Started 2"_s, u"Renamed C:\\W\\a b c.mp3"_s, u"Kept C:\\W\\d.mp3"_s}));
    ExpectUnlocked();
}

TEST_F(ReplaceRunTest, UpperAndLowerCaseAreToldApart)
{
    PutFiles({u"Aa"_s});
    Replace(u"a"_s, u"b"_s);
    Press();
    EXPECT_EQ(Names(), QStringList{u"Ab"_s});
}

TEST_F(ReplaceRunTest, TheExtensionIsPartOfTheName)
{
    PutFiles({u"a.b.txt"_s});
    Replace(u"."_s, u"-"_s);
    Press();
    EXPECT_EQ(Names(), QStringList{u"a-b-txt"_s});
}

TEST_F(ReplaceRunTest, TheTypeSaysWhatIsHandled)
{
    const QList<std::pair<RenamePage::Kinds, QStringList>> rows{
        {RenamePage::Folders, {u"an\\"_s, u"en.txt"_s}},
        {RenamePage::Files, {u"an.txt"_s, u"en\\"_s}},
        {RenamePage::Both, {u"an.txt"_s, u"an\\"_s}},
    };
    for (const auto &[kinds, names] : rows) {
        const QString folder = u"C:\\Kinds%1"_s.arg(kinds);
        machine.files.PutFolder(folder + u"\\en"_s);
        machine.files.PutFile(folder + u"\\en.txt"_s);
        page.txtCurrentPath.SetText(folder);
        page.optReplace.Select(kinds);
        Replace(u"e"_s, u"a"_s);
        Press();
        QStringList expected = names;
        expected.sort();
        QStringList seen = machine.files.Tree(folder);
        seen.sort();
        EXPECT_EQ(seen, expected) << kinds;
    }
}

TEST_F(ReplaceRunTest, FoldersComeFirst)
{
    PutFiles({u"a1"_s});
    PutFolders({u"z1"_s});
    page.optReplace.Select(RenamePage::Both);
    Replace(u"1"_s, u"2"_s);
    Press();
    EXPECT_EQ(Renames().value(0), u"z1 -> z2_"_s);
}

TEST_F(ReplaceRunTest, AnEmptyTextToPutInTakesOut)
{
    PutFiles({u"my old song"_s});
    Replace(u" old"_s, u""_s);
    Press();
    EXPECT_EQ(Names(), QStringList{u"my song"_s});
}

TEST_F(ReplaceRunTest, ANameThatComesOutEmptyStaysAsAnUnderscore)
{
    PutFiles({u"aa"_s, u"b"_s});
    Replace(u"a"_s, u""_s);
    Press();
    ExpectUnlocked();
    EXPECT_EQ(Names(), (QStringList{u"_"_s, u"b"_s}));
    EXPECT_EQ(machine.files.Bytes(u"C:\\W\\_"_s), "aa");
    EXPECT_EQ(Renames(), (QStringList{u"aa -> _"_s, u"_ ->  !52"_s}));
    EXPECT_EQ(Status(), Total(0));
}

TEST_F(ReplaceRunTest, AnyPieceMayBeLookedFor)
{
    PutFiles({u"a"_s});
    Replace(u"*?\\"_s, u"x"_s);
    Press();
    EXPECT_EQ(Names(), QStringList{u"a"_s});
    EXPECT_EQ(Status(), Total(1));
}

TEST_F(ReplaceRunTest, IllegalCharactersToPutInAreToldAndNothingDone)
{
    PutFiles({u"a"_s});
    for (const QChar character : u"/\\:*?\"<>|"_s) {
        Replace(u"a"_s, u"x"_s + character);
        ExpectError(u"The To field contains illegal character(s)"_s + illegalList);
        Press();
        ExpectUnlocked();
    }
    EXPECT_EQ(Renames(), QStringList());
    EXPECT_EQ(watch.lines.first(), u"Failed C:\\W 515"_s);
}

TEST_F(ReplaceRunTest, WhatIsMissingIsToldInItsOrder)
{
    const QString nothing = u"There are no files or folders in the currently selected folder. "
                            "Please select a folder with something in it!"_s;
    Replace(u""_s, u"?"_s);
    page.txtCurrentPath.SetText(u"C:"_s);
    ExpectError(u"Please insert a path. I'm not a mind reader."_s);
    Press();
    page.txtCurrentPath.SetText(u"C:\\Gone"_s);
    ExpectError(u"Path does not exist"_s);
    Press();
    page.txtCurrentPath.SetText(u"C:\\a<b"_s);
    ExpectError(u"The path contains illegal character(s)"_s + illegalList);
    Press();
    page.txtCurrentPath.SetText(u"C:\\W"_s);
    ExpectError(u"There is nothing entered for Replace"_s);
    Press();
    page.txtReplaceFrom.SetText(u"a"_s);
    ExpectError(nothing);
    Press();
    ExpectUnlocked();
}

TEST_F(ReplaceRunTest, MoreEntriesThanSixteenBitsCountEndTheRunInSilence)
{
    for (int number = 0; number < std::numeric_limits<std::int16_t>::max(); ++number)
        PutFiles({u"f%1"_s.arg(number)});
    PutFolders({u"g"_s});
    page.optReplace.Select(RenamePage::Both);
    // Counted before the empty text is told.
    Press();
    ExpectUnlocked();
    EXPECT_EQ(watch.lines, QStringList{u"Failed C:\\W 6"_s});
}

TEST_F(ReplaceRunTest, FailuresAtEachOfTheTwoRenames)
{
    PutFiles({u"a1"_s, u"b1"_s});
    Replace(u"1"_s, u"2"_s);
    machine.files.FailAt(Operation::Rename, u"C:\\W\\b1"_s, 1, FailureNumber::PathFileAccessError);
    Press();
    ExpectUnlocked();
    EXPECT_EQ(Names(), (QStringList{u"a2"_s, u"b1"_s}));
    machine.files.FailAt(Operation::Rename, u"C:\\W\\b2_"_s, 1, FailureNumber::PathFileAccessError);
    Press();
    ExpectUnlocked();
    EXPECT_EQ(Names(), (QStringList{u"a2"_s, u"b2_"_s}));
    EXPECT_EQ(Status(), Total(2));
}

TEST_F(ReplaceRunTest, ATakenNameEndsTheRunInSilence)
{
    PutFiles({u"a1"_s, u"a2"_s});
    Replace(u"1"_s, u"2"_s);
    Press();
    ExpectUnlocked();
    EXPECT_EQ(Names(), (QStringList{u"a2"_s, u"a2_"_s}));
    EXPECT_EQ(machine.files.Bytes(u"C:\\W\\a2"_s), "a2");
    EXPECT_EQ(Status(), Total(0));
}

TEST_F(ReplaceRunTest, CancelTakesEffectBehindTheEntryUnderWay)
{
    PutFolders({u"x1"_s});
    PutFiles({u"a1"_s, u"b1"_s});
    page.optReplace.Select(RenamePage::Both);
    Replace(u"1"_s, u"2"_s);
    machine.events.At(2, [this] { page.btnGBCancel.UserClicks(); });
    Press();
    ExpectUnlocked();
    EXPECT_EQ(Names(), (QStringList{u"a2"_s, u"b1"_s, u"x2\\"_s}));
    EXPECT_EQ(Status(), Total(2));
}

TEST_F(ReplaceRunTest, TheClickComesFirst)
{
    bench.options.OptSound.Select(0);
    PutFiles({u"a"_s});
    Replace(u"a"_s, u"b"_s);
    Press();
    EXPECT_EQ(machine.journal.Lines().first(), u"Play C:\\Tressel\\click.wav"_s);
}

} // namespace
