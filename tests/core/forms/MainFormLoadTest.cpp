// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "support/StartedProgram.h"
#include "support/Text.h"

#include <gtest/gtest.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

const QString mainKey = u"Software\\Halven Software\\Tressel\\Main"_s;

/// "Main\\FilePath": a setting without what all have in front.
QString Short(const QString &setting)
{
    return setting.section(u'\\', -2);
}

class MainFormLoad : public testing::Test, protected StartedProgram {
protected:
    QStringList Settings(const QString &what)
    {
        QStringList names;
        for (const QString &about : machine.journal.About(what))
            names += Short(about);
        return names;
    }
    void Store(const QString &name, const HiveValue &value)
    {
        machine.hive.Write(SettingsHive::Root::User, mainKey, name, value);
    }
    void Leave() { EXPECT_THROW(Form().btnGBToolbarExit.UserClicks(), ProcessEnded); }
};

/// The names with one thing in front of all.
QStringList Below(const QString &key, const QStringList &names)
{
    QStringList paths;
    for (const QString &name : names)
        paths += key + u'\\' + name;
    return paths;
}

/// "Color11", "Color12" and so on.
QStringList Numbered(const QString &name, int first, int last)
{
    QStringList names;
    for (int number = first; number <= last; ++number)
        names += name + QString::number(number);
    return names;
}

/// What the rename page reads and writes: the text to put in twice.
const QStringList renameKeys{u"TotalFileCount"_s, u"ReplaceFrom"_s, u"ReplaceTo"_s, u"ExtAll"_s,
                             u"ExtFrom"_s,        u"ExtTo"_s,       u"ReplaceTo"_s};

TEST_F(MainFormLoad, ReadsTheSettingsInItsOrder)
{
    Start();
    const QStringList place =
        Below(u"Main"_s, {u"MainWidth"_s, u"MainHeight"_s, u"MainLeft"_s, u"MainTop"_s});
    const QStringList colours = Below(u"Main"_s, Numbered(u"Color"_s, 11, 21));
    const QStringList facts = Below(u"CurrentVersion"_s,
                                    {u"ProductName"_s, u"CurrentVersion"_s, u"CurrentBuildNumber"_s,
                                     u"CSDVersion"_s, u"RegisteredOwner"_s, u"RegisteredOrganization"_s});
    // The options come up first, and show the facts.
    const QStringList order = facts
        + Below(u"Options"_s,
                {u"ButtonStyle"_s, u"ShowDigit"_s, u"EnableAnimation"_s, u"DigitType"_s, u"Sound"_s,
                 u"Show Tips at Startup"_s, u"AnimHeight"_s, u"AnimWidth"_s})
        // The main window: the pages, the first look at its place, the list.
        + Below(u"Main"_s, {u"SearchPath"_s, u"DatabaseFile"_s, u"SQLString"_s, u"Table"_s})
        + Below(u"Options"_s,
                {u"MakeDel"_s, u"FromDir"_s, u"ToDir"_s, u"Folder"_s, u"SubFolder"_s, u"LastNumPath"_s})
        + place
        + Below(u"Main"_s, {u"FilePath"_s, u"FileExt"_s, u"ButtonBar"_s, u"LastPath"_s, u"LastFile"_s})
        + Below(u"Main"_s, renameKeys)
        + Below(u"Main"_s,
                {u"LastDBPath"_s, u"OpenTXTPath"_s, u"OpenDBPath"_s, u"Separate"_s, u"RecentPath 0"_s,
                 u"OnlyListFilename"_s, u"GenLastPath"_s, u"LastSavePath"_s})
        + Below(u"Settings"_s,
                {u"WindowLeft"_s, u"WindowTop"_s, u"SplitSize"_s, u"SplitCount"_s, u"SplitOption"_s,
                 u"DeleteParts"_s, u"OpenExplorer"_s, u"CopyToFloppy"_s})
        + Below(u"Options"_s, {u"Language"_s})
        // The appearance, with the second look at the place, and with the colours once more on top of the
        // default ones.
        + Below(u"Main"_s, {u"RightToLeft"_s}) + colours + place
        + Below(u"Main"_s,
                {u"IndxBar"_s, u"VisibleItems"_s, u"TabStrip"_s, u"TitleBarFont"_s, u"TitleBarSize"_s,
                 u"TitleBarBold"_s, u"TitleBarItalic"_s, u"TitleBarUnderline"_s, u"TitleBarColor"_s,
                 u"TitleCapBold"_s, u"TitleCapSize"_s, u"TitleCapFont"_s, u"TitleCapItalic"_s,
                 u"TitleCapUnderline"_s, u"TitleCapTextCol"_s, u"OutlookColors"_s})
        + colours + Below(u"Main"_s, {u"CustomColor"_s}) + Below(u"Main"_s, Numbered(u"chk"_s, 1, 7))
        + Below(u"Main"_s, Numbered(u"Menu"_s, 1, 7));
    EXPECT_EQ(Settings(u"ReadSetting"_s), order);
}

TEST_F(MainFormLoad, WritesTheSettingsInItsOrder)
{
    Start();
    machine.journal.Clear();
    Leave();
    QStringList written = Settings(u"WriteSetting"_s);
    const QStringList order =
        Below(u"Settings"_s,
              {u"WindowLeft"_s, u"WindowTop"_s, u"SplitSize"_s, u"SplitCount"_s, u"SplitOption"_s,
               u"DeleteParts"_s, u"OpenExplorer"_s, u"CopyToFloppy"_s})
        + Below(
            u"Main"_s,
            {u"MainLeft"_s, u"MainTop"_s, u"MainWidth"_s, u"MainHeight"_s, u"VisibleItems"_s, u"TabStrip"_s})
        + Below(u"Main"_s, Numbered(u"Menu"_s, 1, 7))
        + Below(u"Main"_s, {u"OnlyListFilename"_s, u"GenLastPath"_s, u"LastSavePath"_s})
        + Below(u"Main"_s, renameKeys)
        + Below(u"Main"_s,
                {u"SearchPath"_s, u"DatabaseFile"_s, u"SQLString"_s, u"Table"_s, u"FilePath"_s, u"FileExt"_s,
                 u"ButtonBar"_s, u"Separate"_s, u"LastFile"_s, u"LastPath"_s, u"LastDBPath"_s,
                 u"OpenTXTPath"_s, u"OpenDBPath"_s})
        + Below(u"Options"_s,
                {u"MakeDel"_s, u"FromDir"_s, u"ToDir"_s, u"Folder"_s, u"SubFolder"_s, u"LastNumPath"_s});
    EXPECT_EQ(written, order);
    EXPECT_EQ(machine.journal.About(u"End"_s), QStringList{u"0"_s});
}

TEST_F(MainFormLoad, FirstStartIsCentredInItsLaterSize)
{
    Start();
    EXPECT_EQ(Form().Width(), 10830);
    EXPECT_EQ(Form().Height(), 7860);
    EXPECT_EQ(Form().Left(), (machine.screen.Width() - 10830) / 2);
    EXPECT_EQ(Form().Top(), (machine.screen.Height() - 7860) / 2);
    EXPECT_FALSE(Form().HasCloseBox());
}

TEST(FirstStart, BringsTheTipsThenTheWindowInTheProgramFolder)
{
    MemoryMachine machine;
    Application fresh(machine.machine);
    fresh.Start();
    EXPECT_TRUE(fresh.frmTip().IsVisible());
    fresh.frmTip().cmdOK.UserClicks();
    EXPECT_EQ(fresh.frmMain().Width(), 10830);
    EXPECT_EQ(fresh.frmMain().Height(), 7860);
    EXPECT_EQ(fresh.frmMain().Left(), (machine.screen.Width() - 10830) / 2);
    EXPECT_EQ(fresh.frmMain().Top(), (machine.screen.Height() - 7860) / 2);
    EXPECT_TRUE(fresh.frmMain().area.chkExtension.IsChecked());
    EXPECT_EQ(fresh.frmMain().area.txtStrtPath.Text(), u"C:\\Tressel"_s);
    EXPECT_EQ(fresh.frmMain().browse.DirList.Path(), u"C:\\Tressel"_s);
    EXPECT_EQ(fresh.frmMain().textLists.OpenTXTPath, u"C:\\Tressel"_s);
    EXPECT_EQ(fresh.frmMain().database.OpenDBPath, u"C:\\Tressel"_s);
    EXPECT_EQ(fresh.frmMain().area.LstItem.ListCount(), 0);
}

TEST_F(MainFormLoad, PlaceAtZeroIsTakenForNeverStored)
{
    const QList<std::array<int, 2>> stored = {{0, 100}, {100, 0}, {-300, 40}};
    for (const auto &[left, top] : stored) {
        StartedProgram program;
        program.application.settings.Write(keys::MainLeft, left);
        program.application.settings.Write(keys::MainTop, top);
        program.Start();
        EXPECT_EQ(program.Form().Left(), left);
        EXPECT_EQ(program.Form().Top(), top);
    }
}

TEST_F(MainFormLoad, TheCentreIsThatOfTheAvailablePartOfItsScreen)
{
    StartedProgram program;
    // The second of two screens, with a panel at its upper edge.
    program.machine.screen.SetOrigin(1920 * 15, 30 * 15);
    program.machine.screen.SetSize(1280 * 15, 994 * 15);
    program.Start();
    EXPECT_EQ(program.Form().Left(), 1920 * 15 + (1280 * 15 - 10830) / 2);
    EXPECT_EQ(program.Form().Top(), 30 * 15 + (994 * 15 - 7860) / 2);
}

TEST_F(MainFormLoad, SecondStoresPlaceIsOverruled)
{
    application.settings.Write(keys::MainLeft, 300);
    application.settings.Write(keys::MainTop, 400);
    application.settings.Write(keys::WindowLeft, u"50"_s);
    application.settings.Write(keys::WindowTop, u"60"_s);
    Start();
    EXPECT_EQ(Form().Left(), 300);
    EXPECT_EQ(Form().Top(), 400);
}

TEST_F(MainFormLoad, WrongValuesInTheFirstPartArePassedOver)
{
    for (const char16_t *name : {u"MainWidth", u"FileExt", u"ButtonBar", u"OnlyListFilename", u"Separate"})
        Store(QString::fromUtf16(name), u"abc"_s);
    application.settings.Write(keys::LastDBPath, u"C:\\Gone"_s);
    Start();
    EXPECT_TRUE(Form().IsVisible());
    EXPECT_EQ(Area().chkExtension.Value(), 0);
    // The later part still ran to its end.
    EXPECT_EQ(machine.journal.About(u"ReadSetting"_s).last(), mainKey + u"\\Menu7"_s);
}

TEST_F(MainFormLoad, WrongValueInTheSecondPartEndsTheLoadWithoutAWord)
{
    application.settings.Write(keys::WindowLeft, u"abc"_s);
    Start();
    EXPECT_TRUE(Form().IsVisible());
    EXPECT_EQ(Form().splitter.cmbSplitSize.ListCount(), 10);
    EXPECT_EQ(Form().EyeDropper1.Items().Count(), 0);
}

TEST_F(MainFormLoad, SplitterPageComesFromTheSecondStore)
{
    application.settings.Write(keys::SplitSize, u"500"_s);
    application.settings.Write(keys::SplitCount, u"7"_s);
    application.settings.Write(keys::SplitOption, u"True"_s);
    application.settings.Write(keys::DeleteParts, u"0"_s);
    application.settings.Write(keys::CopyToFloppy, u"1"_s);
    Start();
    const SplitterPage &page = Form().splitter;
    EXPECT_EQ(page.cmbSplitSize.Text(), u"500"_s);
    EXPECT_EQ(page.txtSplitCount.Text(), u"7"_s);
    EXPECT_EQ(page.optSplit.Selected(), 1);
    EXPECT_FALSE(page.chkDeleteParts.IsChecked());
    EXPECT_TRUE(page.chkOpenExplorer.IsChecked());
    EXPECT_TRUE(page.chkCopyToFloppy.IsChecked());
    Leave();
    EXPECT_EQ(application.settings.ReadText(keys::SplitOption), u"True"_s);
}

TEST_F(MainFormLoad, CommandLineNamesTheFileToSplit)
{
    machine.files.PutFile(u"C:\\Docs\\big one.iso"_s, "x");
    machine.program.commandLine = u"C:\\Docs\\big one.iso"_s;
    Start();
    EXPECT_EQ(Form().splitter.cboFileName.Text(), u"C:\\Docs\\big one.iso"_s);
}

TEST_F(MainFormLoad, CommandLineThatNamesNoFileIsIgnored)
{
    machine.files.PutFile(u"C:\\Docs\\big.iso"_s, "x");
    for (const QString &commandLine :
         {u""_s, u"\"C:\\Docs\\big.iso\""_s, u"C:\\Docs\\none"_s, u"C:\\Docs"_s}) {
        StartedProgram program;
        program.machine.program.commandLine = commandLine;
        program.Start();
        EXPECT_EQ(program.Form().splitter.cboFileName.Text(), u""_s) << commandLine.toStdString();
    }
}

TEST_F(MainFormLoad, RenamePageStartsInTheProgramFolderUnlessAPathIsStored)
{
    Start();
    EXPECT_EQ(Form().rename.txtCurrentPath.Text(), u"C:\\Tressel"_s);
    EXPECT_EQ(Form().rename.ProgressBar.Max(), 2);
    EXPECT_EQ(Form().rename.ProgressBar.Value(), 0);

    StartedProgram program;
    program.application.settings.Write(keys::LastPath, u"C:\\Docs"_s);
    program.Start();
    EXPECT_EQ(program.Form().rename.txtCurrentPath.Text(), u"C:\\Docs"_s);
}

TEST_F(MainFormLoad, HiddenEntriesAreHidden)
{
    application.settings.Write(keys::Chk.At(3), u"0"_s);
    Start();
    EXPECT_FALSE(Form().EyeDropper1.Items()[3].IsVisible());
    EXPECT_TRUE(Form().EyeDropper1.Items()[4].IsVisible());
}

TEST_F(MainFormLoad, FirstStartInstallsTheSecondPalette)
{
    Start();
    ASSERT_TRUE(Form().EyeDropper1.Colors());
    EXPECT_EQ(Form().EyeDropper1.Colors()->at(0), 0xDEDEDEU);
    EXPECT_EQ(Form().EyeDropper1.Colors()->at(4), 0xB6E2FAU);
    EXPECT_EQ(application.settings.ReadText(keys::CustomColor), u"2"_s);
    EXPECT_TRUE(application.frmOption().btnGBColorSystem.Value());
    EXPECT_TRUE(application.frmOption().btnGBColor2.Value());
}

TEST_F(MainFormLoad, StoredColoursSurviveARestart)
{
    application.settings.Write(keys::VisibleItems, 5);
    application.settings.Write(keys::Color.At(12), u"255"_s);
    Start();
    EXPECT_EQ(Form().EyeDropper1.Colors()->at(1), 255U);
    EXPECT_EQ(Form().EyeDropper1.Colors()->at(0), 0xDEDEDEU);
    EXPECT_EQ(Form().EyeDropper1.VisibleItems(), 5);
}

TEST_F(MainFormLoad, AStoredColourIsKeptWhateverBringsTheDefaultOnes)
{
    // Nothing else is stored: the first session was killed.
    application.settings.Write(keys::Color.At(12), u"255"_s);
    Start();
    EXPECT_EQ(Form().EyeDropper1.Colors()->at(1), 255U);
    EXPECT_EQ(application.frmOption().Swatch(12).BackColor(), 255U);
    EXPECT_EQ(Form().EyeDropper1.Colors()->at(0), 0xDEDEDEU);
}

TEST_F(MainFormLoad, PaletteOfNeitherNumberLeavesTheSideBarItsOwn)
{
    application.settings.Write(keys::CustomColor, u"3"_s);
    Start();
    EXPECT_FALSE(Form().EyeDropper1.Colors());
}

TEST_F(MainFormLoad, ButtonsGetTheirLookInTheToldOrderAndNoneIsLeftOut)
{
    QStringList names;
    for (const IsButton *button : Form().Buttons())
        names += button->Name();
    EXPECT_EQ(
        names.join(u' '),
        u"btnGBLoadFile btnGBSaveFile btnGBLoadList btnGBOpenDatabase btnGBMake btnGBBrowse btnGBDelete "
        "btnGBToolbarExit btnGBToolbarOption btnGBToolbarLoadList btnGBToolbarBrowse btnGBToolbarCreate "
        "btnGBToolbarUpdate btnGBToolbarAbout btnGBToolbarSearch btnGBToolbarOpenDir btnGBToolbarDelDir "
        "btnGBToolbarDeleteAll btnGBToolbarCopy btnGBMakeList btnGBResult btnGBSplitFile btnGBJoinFile "
        "btnBrowse btnGBErase btnGBBrowsePath btnGBRename btnGBReplace btnGBExtension btnGBCancel"_s);
}

TEST_F(MainFormLoad, EntryOfButtonStyleGivesAllButtonsTheirLook)
{
    const QList<int> styles = {0, 2, 10, 5, 4, 8, 9, 7, 3};
    for (int entry = 0; entry < styles.size(); ++entry) {
        StartedProgram program;
        program.application.settings.Write(keys::ButtonStyle, entry);
        program.Start();
        for (const IsButton *button : program.Form().Buttons())
            EXPECT_EQ(static_cast<int>(button->Style()), styles.at(entry)) << button->Name().toStdString();
    }
}

TEST_F(MainFormLoad, ListOfTheLastSessionComesBack)
{
    machine.files.PutFile(u"C:\\Lists\\names.txt"_s, "one\r\ntwo\r\n");
    application.settings.Write(keys::LastFile, u"C:\\Lists\\names.txt"_s);
    Start();
    EXPECT_EQ(Area().LstItem.Items(), (QStringList{u"one"_s, u"two"_s}));
    EXPECT_EQ(Area().TVList.Nodes().at(0).text, u"Create 2 Main Folders"_s);
}

TEST_F(MainFormLoad, ListingResetsTheEmptyFolderPageOnItsWay)
{
    machine.files.PutFile(u"C:\\Music\\a.mp3"_s, "x");
    Start();
    Form().emptyFolders.ListRemove.AddItem(u"C:\\Old"_s);
    Form().emptyFolders.btnGBToolbarOpenDir.SetEnabled(true);
    Form().listing.CboFilePath.SetText(u"C:\\Music"_s);
    Form().listing.ChckValg.SetChecked(true);
    Form().listing.btnGBMakeList.UserClicks();
    EXPECT_EQ(Form().emptyFolders.ListRemove.ListCount(), 0);
    EXPECT_FALSE(Form().emptyFolders.btnGBToolbarOpenDir.IsEnabled());
    EXPECT_EQ(Status(), u"Generate File list - Finished"_s);
}

class MainFormUnload : public MainFormLoad { };

TEST_F(MainFormUnload, WindowThatIsntNormalKeepsTheOldPlace)
{
    for (const WindowState state : {WindowState::Maximised, WindowState::Minimised}) {
        StartedProgram program;
        program.application.settings.Write(keys::MainLeft, 300);
        program.application.settings.Write(keys::MainTop, 400);
        program.Start();
        program.Form().TakeGeometry(0, 0, 20000, 15000, state);
        EXPECT_THROW(program.Form().Unload(), ProcessEnded);
        EXPECT_EQ(program.application.settings.ReadInt32(keys::MainLeft), 300);
        EXPECT_EQ(program.application.settings.ReadInt32(keys::MainWidth), 8120);
    }
}

TEST_F(MainFormUnload, UpdateThatLoadsAsksAndMayKeepTheWindow)
{
    Start();
    const QString text = u"You try to exit before Update manager is loaded wait to this is finished\n"
                         "Chose \"Yes\" if you Will Exit now or \"No\" if you will wait..."_s;
    application.session.UpdateLoading = true;
    machine.dialogs.ExpectBox({text, u"Message"_s, BoxIcon::None, BoxButtons::YesNo}, BoxAnswer::No);
    Area().txtStrtPath.SetText(u"C:\\Kept"_s);
    Form().btnGBToolbarExit.UserClicks();
    EXPECT_TRUE(Form().IsVisible());
    EXPECT_EQ(application.settings.ReadText(keys::FilePath), u"C:\\Kept"_s);

    machine.dialogs.ExpectBox(text, BoxAnswer::Yes);
    Leave();
}

TEST_F(MainFormUnload, AnimationFoldsHeightThenWidth)
{
    Start();
    application.frmOption().ChkAnimOption.SetChecked(true);
    QList<QSize> sizes;
    machine.events.When(
        [&] {
            sizes += QSize(Form().Width(), Form().Height());
            return Form().Width() <= 1700;
        },
        [] {});
    Leave();
    ASSERT_FALSE(sizes.isEmpty());
    EXPECT_EQ(sizes.first(), QSize(10830, 7860 - 500));
    EXPECT_LE(sizes.last().height(), 420);
    EXPECT_LE(sizes.last().width(), 1700);
    EXPECT_TRUE(sizes.contains(QSize(10830, 360)));
    EXPECT_EQ(Form().Left(), (machine.screen.Width() - Form().Width()) / 2);
    EXPECT_FALSE(Form().IsVisible());
}

TEST_F(MainFormUnload, AnimationTextThatIsNoNumberEndsTheAnimation)
{
    Start();
    application.frmOption().ChkAnimOption.SetChecked(true);
    application.frmOption().txtHeight.SetText(u""_s);
    Leave();
    EXPECT_EQ(Form().Height(), 7860);
    EXPECT_EQ(Form().Width(), 10830);
    EXPECT_FALSE(Form().IsVisible());

    StartedProgram program;
    program.Start();
    program.application.frmOption().ChkAnimOption.SetChecked(true);
    program.application.frmOption().txtWidth.SetText(u"wide"_s);
    EXPECT_THROW(program.Form().Unload(), ProcessEnded);
    EXPECT_LE(program.Form().Height(), 420);
    EXPECT_EQ(program.Form().Width(), 10830);
}

TEST_F(MainFormUnload, AnimationEndsThoughTheWindowIsHeldOpen)
{
    Start();
    application.frmOption().ChkAnimOption.SetChecked(true);
    const int before = machine.events.Calls();
    // A desktop that knows a least size of its own.
    for (int step = 1; step <= 15 + 46; ++step) {
        machine.events.At(step, [&] {
            Form().TakeGeometry(Form().Left(), Form().Top(), 10830, 3000, WindowState::Normal);
        });
    }
    Leave();
    EXPECT_EQ(machine.events.Calls() - before, 15 + 46);
}

TEST_F(MainFormUnload, ExitDuringTheAnimationEndsItAndKeepsThePlace)
{
    application.settings.Write(keys::MainLeft, 300);
    application.settings.Write(keys::MainTop, 400);
    Start();
    application.frmOption().ChkAnimOption.SetChecked(true);
    const int before = machine.events.Calls();
    machine.events.At(20, [&] { Form().btnGBToolbarExit.UserClicks(); });
    Leave();
    EXPECT_EQ(machine.events.Calls() - before, 15 + 46);
    EXPECT_EQ(application.settings.ReadInt32(keys::MainWidth), 10830);
    EXPECT_EQ(application.settings.ReadInt32(keys::MainHeight), 7860);
    EXPECT_EQ(application.settings.ReadInt32(keys::MainTop), 400);
    EXPECT_EQ(application.settings.ReadText(keys::WindowTop), u"400"_s);
}

TEST_F(MainFormUnload, AnimationThatWouldNeverEndIsLeftOut)
{
    Start();
    application.frmOption().ChkAnimOption.SetChecked(true);
    application.frmOption().txtHeight.SetText(u"0"_s);
    application.frmOption().txtWidth.SetText(u"-5"_s);
    Leave();
    EXPECT_EQ(Form().Height(), 7860);
    EXPECT_EQ(Form().Width(), 10830);
}

TEST_F(MainFormUnload, AnimationInOneHugeStepIsOver)
{
    Start();
    application.frmOption().ChkAnimOption.SetChecked(true);
    application.frmOption().txtHeight.SetText(u"2147483647"_s);
    application.frmOption().txtWidth.SetText(u"2147483647"_s);
    Leave();
    EXPECT_EQ(Form().Height(), 0);
    EXPECT_EQ(Form().Width(), 0);
}

TEST_F(MainFormUnload, NothingFoldsWhenMinimisedOrOff)
{
    Start();
    Leave();
    EXPECT_EQ(Form().Height(), 7860);

    StartedProgram program;
    program.Start();
    program.application.frmOption().ChkAnimOption.SetChecked(true);
    program.Form().TakeGeometry(0, 0, 9000, 7000, WindowState::Minimised);
    EXPECT_THROW(program.Form().Unload(), ProcessEnded);
    EXPECT_EQ(program.Form().Height(), 7000);
}

} // namespace
