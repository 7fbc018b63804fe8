// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "ListingFixture.h"

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

using FolderListingTest = ListingFixture;

TEST_F(FolderListingTest, NamesOfFilesGoToTheReport)
{
    Make();
    EXPECT_EQ(Report(),
              Lines(header
                    + QList<QByteArray>{" ", "D:\\Music", "   a.mp3", "   b.mp3", "   List-01 2004-03-31.txt",
                                        " ", " ", "D:\\Music\\Live", "   c.mp3", " "}));
    EXPECT_EQ(page.txtReport.Text(), ReportPath());
    EXPECT_TRUE(page.txtReport.IsEnabled());
    EXPECT_TRUE(page.lblRSaved.IsEnabled());
    EXPECT_EQ(area.lblStatusLine.Caption(), u"Generate File list - Finished"_s);
    EXPECT_EQ(area.LstItem.ListCount(), 0);
}

TEST_F(FolderListingTest, FoldersAloneGoToTheReportWithoutAHeader)
{
    page.ChckDir.SetChecked(true);
    Make();
    EXPECT_EQ(Report(), Lines({"D:\\Music ", "D:\\Music\\Live "}));
}

TEST_F(FolderListingTest, NamesOfFilesGoToTheList)
{
    page.ChckValg.SetChecked(false);
    Make();
    EXPECT_EQ(machine.files.Bytes(temporary),
              Lines({" ", "D:\\Music", "a.mp3", "b.mp3", "List-01 2004-03-31.txt", " ", " ",
                     "D:\\Music\\Live", "c.mp3", " "}));
    EXPECT_EQ(area.LstItem.ListCount(), 10);
    EXPECT_FALSE(machine.files.Exists(ReportPath()));
    EXPECT_EQ(page.txtReport.Text(), u"Last Saved to list"_s);
    EXPECT_FALSE(page.txtReport.IsEnabled());
    EXPECT_FALSE(page.lblRSaved.IsEnabled());
    EXPECT_EQ(session.ReportFile, temporary);
    EXPECT_EQ(settings.ReadText(keys::ReportFile), temporary);
}

TEST_F(FolderListingTest, FoldersAloneGoToTheListEachWithABlankBehind)
{
    page.ChckValg.SetChecked(false);
    page.ChckDir.SetChecked(true);
    Make();
    EXPECT_EQ(area.LstItem.Items(), (QStringList{u"D:\\Music "_s, u"D:\\Music\\Live "_s}));
}

TEST_F(FolderListingTest, AnEmptyFolderIsABlockWithoutFiles)
{
    machine.files.PutFolder(u"D:\\Music\\Live\\None"_s);
    Make();
    EXPECT_TRUE(Report().endsWith(Lines({" ", "D:\\Music\\Live\\None", " "})));
}

TEST_F(FolderListingTest, TheWalkIsDepthFirst)
{
    for (const QString &folder : {u"D:\\M\\b"_s, u"D:\\M\\a\\2\\x"_s, u"D:\\M\\a\\1"_s})
        machine.files.PutFolder(folder);
    page.CboFilePath.SetText(u"D:\\M"_s);
    page.ChckDir.SetChecked(true);
    Make();
    EXPECT_EQ(machine.files.Bytes(u"D:\\M\\List-01 2004-03-31.txt"_s),
              Lines({"D:\\M ", "D:\\M\\a ", "D:\\M\\a\\1 ", "D:\\M\\a\\2 ", "D:\\M\\a\\2\\x ", "D:\\M\\b "}));
}

TEST_F(FolderListingTest, TheReportIsOpenedAndClosedOnceForEachFolder)
{
    Make();
    EXPECT_EQ(machine.journal.Lines().count(u"OpenForWriting "_s + ReportPath() + u" Appending"_s), 2);
    // Once more when it was made; the look for it before that opened nothing.
    EXPECT_EQ(machine.journal.About(u"CloseFile"_s), QStringList(3, ReportPath()));
}

TEST_F(FolderListingTest, EventsRunOnceForEachFileAndEachFolderBelow)
{
    Make();
    EXPECT_EQ(machine.events.Calls(), 5);
}

TEST_F(FolderListingTest, LinksAreListedAndNeverWalked)
{
    machine.files.PutLink(u"D:\\Music\\Live\\loop"_s, u"D:\\Music"_s);
    machine.files.PutLink(u"D:\\Music\\Live\\dead"_s, u"D:\\Gone"_s);
    Make();
    EXPECT_TRUE(Report().endsWith(Lines({" ", "D:\\Music\\Live", "   c.mp3", "   dead", "   loop", " "})))
        << Report().constData();
}

TEST_F(FolderListingTest, NamesThatAreNotUtf8AreWrittenByteForByte)
{
    machine.files.PutFile(u"D:\\Music\\Live\\d"_s + QChar(0xDCE6) + u"\u00E6"_s);
    Make();
    EXPECT_TRUE(Report().contains("   d\xE6\xC3\xA6\r\n"));
}

TEST_F(FolderListingTest, AFolderWithoutRightsIsABlockWithoutFilesAndNoStop)
{
    machine.files.PutFile(u"D:\\Music\\Zoo\\z"_s);
    machine.files.FailAt(Operation::List, u"D:\\Music\\Live"_s, 0, FailureNumber::PathFileAccessError);
    Make();
    EXPECT_TRUE(Report().endsWith(Lines({" ", "D:\\Music\\Live", " ", " ", "D:\\Music\\Zoo", "   z", " "})));
    EXPECT_EQ(area.lblStatusLine.Caption(), u"Generate File list - Finished"_s);
}

TEST_F(FolderListingTest, AFullDiscInTheMiddleOfAReportIsNoStop)
{
    machine.files.FailAt(Operation::WriteBytes, ReportPath(), 2, FailureNumber::DiskFull);
    Make();
    EXPECT_EQ(Report(), Lines(header + QList<QByteArray>{" ", "D:\\Music\\Live", "   c.mp3", " "}));
    EXPECT_EQ(area.lblStatusLine.Caption(), u"Generate File list - Finished"_s);
    EXPECT_EQ(page.btnGBMakeList.Caption(), u"Make List"_s);
}

TEST_F(FolderListingTest, AReportThatCannotBeOpenedForOneFolderGoesOnWithTheNext)
{
    // The first opening makes the report, the second one writes the block of D:\Music.
    machine.files.FailAt(Operation::OpenForWriting, ReportPath(), 2, FailureNumber::PermissionDenied);
    Make();
    EXPECT_EQ(Report(), Lines(header + QList<QByteArray>{" ", "D:\\Music\\Live", "   c.mp3", " "}));
}

// Progress.

TEST_F(FolderListingTest, ProgressCountsBytesFromOneToTheSizeOfTheFolder)
{
    QList<double> values;
    QStringList names;
    for (int call = 1; call <= 5; ++call)
        machine.events.At(call, [&] {
            values += page.ProgressBar1.Value();
            names += page.txtReport.Text();
        });
    page.ChckDir.SetChecked(true);
    Make();
    EXPECT_EQ(values, (QList<double>{1, 4, 9, 9, 9}));
    EXPECT_EQ(names,
              (QStringList{u""_s, u"a.mp3"_s, u"b.mp3"_s, u"List-01 2004-03-31.txt"_s,
                           u"List-01 2004-03-31.txt"_s}));
    EXPECT_EQ(page.ProgressBar1.Max(), 15);
    EXPECT_EQ(page.ProgressBar1.Value(), 1);
}

TEST_F(FolderListingTest, AFolderThatCannotBeMeasuredKeepsTheSizeOfTheRunBefore)
{
    page.ChckDir.SetChecked(true);
    Make();
    machine.files.PutFile(u"D:\\Music\\Live\\Deep\\more"_s, "more");
    machine.files.FailAt(Operation::List, u"D:\\Music\\Live\\Deep"_s, 1, FailureNumber::PathFileAccessError);
    Make();
    EXPECT_EQ(page.ProgressBar1.Max(), 15);
    EXPECT_TRUE(Report(u"02"_s).endsWith(Lines({"D:\\Music\\Live\\Deep "})));
}

TEST_F(FolderListingTest, ADriveRootIsNotMeasured)
{
    page.CboFilePath.SetText(u"D:\\"_s);
    Make();
    EXPECT_EQ(machine.journal.About(u"List"_s),
              (QStringList{u"D:\\"_s, u"D:\\Music"_s, u"D:\\Music\\Live"_s}));
    EXPECT_EQ(page.ProgressBar1.Max(), 100);
}

TEST_F(FolderListingTest, AFolderThatChangedSinceItWasMeasuredIsLookedAtAnew)
{
    machine.events.At(1, [&] { machine.files.PutFile(u"D:\\Music\\Live\\a new one"_s, "12"); });
    QList<double> values;
    for (int call = 5; call <= 6; ++call)
        machine.events.At(call, [&] { values += page.ProgressBar1.Value(); });
    machine.files.PutFile(u"D:\\Music\\Zoo\\z"_s, "1234567890");
    page.ChckDir.SetChecked(true);
    Make();
    EXPECT_EQ(values, (QList<double>{9, 11}));
}

// Numbers and names.

TEST_F(FolderListingTest, TheFirstReportHasNumberOneAndTakesTheOldOnesPlace)
{
    machine.files.PutFile(ReportPath(), "of this morning");
    Make();
    EXPECT_TRUE(Report().startsWith("****"));
    EXPECT_FALSE(machine.files.Exists(ReportPath(u"02"_s)));
}

TEST_F(FolderListingTest, AReportOfNumberZeroCountsAsThePresentOne)
{
    machine.files.PutFile(ReportPath(u"00"_s));
    // The file of the next number is made with its number, where a failure doesn't count, and then anew.
    machine.files.FailAt(Operation::OpenForWriting, ReportPath(), 1, FailureNumber::PermissionDenied);
    Make();
    EXPECT_EQ(page.txtReport.Text(), ReportPath());
    EXPECT_TRUE(machine.files.Exists(ReportPath()));
    EXPECT_EQ(machine.files.Bytes(ReportPath(u"00"_s)), "");
}

TEST_F(FolderListingTest, EachFurtherRunTakesTheNextNumber)
{
    Make();
    Make();
    Make();
    EXPECT_EQ(page.txtReport.Text(), ReportPath(u"03"_s));
    EXPECT_TRUE(Report(u"03"_s).contains("   List-02 2004-03-31.txt\r\n"));
}

TEST_F(FolderListingTest, TheNumberFallsBackWhenThePreviousReportHasGone)
{
    Make();
    Make();
    machine.files.RemoveFile(ReportPath(u"02"_s));
    Make();
    EXPECT_EQ(page.txtReport.Text(), ReportPath(u"01"_s));
}

TEST_F(FolderListingTest, TheNumberFallsBackOnTheNextDay)
{
    Make();
    Make();
    machine.clock.Advance(24LL * 60 * 60 * 1000);
    Make();
    EXPECT_EQ(page.txtReport.Text(), u"D:\\Music\\List-01 2004-04-01.txt"_s);
}

TEST_F(FolderListingTest, ASecondRunIntoTheListUsesNumberOneAgain)
{
    page.ChckValg.SetChecked(false);
    Make();
    Make();
    EXPECT_EQ(area.LstItem.Items().count(u"List-01 2004-03-31.txt"_s), 1);
    EXPECT_EQ(area.LstItem.ListCount(), 10);
}

TEST_F(FolderListingTest, ADriveRootDoublesTheSeparatorOfTheFileAndNotOfTheText)
{
    page.CboFilePath.SetText(u"D:\\"_s);
    Make();
    EXPECT_EQ(page.txtReport.Text(), u"D:\\List-01 2004-03-31.txt"_s);
    EXPECT_TRUE(machine.journal.About(u"OpenForWriting"_s).contains(u"D:\\\\List-01 2004-03-31.txt"_s));
    EXPECT_TRUE(machine.files.Bytes(u"D:\\List-01 2004-03-31.txt"_s).contains(" \r\nD:\\\r\n"));
    EXPECT_TRUE(machine.files.Bytes(u"D:\\List-01 2004-03-31.txt"_s).contains(" \r\nD:\\Music\r\n"));
}

TEST_F(FolderListingTest, ADiscWithACdLabelGetsItsReportOnDriveC)
{
    machine.files.AddDrive(u'D', u"cd of mine"_s);
    page.CboFilePath.SetText(u"D:\\"_s);
    Make();
    EXPECT_EQ(page.txtReport.Text(), u"C:\\List-01 2004-03-31.txt"_s);
    EXPECT_TRUE(
        machine.files.Bytes(u"C:\\List-01 2004-03-31.txt"_s).contains(" \r\nD:\\Music\r\n   a.mp3\r\n"));
    page.CboFilePath.SetText(u"D:\\Music"_s);
    Make();
    EXPECT_EQ(page.txtReport.Text(), ReportPath());
}

TEST_F(FolderListingTest, AReportIntoTheListFromADriveRootLandsBesideTheProgramFolder)
{
    page.CboFilePath.SetText(u"D:\\"_s);
    page.ChckValg.SetChecked(false);
    Make();
    EXPECT_EQ(session.ReportFile, u"C:\\Tressel~TR24D0.tmp"_s);
    EXPECT_TRUE(area.LstItem.Items().contains(u"D:\\Music\\Live"_s));
    // Nothing takes that file away, so the next one can't take its place.
    ExpectFailureBox(u"58, File already exists"_s);
    Make();
    EXPECT_EQ(page.btnGBMakeList.Caption(), u"Make List"_s);
    EXPECT_FALSE(machine.events.IsBusy());
}

TEST_F(FolderListingTest, ATemporaryReportOfBeforeIsRemovedWhateverTheResult)
{
    machine.files.PutFile(temporary, "old");
    Make();
    EXPECT_FALSE(machine.files.Exists(temporary));
}

TEST_F(FolderListingTest, TheTemporaryReportStaysOnItsOwnVolumeOnlyIfItCan)
{
    machine.files.AddDrive(u'D', {}, 1000);
    machine.files.AddDrive(u'C', {}, 20);
    page.ChckValg.SetChecked(false);
    ExpectFailureBox(u"61, Disk full"_s);
    Make();
    EXPECT_FALSE(machine.files.Exists(temporary));
    EXPECT_TRUE(machine.files.Exists(ReportPath()));
}

} // namespace
