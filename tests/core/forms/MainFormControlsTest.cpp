// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "MainFormTest.h"

#include <ostream>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

enum class State {
    Usable,
    Resting, ///< disabled
    Hidden,
};

template <typename Kind> bool Is(const Control &control)
{
    return dynamic_cast<const Kind *>(&control) != nullptr;
}

/// A control as a new window has it. The text is a caption, or what stands in a box.
struct Row {
    bool (*isOfKind)(const Control &);
    QStringView name;
    QStringView text;
    QStringView toolTip = u"";
    State state = State::Usable;
};

void PrintTo(const Row &row, std::ostream *out)
{
    *out << row.name.toUtf8().constData();
}

// clang-format off: a row is a line
const Row rows[] = {
    {Is<Frame>, u"FrmeToolbar", u""},
    {Is<IsButton>, u"btnGBToolbarCreate", u"Create"},
    {Is<IsButton>, u"btnGBToolbarLoadList", u"Load List"},
    {Is<IsButton>, u"btnGBToolbarBrowse", u"Browse"},
    {Is<IsButton>, u"btnGBToolbarOption", u"Option"},
    {Is<IsButton>, u"btnGBToolbarUpdate", u"Update"},
    {Is<IsButton>, u"btnGBToolbarAbout", u"About"},
    {Is<IsButton>, u"btnGBToolbarExit", u"Exit"},
    {Is<Frame>, u"FrmeSep(0)", u""},
    {Is<Frame>, u"FrmeSep(1)", u""},
    {Is<Label>, u"lblTitle", u" Start in:"},
    {Is<TextBox>, u"txtStrtPath", u"c:\\",
     u" Drag and drop folder destination here a new folders will be created if not exist "},
    {Is<CheckBox>, u"chkButtonBar", u"Hide Toolbar",
     u" If Checked Hide Toolbar Tip: If you have Screen Res 800 x 600 "},
    {Is<CheckBox>, u"chkExtension", u"Remove Ext", u" If Checked Remove Extension ex: *.txt or *.exe "},
    {Is<SideBar>, u"EyeDropper1", u""},
    {Is<PictureBox>, u"PicStrip", u""},
    {Is<PictureBox>, u"PicHold", u""},
    {Is<TreeView>, u"TVList", u"", u" Clikk a item to Open Created Folder "},
    {Is<ListBox>, u"LstItem", u"", u" Double clikk to remove item "},
    {Is<PictureBox>, u"PicStatus", u""},
    {Is<Label>, u"lblStatusLine", u"Ready"},
    {Is<PictureBox>, u"PicUpdate", u"", u"Clcik here for new update", State::Hidden},
    {Is<Label>, u"lblUpdate", u"New version", u"Clcik here for new update"},
    {Is<PictureBox>, u"Picture3", u""},
    {Is<PictureBox>, u"Picture4", u"", u"", State::Hidden},
    {Is<TextBox>, u"txtstrSQL", u"SELECT * FROM Products", u"", State::Hidden},
    {Is<Frame>, u"FrameXPMenu(0)", u"", u"", State::Hidden},
    {Is<Frame>, u"FrameXPMenu(1)", u"", u"", State::Hidden},
    {Is<Frame>, u"FrameXPMenu(2)", u"", u"", State::Hidden},
    {Is<Frame>, u"FrameXPMenu(3)", u"", u"", State::Hidden},
    {Is<Frame>, u"FrameXPMenu(4)", u"", u"", State::Hidden},
    {Is<Frame>, u"FrameXPMenu(5)", u"", u"", State::Hidden},
    {Is<Frame>, u"FrameXPMenu(6)", u"", u"", State::Hidden},
    {Is<Frame>, u"FrameXPMenu(7)", u"", u"", State::Hidden},
    {Is<DriveList>, u"DrvList", u"", u" List of drivelist "},
    {Is<FolderList>, u"DirList", u"", u" List of dirlist "},
    {Is<FileList>, u"FileList", u"", u" List of filelist "},
    {Is<Frame>, u"fraExtensions", u"Extensions"},
    {Is<OptionButton>, u"optAllExtensions", u"All", u" All extensions "},
    {Is<OptionButton>, u"optSpecificExtensions", u"Specific", u" Specific extensions "},
    {Is<Frame>, u"fraReplace", u"Presets"},
    {Is<OptionButton>, u"optReplacePresetNone", u"None"},
    {Is<OptionButton>, u"optReplacePresetMP3", u"MP3"},
    {Is<Frame>, u"fraRenamingCap", u"Capitalize"},
    {Is<CheckBox>, u"chkCapFirstLetter", u"First Letter", u" Caps the first letter in name "},
    {Is<CheckBox>, u"chkCapAfterEverySpace", u"Every word", u" Caps every word after a space "},
    {Is<Frame>, u"fraExtensionsSpecific", u"Specific Extensions"},
    {Is<TextBox>, u"txtSpecificExtFrom", u""},
    {Is<TextBox>, u"txtSpecificExtTo", u""},
    {Is<Label>, u"lblExtensionsFrom", u"From:"},
    {Is<Label>, u"lblExtensionsTo", u"To:"},
    {Is<Frame>, u"fraAllExtensions", u"All &Extensions", u"", State::Hidden},
    {Is<TextBox>, u"txtExtensionsChangeAllTo", u"", u"Without dot \".\""},
    {Is<Label>, u"lblExtensionsChangeAllTo", u"Rename and Change to"},
    {Is<Frame>, u"fraRenamingType", u"Type"},
    {Is<OptionButton>, u"optRenameFolder", u"Folders"},
    {Is<OptionButton>, u"optRenameAll", u"Both"},
    {Is<OptionButton>, u"optRenameFile", u"Files"},
    {Is<Frame>, u"fraRenamingCase", u"Rename Case"},
    {Is<OptionButton>, u"optNoChange", u"No Change"},
    {Is<OptionButton>, u"optUppercase", u"Uppercase"},
    {Is<OptionButton>, u"optLowercase", u"Lowercase"},
    {Is<Frame>, u"fraReplacePresets", u"Replace in file/folder"},
    {Is<TextBox>, u"txtReplaceFrom", u""},
    {Is<TextBox>, u"txtReplaceTo", u""},
    {Is<Label>, u"lblReplaceEvery", u"Replace:"},
    {Is<Label>, u"lblReplaceWith", u"With:"},
    {Is<Frame>, u"fraReplaceType", u"Type"},
    {Is<OptionButton>, u"optReplaceFile", u"Files"},
    {Is<OptionButton>, u"optReplaceBoth", u"Both"},
    {Is<OptionButton>, u"optReplaceFolder", u"Folders"},
    {Is<TextBox>, u"txtCurrentPath", u"",
     u" You can drag and drop Path in which all operation will be performed. "},
    {Is<Frame>, u"Picture1", u""},
    {Is<Frame>, u"Picture2", u""},
    {Is<ProgressBar>, u"ProgressBar", u""},
    {Is<Label>, u"lblPath", u"Path:"},
    {Is<IsButton>, u"btnGBRename", u"Rename"},
    {Is<IsButton>, u"btnGBReplace", u"Replace"},
    {Is<IsButton>, u"btnGBExtension", u"Extension"},
    {Is<IsButton>, u"btnGBCancel", u"Cancel", u"", State::Resting},
    {Is<IsButton>, u"btnGBBrowsePath", u". . ."},
    {Is<CheckBox>, u"chkMain_Sub", u"Make numbered Main/Sub Folders",
     u" If Checked Make numbered Sub Folders "},
    {Is<TextBox>, u"txtFeltDirSub", u"Sub Folder"},
    {Is<Label>, u"lblFrom", u"From:"},
    {Is<ComboBox>, u"cboFrom", u""},
    {Is<Label>, u"lblTo", u"To:"},
    {Is<ComboBox>, u"cboTo", u""},
    {Is<CheckBox>, u"Chck_MakeDel", u"Chose Make or Delete", u" Select Make or Delete Folder "},
    {Is<TextBox>, u"txtFeltDir", u"Disk"},
    {Is<FolderList>, u"DirBox", u"", u" Select any folder "},
    {Is<DriveList>, u"DrvBox", u"", u" Change to another drive "},
    {Is<IsButton>, u"btnGBMake", u"Make Folder"},
    {Is<IsButton>, u"btnGBDelete", u"Delete Folder", u"", State::Hidden},
    {Is<TextBox>, u"txtDatabaseFile", u"",
     u" Type in your path to mdb database file or open database with click on \"Database\" button "},
    {Is<CheckListBox>, u"ListBox(0)", u"", u" Pick Table from list "},
    {Is<CheckListBox>, u"ListBox(1)", u"", u" Pick Fields from list "},
    {Is<IsButton>, u"btnGBOpenDatabase", u"Database"},
    {Is<IsButton>, u"btnGBLoadList", u"Load List"},
    {Is<Label>, u"lblDatabaseFile", u"Database File"},
    {Is<Label>, u"lblTable", u"No Fields"},
    {Is<Label>, u"lblstrSQL", u"Tables"},
    {Is<ListBox>, u"ListRemove", u""},
    {Is<DriveList>, u"DrvListRemove", u""},
    {Is<FolderList>, u"DirListRemove", u""},
    {Is<IsButton>, u"btnGBToolbarSearch", u"Find Dir"},
    {Is<IsButton>, u"btnGBToolbarOpenDir", u"Open Dir", u"", State::Resting},
    {Is<IsButton>, u"btnGBToolbarDelDir", u"Del current", u"", State::Resting},
    {Is<IsButton>, u"btnGBToolbarDeleteAll", u"Delete All", u"", State::Resting},
    {Is<IsButton>, u"btnGBToolbarCopy", u"Clipboard", u"", State::Resting},
    {Is<CheckBox>, u"ChckDir", u"List only folders",
     u" If checked List only folders without filename and no info only folder structures "},
    {Is<CheckBox>, u"ChckValg", u"List to filename",
     u" If checked List to filename or not checked list and show direct to folder list "},
    {Is<ComboBox>, u"CboFilePath", u""},
    {Is<TextBox>, u"txtReport", u""},
    {Is<IsButton>, u"btnGBMakeList", u"Make List", u" Start Make list "},
    {Is<IsButton>, u"btnGBResult", u"Open List",
     u" Open List from textfile or show list direct to folder list "},
    {Is<IsButton>, u"btnGBBrowse", u". . .", u" Browse... "},
    {Is<ProgressBar>, u"ProgressBar1", u""},
    {Is<Label>, u"lblFilePath", u"Choose Path"},
    {Is<Label>, u"lblWStatus", u"Progress Status"},
    {Is<Label>, u"lblRSaved", u"Report Saved"},
    {Is<Timer>, u"Timer1", u""},
    {Is<ListBox>, u"lstErase", u"", u" Double Click on Item in list for remove a item from list "},
    {Is<PictureBox>, u"PicProgress", u""},
    {Is<ProgressBar>, u"ProgrBar", u""},
    {Is<Label>, u"lblOverwrite", u"Ready"},
    {Is<IsButton>, u"btnGBErase", u"Erase", u"", State::Resting},
    {Is<Label>, u"lblEraseMessage", u"Drag and drop files into list",
     u" Double Click on Item in list for remove a item from list "},
    {Is<IsButton>, u"btnGBLoadFile", u"Load File"},
    {Is<IsButton>, u"btnGBSaveFile", u"Save File"},
    {Is<Label>, u"lblInfo",
     u"Open from textfile and read to list for making of folders or Save from list to textfile to later use"},
    {Is<ComboBox>, u"cboFileName", u"", u" For Clear the list Set cursor in list and push F12 "},
    {Is<Frame>, u"fraEst", u"Estimates"},
    {Is<Label>, u"lblEstFileCount(0)", u"File Count:"},
    {Is<Label>, u"lblEstFileCount(1)", u"0"},
    {Is<Label>, u"lblEstFileSize(0)", u"File Size:"},
    {Is<Label>, u"lblEstFileSize(1)", u"0"},
    {Is<Frame>, u"Frame1", u"Split By"},
    {Is<TextBox>, u"txtSplitCount", u"", u"", State::Resting},
    {Is<OptionButton>, u"optSplit(0)", u"File Size"},
    {Is<OptionButton>, u"optSplit(1)", u"File Count"},
    {Is<ComboBox>, u"cmbSplitSize", u""},
    {Is<Label>, u"lblSplitCount", u"Split Files", u"", State::Resting},
    {Is<Label>, u"lblSplitSize", u"Split Size (KB)"},
    {Is<CtlProgress>, u"ctlProgress1", u""},
    {Is<Frame>, u"fraStats", u"Statistics"},
    {Is<Label>, u"lblStart", u"Start Time:"},
    {Is<Label>, u"lblFinish", u"Finish Time:"},
    {Is<Label>, u"lblElapsed", u"Elapsed Time:"},
    {Is<Label>, u"lblFileCount", u"File Count:"},
    {Is<Frame>, u"Frame2", u"Option"},
    {Is<CheckBox>, u"chkCopyToFloppy", u"Copy to Floppies when finished Splitting"},
    {Is<CheckBox>, u"chkOpenExplorer", u"Open Explorer Window to Split Directory"},
    {Is<CheckBox>, u"chkDeleteParts", u"Delete Split Parts when finished Joining"},
    {Is<IsButton>, u"btnGBSplitFile", u"Split File"},
    {Is<IsButton>, u"btnGBJoinFile", u"Join File"},
    {Is<IsButton>, u"btnBrowse", u"..."},
};
// clang-format on

template <typename Kind> bool CaptionInto(const Control &control, QString &text)
{
    const auto *kind = dynamic_cast<const Kind *>(&control);
    if (kind)
        text = kind->Caption();
    return kind != nullptr;
}

QString TextOf(const Control &control)
{
    QString text;
    if (CaptionInto<Label>(control, text) || CaptionInto<IsButton>(control, text)
        || CaptionInto<CheckBox>(control, text) || CaptionInto<OptionButton>(control, text)
        || CaptionInto<Frame>(control, text))
        return text;
    if (const auto *box = dynamic_cast<const TextBox *>(&control))
        return box->Text();
    if (const auto *combo = dynamic_cast<const ComboBox *>(&control))
        return combo->Text();
    return text;
}

class MainFormControls : public MainFormTest, public testing::WithParamInterface<Row> { };

INSTANTIATE_TEST_SUITE_P(AllRows, MainFormControls, testing::ValuesIn(rows));

TEST_P(MainFormControls, HasItsKindTextsAndState)
{
    const Row &row = GetParam();
    const Control *control = form.Find(row.name.toString());
    ASSERT_NE(control, nullptr);
    EXPECT_TRUE(row.isOfKind(*control));
    EXPECT_EQ(TextOf(*control), row.text.toString());
    EXPECT_EQ(control->ToolTip(), row.toolTip.toString());
    EXPECT_EQ(control->IsEnabled(), row.state != State::Resting);
    EXPECT_EQ(control->IsVisible(), row.state != State::Hidden);
}

TEST_F(MainFormTest, NoControlIsMissingFromTheTable)
{
    QStringList told;
    for (const Row &row : rows)
        told += row.name.toString();
    for (const Control *control : form.Controls())
        EXPECT_TRUE(told.contains(control->Name())) << control->Name().toStdString();
}

TEST_F(MainFormTest, EachPageIsLight)
{
    for (const Frame *page : form.FrameXPMenu)
        EXPECT_EQ(page->BackColor(), 0xF5F5F5U) << page->Name().toStdString();
}

TEST_F(MainFormTest, PagesStandUnderTheirNumbers)
{
    for (std::size_t number = 0; number < form.FrameXPMenu.size(); ++number)
        EXPECT_EQ(form.FrameXPMenu.at(number)->Name(), u"FrameXPMenu(%1)"_s.arg(number));
}

TEST_F(MainFormTest, TheUpdateNoticeIsYellowOnRed)
{
    EXPECT_EQ(form.update.PicUpdate.BackColor(), 0x0000FFU);
    EXPECT_EQ(form.update.lblUpdate.ForeColor(), 0x00FFFFU);
    EXPECT_TRUE(form.update.lblUpdate.IsBold());
    EXPECT_TRUE(form.update.PicUpdate.HasHandPointer());
}

TEST_F(MainFormTest, TheTimerFiresTenTimesASecond)
{
    EXPECT_EQ(form.erase.Timer1.Interval(), 100);
}

TEST_F(MainFormTest, SplitSizesAreListedInTheirOrder)
{
    form.EnsureLoaded();
    EXPECT_EQ(form.splitter.cmbSplitSize.Items(),
              (QStringList{u"5"_s, u"10"_s, u"50"_s, u"100"_s, u"500"_s, u"1000"_s, u"1200"_s, u"1440"_s,
                           u"2000"_s, u"3000"_s}));
}

TEST_F(MainFormTest, TheRenamePageStartsWithoutAChangeOfCase)
{
    EXPECT_TRUE(form.rename.optCase.IsSelected(RenamePage::NoChange));
    EXPECT_TRUE(form.rename.optRename.IsSelected(RenamePage::Files));
    EXPECT_TRUE(form.rename.optReplace.IsSelected(RenamePage::Files));
    EXPECT_TRUE(form.rename.optReplacePreset.IsSelected(RenamePage::None));
    EXPECT_TRUE(form.rename.optExtensions.IsSelected(RenamePage::Specific));
    EXPECT_EQ(form.rename.ProgressBar.Min(), 0);
    EXPECT_EQ(form.rename.ProgressBar.Max(), 2);
}

TEST_F(MainFormTest, OptionsOfOneFrameLeaveThoseOfAnotherAlone)
{
    form.rename.optRename.Button(RenamePage::Folders).UserSelects();
    EXPECT_FALSE(form.rename.optRename.IsSelected(RenamePage::Files));
    EXPECT_TRUE(form.rename.optReplace.IsSelected(RenamePage::Files));
    EXPECT_TRUE(form.rename.optCase.IsSelected(RenamePage::NoChange));
}

TEST_F(MainFormTest, AnExtensionOptionShowsItsFrameAndHidesTheOther)
{
    form.rename.optExtensions.Button(RenamePage::All).UserSelects();
    EXPECT_TRUE(form.rename.fraAllExtensions.IsVisible());
    EXPECT_FALSE(form.rename.fraExtensionsSpecific.IsVisible());
    form.rename.optExtensions.Button(RenamePage::Specific).UserSelects();
    EXPECT_FALSE(form.rename.fraAllExtensions.IsVisible());
    EXPECT_TRUE(form.rename.fraExtensionsSpecific.IsVisible());
}

TEST_F(MainFormTest, ASplitOptionEnablesItsOwnBox)
{
    const SplitterPage &page = form.splitter;
    EXPECT_TRUE(page.optSplit.IsSelected(SplitterPage::FileSize));
    for (const int cut : {SplitterPage::FileCount, SplitterPage::FileSize}) {
        page.optSplit.Button(cut).UserSelects();
        EXPECT_EQ(page.lblSplitCount.IsEnabled(), cut == SplitterPage::FileCount);
        EXPECT_EQ(page.txtSplitCount.IsEnabled(), cut == SplitterPage::FileCount);
        EXPECT_EQ(page.lblSplitSize.IsEnabled(), cut == SplitterPage::FileSize);
        EXPECT_EQ(page.cmbSplitSize.IsEnabled(), cut == SplitterPage::FileSize);
    }
}

TEST_F(MainFormTest, TheFolderListOfTheSearchFollowsItsDrive)
{
    machine.files.AddDrive(u'D');
    form.emptyFolders.DrvListRemove.Refresh();
    form.emptyFolders.DrvListRemove.UserSelects(1);
    EXPECT_EQ(form.emptyFolders.DirListRemove.Path(), u"D:\\"_s);
}

TEST_F(MainFormTest, ADriveOfTheSearchThatIsNotReadyIsAFatalFailure)
{
    machine.files.AddDrive(u'D');
    form.emptyFolders.DrvListRemove.Refresh();
    machine.files.SetReady(u'D', false);
    std::optional<int> fatal;
    form.SetFatalHandler([&](const Failure &failure) { fatal = failure.Number(); });
    ASSERT_EQ(form.emptyFolders.DrvListRemove.ListCount(), 2);
    form.emptyFolders.DrvListRemove.UserSelects(1);
    EXPECT_EQ(fatal, 76);
}

TEST_F(MainFormTest, AToolMayAnswerTheTimerToo)
{
    form.Show();
    form.erase.lstErase.AddItem(u"C:\\file"_s);
    EXPECT_FALSE(form.erase.btnGBErase.IsEnabled());
    form.FormResize();
    for (const int left : {5100, 100}) {
        form.PicStrip.SetLeft(100);
        form.erase.Timer1.Elapse();
        EXPECT_EQ(form.PicStrip.Left(), left);
    }
    EXPECT_TRUE(form.erase.btnGBErase.IsEnabled());
}

TEST_F(MainFormTest, AllButtonsCarryTheirIconsInOneWay)
{
    for (const IsButton *button : form.Buttons()) {
        EXPECT_EQ(button->IconSize(), 32) << button->Name().toStdString();
        EXPECT_EQ(button->IconAlign(), IconPlace::Top) << button->Name().toStdString();
        const CaptionPlace place = button->Icon().IsNone() ? CaptionPlace::Centre : CaptionPlace::Bottom;
        EXPECT_EQ(button->CaptionAlign(), place) << button->Name().toStdString();
    }
    EXPECT_FALSE(form.emptyFolders.btnGBToolbarSearch.Icon().IsNone());
}

} // namespace
