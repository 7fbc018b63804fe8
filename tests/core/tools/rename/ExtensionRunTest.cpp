// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "RenameFixture.h"

#include <limits>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

class ExtensionRunTest : public RenameFixture {
protected:
    void Press() { page.btnGBExtension.UserClicks(); }
    void Specific(const QString &from, const QString &to)
    {
        page.optExtensions.Select(RenamePage::Specific);
        page.txtSpecificExtFrom.SetText(from);
        page.txtSpecificExtTo.SetText(to);
    }
    void All(const QString &to)
    {
        page.optExtensions.Select(RenamePage::All);
        page.txtExtensionsChangeAllTo.SetText(to);
    }
};

TEST_F(ExtensionRunTest, SpecificTakesOneExtensionWhateverItsCase)
{
    PutFiles({u"a.txt"_s, u"b.TXT"_s, u"c.Txt"_s, u"d.doc"_s, u"e.b.txt"_s, u"readme"_s, u"txt"_s});
    Specific(u"txt"_s, u"old"_s);
    Press();
    EXPECT_EQ(Names(),
              (QStringList{u"a.old"_s, u"b.old"_s, u"c.old"_s, u"d.doc"_s, u"e.b.txt"_s, u"readme"_s,
                           u"txt.old"_s}));
    EXPECT_EQ(Status(), Total(7));
    EXPECT_EQ(watch.lines,
              (QStringList{u"Started 7"_s, u"Renamed C:\\W\\a.old"_s, u"Renamed C:\\W\\b.old"_s,
                           u"Renamed C:\\W\\c.old"_s, u"Kept C:\\W\\d.doc"_s, u"Kept C:\\W\\e.b.txt"_s,
                           u"Kept C:\\W\\readme"_s, u"Renamed C:\\W\\txt.old"_s}));
    ExpectUnlocked();
}

TEST_F(ExtensionRunTest, AllTakesEveryFile)
{
    PutFiles({u"a.b.txt"_s, u"c.txt"_s, u"readme"_s});
    PutFolders({u"sub.txt"_s});
    All(u"doc"_s);
    Press();
    EXPECT_EQ(Names(), (QStringList{u"a.doc"_s, u"c.doc"_s, u"readme.doc"_s, u"sub.txt\\"_s}));
    EXPECT_EQ(Renames().mid(0, 2), (QStringList{u"a.b.txt -> a.doc_"_s, u"a.doc_ -> a.doc"_s}));
}

TEST_F(ExtensionRunTest, WhatLeadsToAnExtensionIsTakenOff)
{
    PutFiles({u"a.txt"_s});
    Specific(u"*.txt"_s, u".doc"_s);
    Press();
    EXPECT_EQ(Names(), QStringList{u"a.doc"_s});
    All(u"*.txt"_s);
    Press();
    EXPECT_EQ(Names(), QStringList{u"a.txt"_s});
}

TEST_F(ExtensionRunTest, ATakenNameLeavesTheUnderscoreAndTheRunGoesOn)
{
    PutFiles({u"a.jpg"_s, u"a.png"_s, u"b.jpg"_s});
    All(u"gif"_s);
    Press();
    EXPECT_EQ(Names(), (QStringList{u"a.gif"_s, u"a.gif_"_s, u"b.gif"_s}));
    EXPECT_EQ(machine.files.Bytes(u"C:\\W\\a.gif"_s), "a.jpg");
    EXPECT_EQ(machine.files.Bytes(u"C:\\W\\a.gif_"_s), "a.png");
    EXPECT_EQ(Status(), Total(3));
    EXPECT_EQ(watch.lines,
              (QStringList{u"Started 3"_s, u"Renamed C:\\W\\a.gif"_s, u"Failed C:\\W\\a.gif_ 58"_s,
                           u"Renamed C:\\W\\b.gif"_s}));
}

TEST_F(ExtensionRunTest, ATakenDetourIsADuplicate)
{
    PutFiles({u"a.gif_"_s, u"a.jpg"_s, u"b.jpg"_s});
    Specific(u"jpg"_s, u"gif"_s);
    ExpectError(u"Unexpected duplicate file"_s);
    Press();
    ExpectUnlocked();
    EXPECT_EQ(Names(), (QStringList{u"a.gif_"_s, u"a.jpg"_s, u"b.jpg"_s}));
    EXPECT_EQ(machine.files.Bytes(u"C:\\W\\a.gif_"_s), "a.gif_");
    EXPECT_EQ(Status(), Total(1));
}

TEST_F(ExtensionRunTest, AFolderOfTheNameIsNoFileOfIt)
{
    PutFiles({u"a.jpg"_s});
    PutFolders({u"a.gif"_s});
    All(u"gif"_s);
    ExpectError(u"Unexpected duplicate file"_s);
    Press();
    ExpectUnlocked();
    EXPECT_EQ(Names(), (QStringList{u"a.gif\\"_s, u"a.gif_"_s}));
}

TEST_F(ExtensionRunTest, ALinkThatLeadsNowhereIsAFileOfTheName)
{
    PutFiles({u"a.jpg"_s});
    machine.files.PutLink(u"C:\\W\\a.gif"_s, u"C:\\Nowhere"_s);
    Specific(u"jpg"_s, u"gif"_s);
    Press();
    EXPECT_EQ(Names(), (QStringList{u"a.gif"_s, u"a.gif_"_s}));
    EXPECT_EQ(Status(), Total(2));
}

TEST_F(ExtensionRunTest, ANameThatStaysGoesThroughBoth)
{
    PutFiles({u"a.txt"_s});
    All(u"txt"_s);
    Press();
    EXPECT_EQ(Names(), QStringList{u"a.txt"_s});
    EXPECT_EQ(Renames().size(), 2);
    All(u"TXT"_s);
    Press();
    EXPECT_EQ(Names(), QStringList{u"a.TXT"_s});
}

TEST_F(ExtensionRunTest, NothingIsSaidOfAFolderWithoutFiles)
{
    PutFolders({u"sub"_s});
    All(u"doc"_s);
    Press();
    ExpectUnlocked();
    EXPECT_EQ(Status(), Total(0));
}

TEST_F(ExtensionRunTest, AnEmptyFieldIsToldAndNothingDone)
{
    PutFiles({u"a.txt"_s});
    Specific(u""_s, u""_s);
    ExpectError(u"You need to enter an extension for the From field"_s);
    Press();
    ExpectUnlocked();
    Specific(u"txt"_s, u""_s);
    ExpectError(u"You need to enter an extension for the To field"_s);
    Press();
    ExpectUnlocked();
    All(u""_s);
    ExpectError(u"You need to enter an extension for the Change All To field"_s);
    Press();
    ExpectUnlocked();
    EXPECT_EQ(Names(), QStringList{u"a.txt"_s});
    EXPECT_EQ(Status(), Total(0));
}

TEST_F(ExtensionRunTest, IllegalCharactersAreToldAndNothingDone)
{
    PutFiles({u"a.txt"_s});
    Specific(u"t?t"_s, u"d|c"_s);
    ExpectError(u"The extension From field contains illegal character(s)"_s + illegalList);
    Press();
    ExpectUnlocked();
    Specific(u"txt"_s, u"d|c"_s);
    ExpectError(u"The extension To field contains illegal character(s)"_s + illegalList);
    Press();
    ExpectUnlocked();
    All(u"a/b"_s);
    ExpectError(u"The Change All To field contains illegal character(s)"_s + illegalList);
    Press();
    ExpectUnlocked();
    EXPECT_EQ(Renames(), QStringList());
    EXPECT_EQ(watch.lines,
              (QStringList{u"Started 1"_s, u"Failed C:\\W 513"_s, u"Started 1"_s, u"Failed C:\\W 514"_s,
                           u"Started 1"_s, u"Failed C:\\W 515"_s}));
}

TEST_F(ExtensionRunTest, OnlyTheFieldsInUseAreLookedAt)
{
    PutFiles({u"a.txt"_s});
    Specific(u"*"_s, u"?"_s);
    All(u"doc"_s);
    Press();
    EXPECT_EQ(Names(), QStringList{u"a.doc"_s});
    All(u"?"_s);
    Specific(u"doc"_s, u"txt"_s);
    Press();
    EXPECT_EQ(Names(), QStringList{u"a.txt"_s});
}

TEST_F(ExtensionRunTest, BadPathsComeBeforeEmptyFields)
{
    page.txtCurrentPath.SetText(u"C:"_s);
    ExpectError(u"Please insert a path. I'm not a mind reader."_s);
    Press();
    page.txtCurrentPath.SetText(u"C:\\Gone"_s);
    ExpectError(u"Path does not exist"_s);
    Press();
    page.txtCurrentPath.SetText(u"C:\\a|b"_s);
    ExpectError(u"The path contains illegal character(s)"_s + illegalList);
    Press();
    ExpectUnlocked();
}

TEST_F(ExtensionRunTest, MoreFilesThanSixteenBitsCountEndTheRunInSilence)
{
    for (int number = 0; number <= std::numeric_limits<std::int16_t>::max(); ++number)
        PutFiles({u"f%1"_s.arg(number)});
    All(u"doc"_s);
    Press();
    ExpectUnlocked();
    EXPECT_EQ(Renames(), QStringList());
}

TEST_F(ExtensionRunTest, FailuresAtEachOfTheTwoRenames)
{
    PutFiles({u"a.txt"_s, u"b.txt"_s});
    All(u"doc"_s);
    machine.files.FailAt(Operation::Rename, u"C:\\W\\b.txt"_s, 1, FailureNumber::PathFileAccessError);
    Press();
    ExpectUnlocked();
    EXPECT_EQ(Names(), (QStringList{u"a.doc"_s, u"b.txt"_s}));
    EXPECT_EQ(Status(), Total(1));
    machine.files.FailAt(Operation::Rename, u"C:\\W\\b.doc_"_s, 1, FailureNumber::DeviceIoError);
    Press();
    ExpectUnlocked();
    EXPECT_EQ(Names(), (QStringList{u"a.doc"_s, u"b.doc_"_s}));
    EXPECT_EQ(Status(), Total(2));
}

TEST_F(ExtensionRunTest, TheEntryAtWhichItIsCancelledIsntCounted)
{
    PutFiles({u"a.txt"_s, u"b.txt"_s, u"c.txt"_s});
    All(u"doc"_s);
    machine.events.At(2, [this] { page.btnGBCancel.UserClicks(); });
    Press();
    ExpectUnlocked();
    EXPECT_EQ(Names(), (QStringList{u"a.doc"_s, u"b.doc"_s, u"c.txt"_s}));
    EXPECT_EQ(Status(), Total(1));
}

TEST_F(ExtensionRunTest, CancelIsHeardAtAFileThatStays)
{
    PutFiles({u"a.doc"_s, u"b.txt"_s});
    Specific(u"txt"_s, u"doc"_s);
    machine.events.At(1, [this] { page.btnGBCancel.UserClicks(); });
    Press();
    EXPECT_EQ(Names(), (QStringList{u"a.doc"_s, u"b.txt"_s}));
    EXPECT_EQ(Status(), Total(0));
}

TEST_F(ExtensionRunTest, TheClickComesFirst)
{
    bench.options.OptSound.Select(0);
    All(u"doc"_s);
    Press();
    EXPECT_EQ(machine.journal.Lines().first(), u"Play C:\\Tressel\\click.wav"_s);
}

} // namespace
