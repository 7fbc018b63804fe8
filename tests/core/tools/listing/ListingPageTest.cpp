// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "ListingFixture.h"

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

class ListingPageTest : public ListingFixture { };

TEST_F(ListingPageTest, ShowsItsTexts)
{
    EXPECT_EQ(page.lblFilePath.Caption(), u"Choose Path"_s);
    EXPECT_EQ(page.lblRSaved.Caption(), u"Report Saved"_s);
    EXPECT_EQ(page.lblWStatus.Caption(), u"Progress Status"_s);
    EXPECT_EQ(page.btnGBBrowse.Caption(), u". . ."_s);
    EXPECT_EQ(page.btnGBBrowse.ToolTip(), u" Browse... "_s);
    EXPECT_EQ(page.btnGBMakeList.Caption(), u"Make List"_s);
    EXPECT_EQ(page.btnGBMakeList.ToolTip(), u" Start Make list "_s);
    EXPECT_EQ(page.btnGBResult.Caption(), u"Open List"_s);
    EXPECT_EQ(page.btnGBResult.ToolTip(), u" Open List from textfile or show list direct to folder list "_s);
    EXPECT_EQ(page.ChckValg.Caption(), u"List to filename"_s);
    EXPECT_EQ(page.ChckValg.ToolTip(),
              u" If checked List to filename or not checked list and show direct to folder list "_s);
    EXPECT_EQ(page.ChckDir.Caption(), u"List only folders"_s);
    EXPECT_EQ(page.ChckDir.ToolTip(),
              u" If checked List only folders without filename and no info only folder structures "_s);
}

TEST_F(ListingPageTest, BrowseStartsInAPathThatExists)
{
    machine.dialogs.ExpectChooseFolder(u"D:\\Music\\Live"_s);
    page.btnGBBrowse.UserClicks();
    EXPECT_EQ(page.CboFilePath.Text(), u"D:\\Music\\Live"_s);
    page.CboFilePath.SetText(u"D:\\Gone"_s);
    machine.dialogs.ExpectChooseFolder(std::nullopt);
    page.btnGBBrowse.UserClicks();
    EXPECT_EQ(page.CboFilePath.Text(), u"D:\\Gone"_s);
    EXPECT_EQ(machine.dialogs.StartFolders(), (QStringList{u"D:\\Music"_s, u""_s}));
    EXPECT_EQ(machine.journal.About(u"ChooseFolder"_s).value(0), u"Select Folder to list..."_s);
}

TEST_F(ListingPageTest, BrowseAnswersWithTheClickSoundFirst)
{
    options.OptSound.Select(0);
    machine.dialogs.ExpectChooseFolder(u""_s);
    page.btnGBBrowse.UserClicks();
    EXPECT_EQ(page.CboFilePath.Text(), u"D:\\Music"_s);
    EXPECT_LT(machine.journal.Lines().indexOf(u"Play C:\\Tressel\\click.wav"_s),
              machine.journal.Lines().indexOf(u"ChooseFolder Select Folder to list..."_s));
}

TEST_F(ListingPageTest, ResultOpensTheReportInAnEditor)
{
    page.txtReport.SetText(u"D:\\Music\\List-01 2004-03-31.txt"_s);
    session.ListFromTextFile = true;
    page.btnGBResult.UserClicks();
    EXPECT_EQ(machine.journal.About(u"EditText"_s), QStringList{ReportPath()});
    EXPECT_TRUE(session.ListFromTextFile);
    EXPECT_FALSE(session.ListFromReport);
}

TEST_F(ListingPageTest, ResultLoadsTheReportIntoTheList)
{
    machine.files.PutFile(u"C:\\Tressel\\~TR24D0.tmp"_s, "one\r\ntwo\r\n");
    settings.Write(keys::ReportFile, u"C:\\Tressel\\~TR24D0.tmp"_s);
    session.ListFromTextFile = true;
    page.ChckValg.SetChecked(false);
    page.btnGBResult.UserClicks();
    EXPECT_EQ(area.LstItem.Items(), (QStringList{u"one"_s, u"two"_s}));
    EXPECT_TRUE(session.ListFromReport);
    EXPECT_FALSE(session.ListFromTextFile);
    EXPECT_FALSE(session.ListFromFileList);
}

TEST_F(ListingPageTest, EachButtonAnswersWithTheClickSound)
{
    options.OptSound.Select(0);
    page.btnGBResult.UserClicks();
    Make();
    EXPECT_EQ(machine.journal.Count(u"Play"_s), 2);
}

TEST_F(ListingPageTest, TheStateComesBack)
{
    page.txtReport.SetText(u"D:\\a report.txt"_s);
    page.ChckDir.SetChecked(true);
    Steps steps;
    page.Save(steps);
    page.ChckValg.SetChecked(false);
    page.CboFilePath.SetText({});
    page.txtReport.SetText({});
    page.ChckDir.SetChecked(false);
    EXPECT_FALSE(page.CboFilePath.TakesDrops());
    page.Restore(steps);
    EXPECT_FALSE(steps.Pending());
    EXPECT_TRUE(page.ChckValg.IsChecked());
    EXPECT_EQ(page.CboFilePath.Text(), u"D:\\Music"_s);
    EXPECT_EQ(page.txtReport.Text(), u"D:\\a report.txt"_s);
    EXPECT_FALSE(page.ChckDir.IsChecked());
    EXPECT_TRUE(page.CboFilePath.TakesDrops());
}

TEST_F(ListingPageTest, AnEmptyStoreGivesTheDefaults)
{
    page.txtReport.SetText(u"x"_s);
    Steps steps;
    page.Restore(steps);
    EXPECT_EQ(page.ChckValg.Value(), 0);
    EXPECT_EQ(page.CboFilePath.Text(), u""_s);
    EXPECT_EQ(page.txtReport.Text(), u""_s);
}

TEST_F(ListingPageTest, ADropAddsTheFirstItemOnceAndLeavesTheText)
{
    Steps steps;
    page.Restore(steps);
    page.CboFilePath.SetText(u"D:\\Music"_s);
    page.CboFilePath.UserDrops({u"D:\\One"_s, u"D:\\Two"_s});
    page.CboFilePath.UserDrops({u"d:\\one"_s});
    page.CboFilePath.UserDrops({u""_s});
    page.CboFilePath.UserDrops({});
    EXPECT_EQ(page.CboFilePath.Items(), QStringList{u"D:\\One"_s});
    EXPECT_EQ(page.CboFilePath.Text(), u"D:\\Music"_s);
}

TEST_F(ListingPageTest, SavingThePathSavesTheRenameSettingsFirst)
{
    QStringList storedThen{u"not raised"_s};
    page.SaveRenameSettings.Handle([&] { storedThen = page.CboFilePath.Items(); });
    page.SaveRecentPath();
    EXPECT_EQ(storedThen, QStringList());
    EXPECT_EQ(page.CboFilePath.Items(), QStringList{u"D:\\Music"_s});
    page.SaveRenameSettings.Also([] { throw Failure(FailureNumber::DiskFull); });
    page.CboFilePath.SetText(u"D:\\Other"_s);
    page.SaveRecentPath();
    EXPECT_EQ(page.CboFilePath.ListCount(), 2);
}

} // namespace
