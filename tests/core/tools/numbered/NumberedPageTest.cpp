// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "NumberedFixture.h"
#include "base/Steps.h"

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

using NumberedPageTest = NumberedFixture;

TEST_F(NumberedPageTest, ShowsItsTextsAndFirstValues)
{
    Form fresh(u"fresh"_s);
    const NumberedPage untouched(bench.On(fresh), DirList);
    EXPECT_EQ(untouched.page.Name(), u"FrameXPMenu(2)"_s);
    EXPECT_EQ(untouched.txtFeltDir.Text(), u"Disk"_s);
    EXPECT_EQ(untouched.txtFeltDirSub.Text(), u"Sub Folder"_s);
    EXPECT_EQ(untouched.lblFrom.Caption(), u"From:"_s);
    EXPECT_EQ(untouched.chkMain_Sub.Caption(), u"Make numbered Main/Sub Folders"_s);
    EXPECT_EQ(untouched.chkMain_Sub.ToolTip(), u" If Checked Make numbered Sub Folders "_s);
    EXPECT_EQ(untouched.Chck_MakeDel.Caption(), u"Chose Make or Delete"_s);
    EXPECT_EQ(untouched.Chck_MakeDel.ToolTip(), u" Select Make or Delete Folder "_s);
    EXPECT_EQ(untouched.DrvBox.ToolTip(), u" Change to another drive "_s);
    EXPECT_EQ(untouched.DirBox.ToolTip(), u" Select any folder "_s);
    EXPECT_EQ(untouched.btnGBMake.Caption(), u"Make Folder"_s);
    EXPECT_EQ(untouched.btnGBDelete.Caption(), u"Delete Folder"_s);
    EXPECT_TRUE(untouched.btnGBMake.IsVisible());
    EXPECT_FALSE(untouched.btnGBDelete.IsVisible());
}

TEST_F(NumberedPageTest, CombosListTheNumbersTo999)
{
    for (const ComboBox *combo : {&page.cboFrom, &page.cboTo}) {
        ASSERT_EQ(combo->ListCount(), 999);
        EXPECT_EQ(combo->Item(0), u"1"_s);
        EXPECT_EQ(combo->Item(998), u"999"_s);
    }
}

TEST_F(NumberedPageTest, TheCheckBoxSwapsTheButtons)
{
    page.Chck_MakeDel.SetValue(1);
    EXPECT_FALSE(page.btnGBMake.IsVisible());
    EXPECT_TRUE(page.btnGBDelete.IsVisible());
    page.Chck_MakeDel.SetValue(2);
    EXPECT_TRUE(page.btnGBMake.IsVisible());
    EXPECT_FALSE(page.btnGBDelete.IsVisible());
}

TEST_F(NumberedPageTest, TheListsOfDrivesAndFoldersFollowEachOther)
{
    EXPECT_EQ(page.NumberedFolderPath, u"D:\\Work"_s);
    EXPECT_EQ(page.DrvBox.Drive(), u"D:\\"_s);
    page.DrvBox.UserSelects(0);
    EXPECT_EQ(page.DirBox.Path(), u"C:\\"_s);
    EXPECT_EQ(page.NumberedFolderPath, u"C:\\"_s);
    page.DirBox.SetPath(u"D:\\Work"_s);
    EXPECT_EQ(page.DrvBox.Drive(), u"D:\\"_s);
    EXPECT_EQ(page.NumberedFolderPath, u"D:\\Work"_s);
}

TEST_F(NumberedPageTest, ADriveWithoutItsMediumIsLeftAgain)
{
    page.DrvBox.UserSelects(0);
    machine.files.SetReady(u'D', false);
    page.DrvBox.UserSelects(1);
    EXPECT_EQ(page.DrvBox.Drive(), u"C:\\"_s);
    EXPECT_EQ(page.NumberedFolderPath, u"C:\\"_s);
}

TEST_F(NumberedPageTest, MakesOneFolderANumberInRisingOrder)
{
    Make(u"8"_s, u"10"_s);
    EXPECT_EQ(machine.journal.About(u"MakeFolder"_s),
              (QStringList{u"D:\\Work"_s, u"D:\\Work\\Disk08"_s, u"D:\\Work"_s, u"D:\\Work\\Disk09"_s,
                           u"D:\\Work"_s, u"D:\\Work\\Disk10"_s}));
    EXPECT_EQ(Work(), (QStringList{u"Disk08\\"_s, u"Disk09\\"_s, u"Disk10\\"_s}));
}

TEST_F(NumberedPageTest, MakesOneSubFolderInEachNumberedFolder)
{
    page.txtFeltDirSub.SetText(u"Sub Folder"_s);
    Make(u"8"_s, u"10"_s);
    EXPECT_EQ(Work(),
              (QStringList{u"Disk08\\"_s, u"Disk08\\Sub Folder\\"_s, u"Disk09\\"_s, u"Disk09\\Sub Folder\\"_s,
                           u"Disk10\\"_s, u"Disk10\\Sub Folder\\"_s}));
}

TEST_F(NumberedPageTest, MakesNumberedSubFoldersInOneMainFolder)
{
    page.txtFeltDirSub.SetText(u"Sub Folder"_s);
    page.chkMain_Sub.SetChecked(true);
    Make(u"8"_s, u"10"_s);
    EXPECT_EQ(Work(),
              (QStringList{u"Disk\\"_s, u"Disk\\Sub Folder08\\"_s, u"Disk\\Sub Folder09\\"_s,
                           u"Disk\\Sub Folder10\\"_s}));
}

TEST_F(NumberedPageTest, AnEmptySubFolderIgnoresTheMainSubChoice)
{
    page.chkMain_Sub.SetChecked(true);
    Make(u"1"_s, u"2"_s);
    EXPECT_EQ(Work(), (QStringList{u"Disk1\\"_s, u"Disk2\\"_s}));
}

TEST_F(NumberedPageTest, PaddingComesFromTheTextOfToAlone)
{
    struct Row {
        QString from;
        QString to;
        QStringList folders;
    };
    const QList<Row> rows{
        {u"1"_s, u"5"_s, {u"Disk1\\"_s, u"Disk2\\"_s, u"Disk3\\"_s, u"Disk4\\"_s, u"Disk5\\"_s}},
        {u"11"_s, u"12"_s, {u"Disk11\\"_s, u"Disk12\\"_s}},
        {u"0001"_s, u"02"_s, {u"Disk01\\"_s, u"Disk02\\"_s}},
        {u"99"_s, u"100"_s, {u"Disk099\\"_s, u"Disk100\\"_s}},
        {u"999"_s, u"1000"_s, {u"Disk0999\\"_s, u"Disk1000\\"_s}},
        {u"11"_s, u"0012"_s, {u"Disk0011\\"_s, u"Disk0012\\"_s}},
        {u"5"_s, u"5"_s, {u"Disk5\\"_s}},
        {u"0"_s, u"1"_s, {u"Disk\\"_s, u"Disk1\\"_s}},
        {u"6"_s, u"5"_s, {}},
        {u"1"_s, u"00002"_s, {}},
    };
    for (const Row &row : rows) {
        Make(row.from, row.to);
        EXPECT_EQ(Work(), row.folders) << qPrintable(row.from) << " to " << qPrintable(row.to);
        // One of another width is none of the series.
        machine.files.PutFolder(u"D:\\Work\\Disk00000"_s);
        machine.journal.Clear();
        Delete(row.from, row.to);
        QStringList tried;
        for (const QString &folder : row.folders)
            tried += {u"D:\\Work"_s, u"D:\\Work\\"_s + folder.chopped(1)};
        EXPECT_EQ(machine.journal.About(u"RemoveFolder"_s), tried)
            << qPrintable(row.from) << " to " << qPrintable(row.to);
        EXPECT_EQ(Work(), QStringList{u"Disk00000\\"_s});
        ASSERT_FALSE(machine.files.TryRemoveFolder(u"D:\\Work\\Disk00000"_s));
    }
}

TEST_F(NumberedPageTest, NumberZeroWithoutDigitsPrintsNothing)
{
    page.txtFeltDirSub.SetText(u"Sub"_s);
    page.chkMain_Sub.SetChecked(true);
    Make(u"0"_s, u"1"_s);
    EXPECT_EQ(Work(), (QStringList{u"Disk\\"_s, u"Disk\\Sub\\"_s, u"Disk\\Sub1\\"_s}));
}

TEST_F(NumberedPageTest, ManualPaddingKnowsNoLimit)
{
    options.ChkAutoOption.SetChecked(true);
    options.OptDigit.Select(0);
    Make(u"11998"_s, u"12000"_s);
    EXPECT_EQ(Work(), (QStringList{u"Disk11998\\"_s, u"Disk11999\\"_s, u"Disk12000\\"_s}));
}

TEST_F(NumberedPageTest, ManualPaddingTakesTheSelectedDigits)
{
    options.ChkAutoOption.SetChecked(true);
    for (int digit = 0; digit < 4; ++digit) {
        options.OptDigit.Select(digit);
        Make(u"7"_s, u"7"_s);
    }
    EXPECT_EQ(Work(), (QStringList{u"Disk0007\\"_s, u"Disk007\\"_s, u"Disk07\\"_s, u"Disk7\\"_s}));
}

TEST_F(NumberedPageTest, AGreyedManualBoxMeansAutomaticPadding)
{
    options.ChkAutoOption.SetValue(2);
    options.OptDigit.Select(3);
    Make(u"7"_s, u"7"_s);
    EXPECT_EQ(Work(), QStringList{u"Disk7\\"_s});
}

TEST_F(NumberedPageTest, WhatIsNoNumberTouchesNoFolder)
{
    for (const QString &text : {u"abc"_s, u""_s, u"1 to 2"_s, u"99999999999"_s}) {
        for (const bool manual : {false, true}) {
            options.ChkAutoOption.SetChecked(manual);
            Make(u"1"_s, text);
            Make(text, u"9"_s);
            Delete(u"1"_s, text);
            Delete(text, u"9"_s);
        }
    }
    EXPECT_EQ(machine.journal.Count(u"MakeFolder"_s), 0);
    EXPECT_EQ(machine.journal.Count(u"RemoveFolder"_s), 0);
    EXPECT_FALSE(machine.events.IsBusy());
}

TEST_F(NumberedPageTest, AnEmptyBaseLeavesTheNumbersAlone)
{
    page.txtFeltDir.SetText({});
    Make(u"1"_s, u"2"_s);
    EXPECT_EQ(Work(), (QStringList{u"1\\"_s, u"2\\"_s}));
}

TEST_F(NumberedPageTest, ABackslashInATextAddsALevel)
{
    page.txtFeltDir.SetText(u"a\\b"_s);
    page.txtFeltDirSub.SetText(u"c\\d"_s);
    Make(u"1"_s, u"1"_s);
    EXPECT_EQ(Work(), (QStringList{u"a\\"_s, u"a\\b1\\"_s, u"a\\b1\\c\\"_s, u"a\\b1\\c\\d\\"_s}));
}

TEST_F(NumberedPageTest, ADriveRootTakesTheSeriesWithOneSeparator)
{
    page.DirBox.SetPath(u"D:\\"_s);
    Make(u"1"_s, u"1"_s);
    EXPECT_EQ(machine.journal.About(u"MakeFolder"_s), QStringList{u"D:\\Disk1"_s});
}

TEST_F(NumberedPageTest, ASecondMakeRunChangesNothing)
{
    page.txtFeltDirSub.SetText(u"Sub"_s);
    Make(u"1"_s, u"3"_s);
    const QStringList made = Work();
    Make(u"1"_s, u"3"_s);
    EXPECT_EQ(Work(), made);
}

TEST_F(NumberedPageTest, AFolderThatCannotBeMadeIsPassedOver)
{
    machine.files.FailAt(Operation::MakeFolder, u"D:\\Work"_s, 2, FailureNumber::PathFileAccessError);
    Make(u"1"_s, u"3"_s);
    EXPECT_EQ(Work(), (QStringList{u"Disk1\\"_s, u"Disk3\\"_s}));
    page.txtFeltDir.SetText(u"What?"_s);
    Make(u"1"_s, u"3"_s);
    EXPECT_EQ(Work(), (QStringList{u"Disk1\\"_s, u"Disk3\\"_s}));
}

TEST_F(NumberedPageTest, OnlyTheMakeRunSounds)
{
    Make(u"1"_s, u"1"_s);
    EXPECT_EQ(machine.journal.About(u"Play"_s), QStringList{u"C:\\Tressel\\click.wav"_s});
    Delete(u"1"_s, u"1"_s);
    EXPECT_EQ(machine.journal.Count(u"Play"_s), 1);
}

TEST_F(NumberedPageTest, OnlyTheDeleteRunShowsTheBusyPointer)
{
    Make(u"1"_s, u"1"_s);
    EXPECT_EQ(machine.journal.About(u"BusyPointer"_s), QStringList{u"off"_s});
    Delete(u"2"_s, u"1"_s);
    EXPECT_EQ(machine.journal.About(u"BusyPointer"_s), (QStringList{u"off"_s, u"on"_s, u"off"_s}));
}

TEST_F(NumberedPageTest, NoRunLetsEventsRun)
{
    Make(u"1"_s, u"9"_s);
    Delete(u"1"_s, u"9"_s);
    EXPECT_EQ(machine.events.Calls(), 0);
}

TEST_F(NumberedPageTest, BothRunsRefreshBothFolderLists)
{
    DirList.SetPath(u"D:\\Work"_s);
    Make(u"1"_s, u"1"_s);
    EXPECT_EQ(page.DirBox.Items().last(), u"Disk1"_s);
    EXPECT_EQ(DirList.Items().last(), u"Disk1"_s);
    Delete(u"1"_s, u"1"_s);
    EXPECT_EQ(page.DirBox.Items().last(), u"Work"_s);
    EXPECT_EQ(DirList.Items().last(), u"Work"_s);
    machine.files.PutFolder(u"D:\\Work\\Other"_s);
    Make(u"2"_s, u"1"_s);
    EXPECT_EQ(DirList.Items().last(), u"Other"_s);
}

TEST_F(NumberedPageTest, DeleteLeavesWhatHoldsSomething)
{
    Make(u"1"_s, u"3"_s);
    machine.files.PutFile(u"D:\\Work\\Disk2\\file"_s);
    Delete(u"1"_s, u"3"_s);
    EXPECT_EQ(Work(), (QStringList{u"Disk2\\"_s, u"Disk2\\file"_s}));
}

TEST_F(NumberedPageTest, AParentGoesWithTheSecondDelete)
{
    machine.files.PutFile(u"D:\\Work\\keep"_s);
    page.txtFeltDirSub.SetText(u"Sub Folder"_s);
    Make(u"1"_s, u"1"_s);
    Delete(u"1"_s, u"1"_s);
    EXPECT_EQ(Work(), (QStringList{u"Disk1\\"_s, u"keep"_s}));
    Delete(u"1"_s, u"1"_s);
    EXPECT_EQ(Work(), QStringList{u"keep"_s});
}

TEST_F(NumberedPageTest, DeleteClimbsOneEmptyAncestorANumber)
{
    machine.files.PutFolder(u"D:\\A\\B\\C"_s);
    page.DirBox.SetPath(u"D:\\A\\B\\C"_s);
    Delete(u"1"_s, u"2"_s);
    EXPECT_TRUE(machine.files.Exists(u"D:\\A"_s));
    EXPECT_FALSE(machine.files.Exists(u"D:\\A\\B"_s));
    EXPECT_EQ(page.NumberedFolderPath, u"D:\\A\\B\\C"_s);
    Delete(u"1"_s, u"1"_s);
    EXPECT_FALSE(machine.files.Exists(u"D:\\A"_s));
}

TEST_F(NumberedPageTest, DeleteWithAnotherLengthOfToGoesForOtherNames)
{
    Make(u"1"_s, u"9"_s);
    Delete(u"1"_s, u"10"_s);
    EXPECT_EQ(Work().size(), 9);
}

TEST_F(NumberedPageTest, DeleteMissesNumberedSubFoldersUnderAutomaticPadding)
{
    page.txtFeltDirSub.SetText(u"Sub"_s);
    page.chkMain_Sub.SetChecked(true);
    Make(u"1"_s, u"2"_s);
    machine.journal.Clear();
    Delete(u"1"_s, u"2"_s);
    EXPECT_EQ(machine.journal.About(u"RemoveFolder"_s),
              (QStringList{u"D:\\Work"_s, u"D:\\Work\\Sub1"_s, u"D:\\Work"_s, u"D:\\Work\\Sub2"_s}));
    EXPECT_EQ(Work(), (QStringList{u"Disk\\"_s, u"Disk\\Sub1\\"_s, u"Disk\\Sub2\\"_s}));
}

TEST_F(NumberedPageTest, TheGuardedFolderStaysAndWhatIsInItGoes)
{
    machine.files.PutFolder(u"C:\\Test1\\Disk1"_s);
    page.DirBox.SetPath(u"C:\\"_s);
    page.txtFeltDir.SetText(u"Test1"_s);
    Delete(u"0"_s, u"0"_s);
    EXPECT_EQ(machine.journal.Count(u"RemoveFolder"_s), 0);
    page.txtFeltDir.SetText(u"Test1\\Disk"_s);
    Delete(u"1"_s, u"1"_s);
    EXPECT_TRUE(machine.files.Exists(u"C:\\Test1"_s));
    EXPECT_FALSE(machine.files.Exists(u"C:\\Test1\\Disk1"_s));
}

TEST_F(NumberedPageTest, AnEmptyStoreGivesTheDefaults)
{
    Steps steps;
    page.Restore(steps);
    EXPECT_EQ(page.cboFrom.Text(), u"1"_s);
    EXPECT_EQ(page.cboTo.Text(), u"1"_s);
    EXPECT_EQ(page.txtFeltDir.Text(), u"Disk"_s);
    EXPECT_EQ(page.txtFeltDirSub.Text(), u"Sub Folder"_s);
    EXPECT_EQ(page.NumberedFolderPath, u"C:\\"_s);
    EXPECT_EQ(page.DirBox.Path(), u"C:\\"_s);
    EXPECT_EQ(page.DrvBox.Drive(), u"C:\\"_s);
    EXPECT_TRUE(page.btnGBMake.IsVisible());
}

TEST_F(NumberedPageTest, TheStateComesBack)
{
    page.Chck_MakeDel.SetChecked(true);
    SetSeries(u"7"_s, u"0012"_s);
    page.txtFeltDir.SetText(u"Box"_s);
    page.txtFeltDirSub.SetText({});
    Steps steps;
    page.Save(steps);
    EXPECT_FALSE(steps.Pending());

    Form nextForm(u"next"_s);
    NumberedPage next(bench.On(nextForm), DirList);
    next.Restore(steps);
    EXPECT_TRUE(next.btnGBDelete.IsVisible());
    EXPECT_FALSE(next.btnGBMake.IsVisible());
    EXPECT_EQ(next.cboFrom.Text(), u"7"_s);
    EXPECT_EQ(next.cboTo.Text(), u"12"_s);
    EXPECT_EQ(next.txtFeltDir.Text(), u"Box"_s);
    EXPECT_EQ(next.txtFeltDirSub.Text(), u""_s);
    EXPECT_EQ(next.NumberedFolderPath, u"D:\\Work"_s);
    EXPECT_EQ(next.DirBox.Path(), u"D:\\Work"_s);
    EXPECT_EQ(next.DrvBox.Drive(), u"D:\\"_s);
}

TEST_F(NumberedPageTest, FromAndToAreStoredAsNumbers)
{
    const QString options = u"Software\\Halven Software\\Tressel\\Options"_s;
    SetSeries(u"2.5"_s, u"abc"_s);
    Steps steps;
    page.Save(steps);
    EXPECT_EQ(machine.hive.Get(SettingsHive::Root::User, options, u"FromDir"_s), HiveValue{2U});
    EXPECT_EQ(machine.hive.Get(SettingsHive::Root::User, options, u"ToDir"_s), std::nullopt);
    EXPECT_EQ(machine.hive.Text(options, u"LastNumPath"_s), u"D:\\Work"_s);
}

TEST_F(NumberedPageTest, AnEmptyTextRestoredIntoAComboBecomes1)
{
    const QString options = u"Software\\Halven Software\\Tressel\\Options"_s;
    machine.hive.Put(SettingsHive::Root::User, options, u"FromDir"_s, QString(u""_s));
    machine.hive.Put(SettingsHive::Root::User, options, u"ToDir"_s, QString(u""_s));
    Steps steps;
    page.Restore(steps);
    EXPECT_EQ(page.cboFrom.Text(), u"1"_s);
    EXPECT_EQ(page.cboTo.Text(), u"1"_s);
}

TEST_F(NumberedPageTest, AnEarlierFailureKeepsTheListsWhereTheyAre)
{
    const QString options = u"Software\\Halven Software\\Tressel\\Options"_s;
    machine.hive.Put(SettingsHive::Root::User, options, u"LastNumPath"_s, QString(u"D:\\Work"_s));
    Form freshForm(u"fresh"_s);
    NumberedPage fresh(bench.On(freshForm), DirList);
    Steps steps;
    steps.Note(Failure(FailureNumber::PathNotFound));
    fresh.Restore(steps);
    EXPECT_FALSE(steps.Pending());
    EXPECT_EQ(fresh.NumberedFolderPath, u"D:\\Work"_s);
    EXPECT_EQ(fresh.DirBox.Path(), u"C:\\"_s);
    EXPECT_EQ(fresh.DrvBox.Drive(), u"C:\\"_s);
    EXPECT_EQ(fresh.DirBox.Items(), (QStringList{u"C:\\"_s, u"Tressel"_s}));
}

TEST_F(NumberedPageTest, AFolderThatHasGoneLeavesAListToPickFromAndNoFailure)
{
    const QString options = u"Software\\Halven Software\\Tressel\\Options"_s;
    machine.hive.Put(SettingsHive::Root::User, options, u"LastNumPath"_s, QString(u"E:\\Gone"_s));
    Form freshForm(u"fresh"_s);
    NumberedPage fresh(bench.On(freshForm), DirList);
    Steps steps;
    fresh.Restore(steps);
    EXPECT_FALSE(steps.Pending());
    EXPECT_EQ(fresh.NumberedFolderPath, u"E:\\Gone"_s);
    EXPECT_EQ(fresh.DirBox.Items(), (QStringList{u"C:\\"_s, u"Tressel"_s}));
    // The one drive is on show already, and choosing it takes the page there all the same.
    fresh.DrvBox.UserSelects(0);
    EXPECT_EQ(fresh.NumberedFolderPath, u"C:\\"_s);
}

} // namespace
