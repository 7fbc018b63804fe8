// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "RenameFixture.h"
#include "base/Pictures.h"
#include "base/Steps.h"

#include <limits>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

class CaseRunTest : public RenameFixture {
protected:
    CaseRunTest() { page.optCase.Select(RenamePage::Uppercase); }
    void Press() { page.btnGBRename.UserClicks(); }
};

TEST_F(CaseRunTest, TwoRenamesAnEntryByWayOfAnUnderscore)
{
    PutFiles({u"a.txt"_s, u"B.txt"_s});
    Press();
    EXPECT_EQ(Names(), (QStringList{u"A.TXT"_s, u"B.TXT"_s}));
    EXPECT_EQ(Renames(),
              (QStringList{u"a.txt -> A.TXT_"_s, u"A.TXT_ -> A.TXT"_s, u"B.txt -> B.TXT_"_s,
                           u"B.TXT_ -> B.TXT"_s}));
    EXPECT_EQ(Status(), Total(2));
    ExpectUnlocked();
}

TEST_F(CaseRunTest, TheWatchHearsOfEachEntryBeforeItIsTouched)
{
    PutFiles({u"a"_s, u"b"_s});
    QList<qsizetype> heard;
    for (int call = 1; call <= 2; ++call)
        machine.events.At(call, [&] { heard += watch.next.size() * 10 + Renames().size(); });
    Press();
    EXPECT_EQ(heard, (QList<qsizetype>{10, 22}));
    EXPECT_EQ(watch.next, (QStringList{u"C:\\W\\a"_s, u"C:\\W\\b"_s}));
}

TEST_F(CaseRunTest, TheTypeSaysWhatIsRenamed)
{
    const QList<std::pair<RenamePage::Kinds, QStringList>> rows{
        {RenamePage::Folders, {u"sub -> SUB_"_s, u"SUB_ -> SUB"_s}},
        {RenamePage::Files, {u"a -> A_"_s, u"A_ -> A"_s, u"z -> Z_"_s, u"Z_ -> Z"_s}},
        {RenamePage::Both,
         {u"sub -> SUB_"_s, u"SUB_ -> SUB"_s, u"a -> A_"_s, u"A_ -> A"_s, u"z -> Z_"_s, u"Z_ -> Z"_s}},
    };
    for (const auto &[kinds, renames] : rows) {
        machine.files.PutFolder(u"C:\\Kinds%1\\sub"_s.arg(kinds));
        machine.files.PutFile(u"C:\\Kinds%1\\a"_s.arg(kinds));
        machine.files.PutFile(u"C:\\Kinds%1\\z"_s.arg(kinds));
        page.txtCurrentPath.SetText(u"C:\\Kinds%1"_s.arg(kinds));
        page.optRename.Select(kinds);
        machine.journal.Clear();
        Press();
        EXPECT_EQ(Renames(), renames);
    }
}

TEST_F(CaseRunTest, WhatStandsDeeperStays)
{
    PutFolders({u"sub"_s});
    machine.files.PutFile(u"C:\\W\\sub\\deep.txt"_s);
    page.optRename.Select(RenamePage::Both);
    Press();
    EXPECT_EQ(Names(), (QStringList{u"SUB\\"_s, u"SUB\\deep.txt"_s}));
}

TEST_F(CaseRunTest, TheOptionsAreTheRule)
{
    PutFiles({u"my SONG live.MP3"_s});
    page.optCase.Select(RenamePage::Lowercase);
    page.chkCapFirstLetter.SetChecked(true);
    Press();
    EXPECT_EQ(Names(), QStringList{u"My song live.mp3"_s});
    page.chkCapAfterEverySpace.SetChecked(true);
    page.optCase.Select(RenamePage::Uppercase);
    Press();
    EXPECT_EQ(Names(), QStringList{u"My Song Live.mp3"_s});
    // A greyed box isn't a checked one.
    page.optCase.Select(RenamePage::Lowercase);
    page.chkCapFirstLetter.SetValue(2);
    page.chkCapAfterEverySpace.SetValue(2);
    Press();
    EXPECT_EQ(Names(), QStringList{u"my song live.mp3"_s});
}

TEST_F(CaseRunTest, WithoutAnyChangeEveryEntryGoesThroughBothAndCounts)
{
    PutFiles({u"a"_s, u"b"_s});
    page.optCase.Select(RenamePage::NoChange);
    Press();
    EXPECT_EQ(Renames(), (QStringList{u"a -> a_"_s, u"a_ -> a"_s, u"b -> b_"_s, u"b_ -> b"_s}));
    EXPECT_EQ(Status(), Total(2));
    EXPECT_EQ(watch.lines, (QStringList{u"Started 2"_s, u"Kept C:\\W\\a"_s, u"Kept C:\\W\\b"_s}));
}

TEST_F(CaseRunTest, TheTotalCountsOverAllRuns)
{
    PutFiles({u"a"_s, u"b"_s});
    Press();
    Press();
    EXPECT_EQ(Status(), Total(4));
}

TEST_F(CaseRunTest, AFolderWithASingleEntryIsRenamed)
{
    PutFiles({u"a"_s});
    Press();
    EXPECT_EQ(Names(), QStringList{u"A"_s});
    EXPECT_EQ(Status(), Total(1));
}

TEST_F(CaseRunTest, AShortPathIsNone)
{
    for (const QString &path : {u""_s, u"C"_s, u"C:"_s}) {
        page.txtCurrentPath.SetText(path);
        ExpectError(u"Please insert a path. I'm not a mind reader."_s);
        Press();
        ExpectUnlocked();
    }
    EXPECT_TRUE(watch.lines.isEmpty());
}

TEST_F(CaseRunTest, ThreeCharactersAreAPath)
{
    machine.files.PutFile(u"C:\\a"_s);
    page.txtCurrentPath.SetText(u"C:\\"_s);
    Press();
    EXPECT_EQ(machine.files.Tree(u"C:\\"_s),
              (QStringList{u"A"_s, u"Tressel\\"_s, u"Tressel\\Lang\\"_s, u"Tressel\\Lang\\Language.dat"_s,
                           u"W\\"_s}));
}

TEST_F(CaseRunTest, APathThatIsntThere)
{
    page.txtCurrentPath.SetText(u"C:\\Gone"_s);
    ExpectError(u"Path does not exist"_s);
    Press();
    ExpectUnlocked();
    EXPECT_EQ(watch.lines, QStringList{u"Failed C:\\Gone 76"_s});
}

TEST_F(CaseRunTest, APathThatCantBe)
{
    page.txtCurrentPath.SetText(u"C:\\a*b"_s);
    ExpectError(u"The path contains illegal character(s)"_s + illegalList);
    Press();
    ExpectUnlocked();
}

TEST_F(CaseRunTest, ADriveWithoutItsMediumEndsTheRunInSilence)
{
    machine.files.AddDrive(u'D');
    machine.files.SetReady(u'D', false);
    page.txtCurrentPath.SetText(u"D:\\"_s);
    Press();
    ExpectUnlocked();
    EXPECT_EQ(watch.lines, QStringList{u"Failed D:\\ 71"_s});
}

TEST_F(CaseRunTest, NothingToRename)
{
    const QString nothing = u"There are no files or folders in the currently selected folder. "
                            "Please select a folder with something in it!"_s;
    PutFolders({u"sub"_s});
    ExpectError(nothing);
    Press();
    ExpectUnlocked();
    page.txtCurrentPath.SetText(u"C:\\W\\sub"_s);
    for (const RenamePage::Kinds kinds : {RenamePage::Folders, RenamePage::Both}) {
        page.optRename.Select(kinds);
        ExpectError(nothing);
        Press();
    }
}

TEST_F(CaseRunTest, MoreEntriesThanSixteenBitsCountEndTheRunInSilence)
{
    for (int number = 0; number <= std::numeric_limits<std::int16_t>::max(); ++number)
        PutFiles({u"f%1"_s.arg(number)});
    Press();
    ExpectUnlocked();
    EXPECT_EQ(Renames(), QStringList());
    EXPECT_EQ(watch.lines, QStringList{u"Failed C:\\W 6"_s});
    EXPECT_EQ(Status(), Total(0));
}

TEST_F(CaseRunTest, ATakenDetourEndsTheRunInSilence)
{
    PutFiles({u"0"_s, u"a"_s, u"a_"_s, u"b"_s});
    page.optCase.Select(RenamePage::NoChange);
    Press();
    ExpectUnlocked();
    EXPECT_EQ(Names(), (QStringList{u"0"_s, u"a"_s, u"a_"_s, u"b"_s}));
    EXPECT_EQ(machine.files.Bytes(u"C:\\W\\a_"_s), "a_");
    EXPECT_EQ(Renames(), (QStringList{u"0 -> 0_"_s, u"0_ -> 0"_s, u"a -> a_ !58"_s}));
    EXPECT_EQ(Status(), Total(1));
    EXPECT_EQ(watch.lines.last(), u"Failed C:\\W\\a 58"_s);
}

TEST_F(CaseRunTest, AFailureAtTheFirstRenameLeavesTheOldName)
{
    PutFiles({u"a"_s, u"b"_s, u"c"_s});
    machine.files.FailAt(Operation::Rename, u"C:\\W\\b"_s, 1, FailureNumber::PathFileAccessError);
    Press();
    ExpectUnlocked();
    EXPECT_EQ(Names(), (QStringList{u"A"_s, u"b"_s, u"c"_s}));
    EXPECT_EQ(Status(), Total(1));
    EXPECT_EQ(watch.lines, (QStringList{u"Started 3"_s, u"Renamed C:\\W\\A"_s, u"Failed C:\\W\\b 75"_s}));
}

TEST_F(CaseRunTest, AFailureAtTheSecondRenameLeavesTheUnderscore)
{
    PutFiles({u"a"_s, u"b"_s, u"c"_s});
    machine.files.FailAt(Operation::Rename, u"C:\\W\\B_"_s, 1, FailureNumber::PathFileAccessError);
    Press();
    ExpectUnlocked();
    EXPECT_EQ(Names(), (QStringList{u"A"_s, u"B_"_s, u"c"_s}));
    EXPECT_EQ(Status(), Total(1));
    EXPECT_EQ(watch.lines, (QStringList{u"Started 3"_s, u"Renamed C:\\W\\A"_s, u"Failed C:\\W\\B_ 75"_s}));
}

TEST_F(CaseRunTest, AFailureOfAnEntryIsToldByItsNumberToo)
{
    PutFiles({u"a"_s});
    machine.files.FailAt(Operation::Rename, u"C:\\W\\a"_s, 1, FailureNumber::PathNotFound);
    ExpectError(u"Path does not exist"_s);
    Press();
    EXPECT_EQ(Names(), QStringList{u"a"_s});
}

TEST_F(CaseRunTest, ANameWithoutRoomForTheUnderscoreEndsTheRun)
{
    const QString longest(255, u'x');
    PutFiles({u"a"_s, longest});
    Press();
    ExpectUnlocked();
    EXPECT_EQ(Names(), (QStringList{u"A"_s, longest}));
    EXPECT_EQ(Status(), Total(1));
}

TEST_F(CaseRunTest, CancelTakesEffectBehindTheEntryUnderWay)
{
    PutFiles({u"a"_s, u"b"_s, u"c"_s});
    machine.events.At(2, [this] { page.btnGBCancel.UserClicks(); });
    Press();
    ExpectUnlocked();
    EXPECT_EQ(Names(), (QStringList{u"A"_s, u"B"_s, u"c"_s}));
    EXPECT_EQ(Status(), Total(2));
    Press();
    EXPECT_EQ(Names(), (QStringList{u"A"_s, u"B"_s, u"C"_s}));
}

TEST_F(CaseRunTest, CancelAmongTheFoldersLeavesTheFilesAlone)
{
    PutFolders({u"x"_s, u"y"_s});
    PutFiles({u"a"_s});
    page.optRename.Select(RenamePage::Both);
    machine.events.At(2, [this] { page.btnGBCancel.UserClicks(); });
    Press();
    EXPECT_EQ(Names(), (QStringList{u"a"_s, u"X\\"_s, u"Y\\"_s}));
    EXPECT_EQ(machine.events.Calls(), 2);
}

TEST_F(CaseRunTest, ProgressIsShownInPercent)
{
    PutFiles({u"a"_s, u"b"_s, u"c"_s});
    QStringList seen;
    for (int call = 1; call <= 3; ++call) {
        machine.events.At(call, [&] {
            seen += u"%1..%2 %3 "_s.arg(page.ProgressBar.Min())
                        .arg(page.ProgressBar.Max())
                        .arg(page.ProgressBar.Value())
                + Status();
        });
    }
    Press();
    EXPECT_EQ(seen,
              (QStringList{u"1..3 1 Processing wait 33.33%"_s, u"1..3 2 Processing wait 66.67%"_s,
                           u"1..3 3 Processing wait 100.00%"_s}));
}

TEST_F(CaseRunTest, EachStepOfALongRunShowsItsOwnPercentage)
{
    constexpr std::int16_t count = 32767;
    RenameFrame frame(page, bench.context);
    frame.SetProgressRange(1, count);
    frame.SetProgressValue(1);
    for (int step = 2; step <= count; ++step) {
        frame.StepProgress();
        ASSERT_EQ(Status(), u"Processing wait "_s + FormatPercent(double(step) / count));
    }
}

TEST_F(CaseRunTest, ProgressIsWrittenAlsoOverATextOfAnother)
{
    RenameFrame frame(page, bench.context);
    frame.SetProgressRange(1, 32767);
    frame.SetProgressValue(1);
    bench.area.lblStatusLine.SetCaption(u"Something else"_s);
    frame.StepProgress();
    EXPECT_EQ(Status(), u"Processing wait 0.01%"_s);
}

TEST_F(CaseRunTest, ARunKeepsEverythingElseOut)
{
    PutFiles({u"a"_s, u"b"_s});
    machine.events.At(1, [this] {
        for (const Control *control : bench.form.Controls()) {
            const bool stays = control == &page.btnGBCancel || control == &page.page
                || control == &page.Picture1 || control == &page.Picture2 || control == &page.ProgressBar
                || dynamic_cast<const Label *>(control);
            const bool isOnPage = control != &bench.area.txtStrtPath && control != &bench.area.chkExtension
                && control != &bench.area.chkButtonBar && control != &bench.area.TVList
                && control != &bench.area.LstItem;
            EXPECT_EQ(control->IsEnabled(), stays || !isOnPage) << control->Name().toStdString();
        }
        // None of these is heard.
        page.btnGBRename.UserClicks();
        page.btnGBReplace.UserClicks();
        page.btnGBExtension.UserClicks();
        page.txtCurrentPath.UserDrops({u"C:\\Elsewhere"_s});
        page.optReplacePreset.Button(RenamePage::MP3).UserSelects();
        page.chkCapFirstLetter.UserToggles();
    });
    Press();
    EXPECT_EQ(Renames().size(), 4);
    EXPECT_EQ(page.txtCurrentPath.Text(), u"C:\\W"_s);
    EXPECT_TRUE(page.optReplacePreset.IsSelected(RenamePage::None));
    EXPECT_FALSE(page.chkCapFirstLetter.IsChecked());
    for (const Control *control : bench.form.Controls())
        EXPECT_EQ(control->IsEnabled(), control != &page.btnGBCancel) << control->Name().toStdString();
}

TEST_F(CaseRunTest, AFileThatVanishesEndsTheRunInSilence)
{
    PutFiles({u"a"_s, u"b"_s, u"c"_s});
    machine.events.At(2, [this] { machine.files.RemoveFile(u"C:\\W\\b"_s); });
    Press();
    ExpectUnlocked();
    EXPECT_EQ(Names(), (QStringList{u"A"_s, u"c"_s}));
    EXPECT_EQ(watch.lines.last(), u"Failed C:\\W\\b 53"_s);
}

TEST_F(CaseRunTest, AFileThatComesMeanwhileIsNoPartOfIt)
{
    PutFiles({u"a"_s});
    machine.events.At(1, [this] { PutFiles({u"b"_s}); });
    Press();
    EXPECT_EQ(Names(), (QStringList{u"A"_s, u"b"_s}));
}

TEST_F(CaseRunTest, TheTotalHasThirtyTwoBits)
{
    PutFiles({u"a"_s, u"b"_s});
    bench.settings.Write(keys::TotalFileCount, u"2147483646"_s);
    Steps steps;
    page.ResetRenamePage(steps);
    Press();
    ExpectUnlocked();
    EXPECT_EQ(Names(), (QStringList{u"A"_s, u"B"_s}));
    EXPECT_EQ(Status(), Total(2147483647));
    EXPECT_EQ(watch.lines.last(), u"Failed C:\\W\\B 6"_s);
}

TEST_F(CaseRunTest, TheClickComesFirst)
{
    bench.options.OptSound.Select(0);
    ExpectError(u"Please insert a path. I'm not a mind reader."_s);
    page.txtCurrentPath.SetText({});
    Press();
    EXPECT_EQ(machine.journal.Lines().first(), u"Play C:\\Tressel\\click.wav"_s);
    PutFiles({u"a"_s});
    page.txtCurrentPath.SetText(u"C:\\W"_s);
    machine.events.At(machine.events.Calls() + 1, [this] {
        machine.journal.Clear();
        page.btnGBCancel.UserClicks();
        EXPECT_EQ(machine.journal.Lines(), QStringList{u"Play C:\\Tressel\\click.wav"_s});
    });
    Press();
}

TEST_F(CaseRunTest, TwoWindowsOnOneFolderLoseNothing)
{
    PutFiles({u"a.x"_s, u"b.x"_s, u"c.x"_s});
    RenameTool other(machine.machine);
    other.page.txtCurrentPath.SetText(u"C:\\W"_s);
    other.page.optExtensions.Select(RenamePage::All);
    other.page.txtExtensionsChangeAllTo.SetText(u"y"_s);
    machine.events.At(2, [&] { other.page.btnGBExtension.UserClicks(); });
    Press();
    ExpectUnlocked();
    // This one found its second name gone.
    EXPECT_EQ(Names(), (QStringList{u"A.y"_s, u"b.y"_s, u"c.y"_s}));
    EXPECT_EQ(watch.lines.last(), u"Failed C:\\W\\b.x 53"_s);
    EXPECT_EQ(other.Status(), Total(3));
}

} // namespace
