// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "ListingFixture.h"

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

using ListingRun = ListingFixture;

// Cancel and re-entry.

TEST_F(ListingRun, TheButtonsSayThatARunIsUnderWay)
{
    machine.events.At(1, [&] {
        EXPECT_EQ(page.btnGBMakeList.Caption(), u"Cancel"_s);
        EXPECT_FALSE(page.btnGBResult.IsEnabled());
        EXPECT_FALSE(page.ChckValg.IsEnabled());
        EXPECT_TRUE(machine.events.IsBusy());
        EXPECT_EQ(area.lblStatusLine.Caption(), u"Generate File list - Generate list wait. . ."_s);
    });
    Make();
    EXPECT_EQ(page.btnGBMakeList.Caption(), u"Make List"_s);
    EXPECT_TRUE(page.btnGBResult.IsEnabled());
    EXPECT_TRUE(page.ChckValg.IsEnabled());
    EXPECT_FALSE(machine.events.IsBusy());
}

TEST_F(ListingRun, CancelInTheMiddleLeavesAPartialReportAndTheEndOfTheRun)
{
    machine.events.At(2, [&] {
        Make();
        EXPECT_EQ(page.btnGBMakeList.Caption(), u"Make List"_s);
        EXPECT_TRUE(machine.events.IsBusy());
    });
    Make();
    EXPECT_EQ(Report(), Lines(header + QList<QByteArray>{" ", "D:\\Music", "   a.mp3", " "}));
    EXPECT_EQ(area.lblStatusLine.Caption(), u"Generate File list - Finished"_s);
    EXPECT_EQ(page.txtReport.Text(), ReportPath());
    EXPECT_FALSE(machine.events.IsBusy());
    EXPECT_EQ(page.btnGBMakeList.Caption(), u"Make List"_s);
}

TEST_F(ListingRun, CancelBetweenTwoFoldersLeavesTheHeadOfTheNextBlock)
{
    machine.files.PutFolder(u"D:\\Music\\Zoo"_s);
    machine.events.At(4, [&] { Make(); });
    Make();
    EXPECT_TRUE(Report().endsWith(Lines({" ", " ", "D:\\Music\\Live", " "})));
}

TEST_F(ListingRun, ACancelledRunIntoTheListLoadsWhatThereIs)
{
    page.ChckValg.SetChecked(false);
    machine.events.At(3, [&] { Make(); });
    Make();
    EXPECT_EQ(area.LstItem.Items(), (QStringList{u" "_s, u"D:\\Music"_s, u"a.mp3"_s, u"b.mp3"_s, u" "_s}));
}

TEST_F(ListingRun, TheCaptionOfTheLanguageComesBack)
{
    page.btnGBMakeList.SetCaption(u"Lag liste"_s);
    machine.events.At(1, [&] { Make(); });
    Make();
    EXPECT_EQ(page.btnGBMakeList.Caption(), u"Lag liste"_s);
}

TEST_F(ListingRun, AnotherFolderChosenInTheMiddleIsForTheNextRun)
{
    machine.dialogs.ExpectChooseFolder(u"C:\\Tressel"_s);
    machine.events.At(1, [&] { page.btnGBBrowse.UserClicks(); });
    Make();
    EXPECT_TRUE(Report().endsWith(Lines({" ", "D:\\Music\\Live", "   c.mp3", " "})));
    EXPECT_EQ(page.CboFilePath.Text(), u"C:\\Tressel"_s);
}

TEST_F(ListingRun, TheEmptyFolderPageIsResetBeforeTheFinishedText)
{
    page.ResetEmptyFolderPage.Handle([&] {
        EXPECT_EQ(area.lblStatusLine.Caption(), u"Generate File list - Generate list wait. . ."_s);
        EXPECT_FALSE(page.btnGBResult.IsEnabled());
        area.lblStatusLine.SetCaption(u"Ready"_s);
    });
    Make();
    EXPECT_EQ(area.lblStatusLine.Caption(), u"Generate File list - Finished"_s);
}

// The path, and what becomes of failures.

TEST_F(ListingRun, TheRunRecordsItsPathAndTakesDuplicatesOut)
{
    for (const QString &path : {u"x"_s, u"X"_s, u"y"_s})
        page.CboFilePath.AddItem(path);
    bool saved = false;
    page.SaveRenameSettings.Handle([&] { saved = true; });
    Make();
    EXPECT_TRUE(saved);
    EXPECT_EQ(page.CboFilePath.Items(), (QStringList{u"x"_s, u"y"_s, u"D:\\Music"_s}));
    EXPECT_EQ(settings.ReadText(keys::RecentPath.At(3)), u"D:\\Music"_s);
}

TEST_F(ListingRun, AnEmptyPathAsksForAFolder)
{
    page.CboFilePath.SetText({});
    machine.dialogs.ExpectChooseFolder(u"D:\\Music"_s);
    Make();
    EXPECT_EQ(page.txtReport.Text(), ReportPath());
}

TEST_F(ListingRun, WithoutAFolderToListTheReportHoldsItsHeaderAlone)
{
    page.CboFilePath.SetText({});
    machine.dialogs.ExpectChooseFolder(std::nullopt);
    Make();
    EXPECT_EQ(machine.files.Bytes(u"C:\\List-01 2004-03-31.txt"_s), Lines(header));
    EXPECT_EQ(area.lblStatusLine.Caption(), u"Generate File list - Finished"_s);
}

TEST_F(ListingRun, AFolderThatHasGoneWhenItIsListedLeavesTheHeaderAlone)
{
    machine.files.FailAt(Operation::List, u"D:\\Music"_s, 0, FailureNumber::PathNotFound);
    Make();
    EXPECT_EQ(Report(), Lines(header));
    EXPECT_EQ(area.lblStatusLine.Caption(), u"Generate File list - Finished"_s);
}

TEST_F(ListingRun, AReportThatHasNoFolderToStandInEndsTheRun)
{
    page.CboFilePath.SetText(u"D:\\Gone"_s);
    ExpectFailureBox(u"76, Path not found"_s);
    Make();
    EXPECT_EQ(page.btnGBMakeList.Caption(), u"Make List"_s);
    EXPECT_FALSE(machine.events.IsBusy());
    EXPECT_FALSE(machine.files.Exists(u"D:\\Gone"_s));
    EXPECT_EQ(area.lblStatusLine.Caption(), u"Generate File list - Generate list wait. . ."_s);
}

TEST_F(ListingRun, ADriveThatIsNotReadyEndsTheRun)
{
    machine.files.FailAt(Operation::OpenForWriting, ReportPath(), 0, FailureNumber::DiskNotReady);
    ExpectFailureBox(u"71, Disk not ready"_s);
    Make();
}

TEST_F(ListingRun, ARefusedReportFallsBackOnDriveCAndWritesNothing)
{
    for (const FailureNumber refusal :
         {FailureNumber::PermissionDenied, FailureNumber::PathFileAccessError}) {
        machine.files.FailAt(Operation::OpenForWriting, ReportPath(), 1, refusal);
        const QString told = u"C:\\List-01 2004-03-31.txt"_s;
        machine.dialogs.ExpectBox({u"NB! Report is saved on "_s + told, u"Tressel"_s});
        Make();
        EXPECT_EQ(page.txtReport.Text(), told);
        EXPECT_FALSE(machine.files.Exists(told));
        EXPECT_FALSE(machine.files.Exists(ReportPath()));
        EXPECT_EQ(area.lblStatusLine.Caption(), u"Generate File list - Finished"_s);
        EXPECT_EQ(page.btnGBMakeList.Caption(), u"Make List"_s);
        EXPECT_FALSE(machine.events.IsBusy());
    }
}

TEST_F(ListingRun, ALinkOfTheReportsNameIsNotFollowed)
{
    machine.files.PutFile(u"C:\\precious"_s, "mine");
    machine.files.PutLink(ReportPath(), u"C:\\precious"_s);
    machine.dialogs.ExpectBox(u"NB! Report is saved on C:\\List-01 2004-03-31.txt"_s);
    Make();
    EXPECT_EQ(machine.files.Bytes(u"C:\\precious"_s), "mine");
}

TEST_F(ListingRun, ALinkThatComesBetweenLookAndOpenIsNotFollowed)
{
    machine.files.PutFile(ReportPath(), "old report");
    machine.files.PutFile(u"C:\\precious"_s, "mine");
    machine.files.DoBefore(Operation::OpenForWriting, ReportPath(), 1,
                           [this] { machine.files.PutLinkInPlaceOf(ReportPath(), u"C:\\precious"_s); });
    machine.dialogs.ExpectBox(u"NB! Report is saved on C:\\List-01 2004-03-31.txt"_s);
    Make();
    EXPECT_EQ(machine.files.Bytes(u"C:\\precious"_s), "mine");
}

TEST_F(ListingRun, AWalkGoesIntoNoLinkThatTookAFoldersPlace)
{
    machine.files.PutFile(u"C:\\Private\\secret"_s);
    for (const QString &folder : {u"D:\\Music\\Live"_s, u"D:\\Music\\Live\\Deep"_s}) {
        machine.files.PutFile(u"D:\\Music\\Live\\Deep\\d.mp3"_s);
        machine.files.PutFolder(u"C:\\Private\\Deep"_s);
        machine.files.DoBefore(Operation::List, u"D:\\Music\\Live\\Deep"_s, 1,
                               [this, folder] { machine.files.PutLinkInPlaceOf(folder, u"C:\\Private"_s); });
        Make();
        EXPECT_FALSE(Report().contains("secret")) << qPrintable(folder);
        machine.files.RemoveFile(folder);
    }
}

TEST_F(ListingRun, ANameThatTheFolderCannotHoldIsToldByItsNumber)
{
    machine.files.FailAt(Operation::OpenForWriting, ReportPath(), 1, FailureNumber::PathNotFound);
    ExpectFailureBox(u"76, Path not found"_s);
    Make();
    EXPECT_EQ(page.btnGBMakeList.Caption(), u"Make List"_s);
    EXPECT_FALSE(machine.events.IsBusy());
}

TEST_F(ListingRun, AFallbackIgnoresEveryLaterFailure)
{
    machine.files.PutFile(temporary, "old");
    machine.files.FailAt(Operation::OpenForWriting, ReportPath(), 1, FailureNumber::PermissionDenied);
    machine.files.FailAt(Operation::RemoveFile, temporary, 1, FailureNumber::PathFileAccessError);
    machine.dialogs.ExpectBox(u"NB! Report is saved on C:\\List-01 2004-03-31.txt"_s);
    page.ChckValg.SetChecked(false);
    Make();
    EXPECT_EQ(session.ReportFile, temporary);
}

TEST_F(ListingRun, AFullDiscUnderTheHeaderEndsTheRun)
{
    machine.files.FailAt(Operation::WriteBytes, ReportPath(), 1, FailureNumber::DiskFull);
    ExpectFailureBox(u"61, Disk full"_s);
    Make();
    EXPECT_EQ(page.btnGBMakeList.Caption(), u"Make List"_s);
}

} // namespace
