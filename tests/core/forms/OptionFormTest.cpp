// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "MainFormTest.h"
#include "forms/Application.h"

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

/// A running program without tips, whose Lang folder has two languages.
class RunningProgram : public testing::Test {
protected:
    RunningProgram()
    {
        application.settings.Write(keys::ShowTips, u"0"_s);
        machine.files.PutFile(u"C:\\Tressel\\Lang\\Language.dat"_s, "English\r\nNorwegian\r\n");
        PutLanguage(u"English"_s, "013 Remove Ext\r\n");
        PutLanguage(u"Norwegian"_s, "013 Uten filtype\r\n");
        application.Start();
        machine.journal.Clear();
    }

    void PutLanguage(const QString &name, const QByteArray &lines)
    {
        machine.files.PutFile(u"C:\\Tressel\\Lang\\"_s + name + u".lng"_s,
                              "000 LANGUAGE FILE v4.0\r\n" + lines);
    }

    MemoryMachine machine;
    Application application{machine.machine};
};

class OptionFormTest : public RunningProgram {
protected:
    /// The names of the settings that were written, in order.
    QStringList Written() const
    {
        QStringList names;
        for (const QString &path : machine.journal.About(u"WriteSetting"_s))
            names += path.section(u'\\', -1);
        return names;
    }

    void Choose(int page) { options.lstOptions.UserSelects(page); }
    QString Stored(const KeyEntry &key) const { return application.settings.ReadText(key); }

    OptionForm &options = application.frmOption();
    MainForm &form = application.frmMain();
};

TEST_F(OptionFormTest, FivePagesInTheirOrder)
{
    EXPECT_EQ(
        options.lstOptions.Items(),
        QStringList({u"About"_s, u"Information"_s, u"Options Setting"_s, u"Color Setting"_s, u"Licence"_s}));
    EXPECT_EQ(options.lstOptions.ListIndex(), 0);
    EXPECT_TRUE(options.PicAbout.IsVisible());
    EXPECT_TRUE(options.information.PicBakground.IsVisible());
    EXPECT_EQ(options.PicAbout.Top(), 350);
    EXPECT_EQ(options.information.PicBakground.Left(), 480);
    EXPECT_EQ(options.information.PicBakground.Top(), 2880);
    EXPECT_EQ(options.FrmeOption.Left(), 1800);
    EXPECT_EQ(options.FrmeColor.Left(), 1800);
    EXPECT_EQ(options.FrmeColor.Top(), 120);
    EXPECT_EQ(options.FrmeLicence.Top(), 120);
    EXPECT_EQ(options.lblName[0].Caption(), u"Tressel"_s);
    EXPECT_TRUE(options.lblName[1].Caption().startsWith(u'v'));
    for (int swatch = 0; swatch < OptionForm::swatchCount; ++swatch) {
        EXPECT_EQ(options.Swatch(swatch).ToolTip(), u" Click In color to changes to another color "_s);
    }
}

TEST_F(OptionFormTest, EachEntryShowsItsOwnPage)
{
    const std::array<Frame *, 4> pages{&options.information.FrmeInfo, &options.FrmeOption, &options.FrmeColor,
                                       &options.FrmeLicence};
    for (int page = 1; page <= 4; ++page) {
        Choose(page);
        EXPECT_FALSE(options.PicAbout.IsVisible());
        EXPECT_FALSE(options.information.PicBakground.IsVisible());
        for (int each = 1; each <= 4; ++each)
            EXPECT_EQ(pages.at(static_cast<size_t>(each - 1))->IsVisible(), each == page) << page << each;
    }
}

TEST_F(OptionFormTest, ColoursStayInViewBehindAbout)
{
    Choose(3);
    Choose(0);
    EXPECT_TRUE(options.PicAbout.IsVisible());
    EXPECT_TRUE(options.FrmeColor.IsVisible());
    Choose(4);
    EXPECT_FALSE(options.FrmeColor.IsVisible());
    Choose(0);
    EXPECT_FALSE(options.FrmeLicence.IsVisible());
}

TEST_F(OptionFormTest, SettingsPageReadsAgain)
{
    options.ChkAutoOption.UserToggles();
    options.OptSound.Select(1);
    Choose(2);
    EXPECT_FALSE(options.ChkAutoOption.IsChecked());
    EXPECT_FALSE(options.FrmeNumFolders.IsEnabled());
    EXPECT_EQ(options.OptSound.Selected(), 0);
    // Its own default for the animation: nothing is stored.
    EXPECT_TRUE(options.ChkAnimOption.IsChecked());
    EXPECT_TRUE(options.txtHeight.IsEnabled());
}

TEST_F(OptionFormTest, SettingsPageLivesWithWrongValues)
{
    options.btnGBApply.UserClicks();
    for (const QString &path : machine.journal.About(u"WriteSetting"_s))
        machine.hive.Put(SettingsHive::Root::User, path.section(u'\\', 0, -2), path.section(u'\\', -1),
                         u"wrong"_s);
    options.OptSound.Select(1);
    Choose(2);
    EXPECT_TRUE(options.FrmeOption.IsVisible());
    EXPECT_EQ(options.OptSound.Selected(), 1);
    EXPECT_EQ(options.cmbLanguage.ListIndex(), 0);
}

TEST_F(OptionFormTest, CheckBoxesEnableWhatBelongsToThem)
{
    options.ChkAutoOption.SetValue(1);
    EXPECT_TRUE(options.OptDigit.Button(3).IsEnabled());
    options.ChkAutoOption.SetValue(0);
    for (int digit = 0; digit < 4; ++digit)
        EXPECT_FALSE(options.OptDigit.Button(digit).IsEnabled());
    options.ChkAnimOption.SetValue(1);
    EXPECT_TRUE(options.btnGBDefault.IsEnabled());
    options.ChkAnimOption.SetValue(0);
    EXPECT_FALSE(options.btnGBDefault.IsEnabled());
    EXPECT_FALSE(options.txtWidth.IsEnabled());
}

TEST_F(OptionFormTest, ApplyStoresInItsOrderAndStays)
{
    options.Show();
    options.btnGBApply.UserClicks();
    EXPECT_EQ(Written(),
              QStringList({u"AnimHeight"_s, u"AnimWidth"_s, u"ShowDigit"_s, u"EnableAnimation"_s,
                           u"Language"_s, u"OutlookColors"_s, u"DigitType"_s, u"Sound"_s, u"ButtonStyle"_s}));
    EXPECT_EQ(machine.journal.Entries().first().what, u"Play"_s);
    EXPECT_TRUE(options.IsVisible());
}

TEST_F(OptionFormTest, OkStoresInItsOrderWithoutTheLanguageAndHides)
{
    options.Show();
    options.btnGBOK.UserClicks();
    EXPECT_EQ(Written(),
              QStringList({u"AnimHeight"_s, u"AnimWidth"_s, u"ShowDigit"_s, u"EnableAnimation"_s,
                           u"DigitType"_s, u"Sound"_s, u"ButtonStyle"_s, u"OutlookColors"_s}));
    EXPECT_FALSE(options.IsVisible());
}

TEST_F(OptionFormTest, CancelStoresNothingAndKeepsTheStyle)
{
    options.Show();
    options.optButtonStyle.Select(8);
    options.btnGBCancel.UserClicks();
    EXPECT_EQ(Written(), QStringList());
    EXPECT_FALSE(options.IsVisible());
    EXPECT_EQ(form.btnGBToolbarExit.Style(), static_cast<ButtonStyle>(3));
    EXPECT_EQ(application.settings.ReadInt32(keys::ButtonStyle), 3);
}

TEST_F(OptionFormTest, DefaultFillsTheNumbersAndStoresNothing)
{
    options.ChkAnimOption.SetValue(1);
    options.txtHeight.SetText(u"7"_s);
    options.txtWidth.SetText(u"8"_s);
    options.btnGBDefault.UserClicks();
    EXPECT_EQ(options.txtHeight.Text(), u"500"_s);
    EXPECT_EQ(options.txtWidth.Text(), u"200"_s);
    EXPECT_EQ(Written(), QStringList());
}

TEST_F(OptionFormTest, CloseButtonOnlyHides)
{
    options.Show();
    options.Unload();
    EXPECT_FALSE(options.IsVisible());
    EXPECT_TRUE(options.IsLoaded());
}

TEST_F(OptionFormTest, EachLookReachesBothWindows)
{
    const std::array<int, 9> styles{0, 2, 10, 5, 4, 8, 9, 7, 3};
    EXPECT_EQ(form.rename.btnGBRename.Style(), ButtonStyle(5));
    for (int entry = 0; entry < 9; ++entry) {
        options.optButtonStyle.Select(entry);
        const auto style = static_cast<ButtonStyle>(styles.at(static_cast<size_t>(entry)));
        EXPECT_EQ(form.btnGBToolbarExit.Style(), style);
        EXPECT_EQ(options.btnGBOK.Style(), style);
        EXPECT_EQ(options.btnGBIconRight.Style(), style);
    }
    options.btnGBApply.UserClicks();
    EXPECT_EQ(application.settings.ReadInt32(keys::ButtonStyle), 8);
}

TEST_F(OptionFormTest, MenuButtonGetsItsLookWithTheActivation)
{
    options.optButtonStyle.Select(8);
    EXPECT_NE(options.btnGBShowMenu.Style(), options.btnGBOK.Style());
    options.UserActivates();
    EXPECT_EQ(options.btnGBShowMenu.Style(), options.btnGBOK.Style());
    EXPECT_NE(options.isButton1.Style(), options.btnGBOK.Style());
}

TEST_F(OptionFormTest, MessageComesWithNothingButEnglish)
{
    options.UserActivates();
    EXPECT_FALSE(options.lblMessage.IsVisible());
    options.cmbLanguage.SetItems({u"English"_s});
    options.UserActivates();
    EXPECT_TRUE(options.lblMessage.IsVisible());
    options.cmbLanguage.SetItems({u"Norwegian"_s});
    options.UserActivates();
    EXPECT_FALSE(options.lblMessage.IsVisible());
}

TEST_F(OptionFormTest, LanguageChangesAtOnceAndIsStored)
{
    options.cmbLanguage.UserSelects(1);
    EXPECT_EQ(form.area.chkExtension.Caption(), u"Uten filtype"_s);
    EXPECT_EQ(Stored(keys::Language), u"1"_s);
    options.btnGBOK.UserClicks();
    EXPECT_EQ(Stored(keys::Language), u"1"_s);
}

TEST_F(OptionFormTest, WrongLanguageFileIsToldAndTheChoiceStands)
{
    machine.files.PutFile(u"C:\\Tressel\\Lang\\Norwegian.lng"_s, "000 LANGUAGE FILE v3.0\r\n013 Feil\r\n");
    machine.dialogs.ExpectBox({u"Failed loading new language."_s, u"Tressel"_s, BoxIcon::Critical});
    options.cmbLanguage.UserSelects(1);
    EXPECT_EQ(form.area.chkExtension.Caption(), u"Remove Ext"_s);
    EXPECT_EQ(options.cmbLanguage.ListIndex(), 1);
    EXPECT_EQ(Stored(keys::Language), u"1"_s);
}

TEST_F(OptionFormTest, VanishedLanguageFileIsTold)
{
    machine.files.RemoveFile(u"C:\\Tressel\\Lang\\Norwegian.lng"_s);
    machine.dialogs.ExpectBox(u"Failed loading new language."_s);
    options.cmbLanguage.UserSelects(1);
}

TEST_F(OptionFormTest, ToolbarOpensTheOptions)
{
    form.btnGBToolbarOption.UserClicks();
    EXPECT_TRUE(options.IsVisible());
    EXPECT_EQ(machine.journal.Count(u"Play"_s), 1);
}

TEST_F(OptionFormTest, StandsOverTheMainWindow)
{
    form.TakeGeometry(1500, 900, 12000, 9000, WindowState::Normal);
    options.SetSize(6000, 5001);
    options.CenterOverMain(options);
    EXPECT_EQ(options.Left(), 4500);
    EXPECT_EQ(options.Top(), 2900); // 2899.5, to the even one
}

/// The colour page.
class OptionColours : public OptionFormTest {
protected:
    SideBar &bar = form.EyeDropper1;
};

TEST_F(OptionColours, SwatchIsStoredAndTheBarWaitsForItsButton)
{
    const auto before = bar.Colors();
    machine.dialogs.ExpectChooseColour(0x123456);
    options.Swatch(12).UserClicks();
    EXPECT_EQ(options.Swatch(12).BackColor(), 0x123456U);
    EXPECT_EQ(Stored(keys::Color.At(12)), QString::number(0x123456));
    EXPECT_EQ(bar.Colors(), before);
    options.btnGBColor2.UserClicks();
    EXPECT_EQ((*bar.Colors())[1], 0x123456U);
}

TEST_F(OptionColours, CancelledColourChangesNothing)
{
    const ColourNumber before = options.Swatch(3).BackColor();
    machine.dialogs.ExpectChooseColour(std::nullopt);
    options.Swatch(3).UserClicks();
    EXPECT_EQ(options.Swatch(3).BackColor(), before);
    EXPECT_EQ(Written(), QStringList());
}

TEST_F(OptionColours, PaletteButtonsStoreTheirNumber)
{
    options.btnGBColor1.UserClicks();
    EXPECT_EQ(Written(), QStringList(u"CustomColor"_s));
    EXPECT_EQ(Stored(keys::CustomColor), u"1"_s);
    EXPECT_TRUE(bar.OutlookColors());
    EXPECT_EQ((*bar.Colors())[0], options.Swatch(0).BackColor());
    options.btnGBColor2.UserClicks();
    EXPECT_EQ(Stored(keys::CustomColor), u"2"_s);
    EXPECT_EQ((*bar.Colors())[10], options.Swatch(21).BackColor());
}

TEST_F(OptionColours, DefaultColoursFillTheSwatchesAlone)
{
    options.Swatch(21).SetBackColor(0);
    const auto before = bar.Colors();
    options.btnGBColorDefault.UserClicks();
    EXPECT_EQ(options.Swatch(11).BackColor(), 0xDEDEDEU);
    EXPECT_EQ(options.Swatch(21).BackColor(), 0xB6E2FAU); // FAE2B6 with red at the right
    EXPECT_EQ(bar.Colors(), before);
    EXPECT_EQ(Written(), QStringList());
}

TEST_F(OptionColours, SystemColoursFlip)
{
    const bool before = bar.OutlookColors();
    options.btnGBColorSystem.UserClicks();
    EXPECT_NE(bar.OutlookColors(), before);
    options.btnGBColorSystem.UserClicks();
    EXPECT_EQ(bar.OutlookColors(), before);
    EXPECT_EQ(Written(), QStringList());
}

TEST_F(OptionColours, ImagesGoAndComeBack)
{
    options.btnGBImageSmall.UserClicks();
    EXPECT_FALSE(options.btnGBImageSmall.IsEnabled());
    options.btnGBImageNone.UserClicks();
    EXPECT_TRUE(options.btnGBImageSmall.IsEnabled());
    EXPECT_TRUE(bar.ImageList().isEmpty());
    options.btnGBImageSmall.UserClicks();
    EXPECT_EQ(bar.ImageList(), u"ImageList1"_s);
    EXPECT_EQ(Written(), QStringList());
}

TEST_F(OptionColours, MenuFlips)
{
    options.btnGBShowMenu.UserClicks();
    EXPECT_TRUE(bar.ShowMenu());
    options.btnGBShowMenu.UserClicks();
    EXPECT_FALSE(bar.ShowMenu());
}

TEST_F(OptionColours, MirroringIsStoredAndSaid)
{
    options.btnGBIconRight.UserClicks();
    EXPECT_TRUE(bar.RightToLeft());
    EXPECT_EQ(options.btnGBIconRight.Caption(), u"&Icon Left To Right"_s);
    EXPECT_TRUE(application.settings.ReadBoolean(keys::RightToLeft));
    options.btnGBIconRight.UserClicks();
    EXPECT_EQ(options.btnGBIconRight.Caption(), u"&Icon Right To Left"_s);
    EXPECT_FALSE(application.settings.ReadBoolean(keys::RightToLeft));
}

TEST_F(OptionColours, HiddenEntryGivesWayAndAllComeBack)
{
    const int opened = bar.SelectedItem()->Index();
    options.btnGBHideSelItem.UserClicks();
    EXPECT_FALSE(bar.Items()[opened].IsVisible());
    EXPECT_NE(bar.SelectedItem()->Index(), opened);
    EXPECT_FALSE(application.settings.ReadBoolean(keys::Chk.At(opened)));
    EXPECT_EQ(Written(),
              QStringList({u"chk1"_s, u"chk2"_s, u"chk3"_s, u"chk4"_s, u"chk5"_s, u"chk6"_s, u"chk7"_s}));
    options.btnGBShowAllItem.UserClicks();
    EXPECT_EQ(bar.ShownCount(), 7);
    EXPECT_TRUE(application.settings.ReadBoolean(keys::Chk.At(opened)));
}

TEST_F(OptionColours, HidingAllEntriesLeavesAWayBack)
{
    for (int press = 0; press < 8; ++press)
        options.btnGBHideSelItem.UserClicks();
    EXPECT_EQ(bar.ShownCount(), 0);
    options.btnGBShowAllItem.UserClicks();
    EXPECT_EQ(bar.ShownCount(), 7);
}

TEST_F(OptionColours, FontsGoToTheBarAndTheStore)
{
    const FontChoice font{{.family = u"Serif"_s, .points = 12.5, .bold = true, .underline = true}, 0x0000FF};
    machine.dialogs.ExpectChooseFont(font);
    options.btnGBTextSidebarFont.UserClicks();
    EXPECT_EQ(bar.TitleFont().family, u"Serif"_s);
    EXPECT_EQ(bar.TitleColor(), 0x0000FFU);
    EXPECT_EQ(Written(),
              QStringList({u"TitleBarFont"_s, u"TitleBarSize"_s, u"TitleBarBold"_s, u"TitleBarItalic"_s,
                           u"TitleBarUnderline"_s, u"TitleBarColor"_s}));
    EXPECT_EQ(Stored(keys::TitleBarSize), u"12.5"_s);
    EXPECT_TRUE(application.settings.ReadBoolean(keys::TitleBarBold));
    machine.journal.Clear();
    machine.dialogs.ExpectChooseFont(font);
    options.btnGBTextHeadFont.UserClicks();
    EXPECT_EQ(bar.CaptionFont().points, 12.5);
    EXPECT_EQ(Written().first(), u"TitleCapFont"_s);
    EXPECT_EQ(Written().last(), u"TitleCapTextCol"_s);
}

TEST_F(OptionColours, CancelledFontChangesNothing)
{
    machine.dialogs.ExpectChooseFont(std::nullopt);
    options.btnGBTextSidebarFont.UserClicks();
    EXPECT_EQ(Written(), QStringList());
}

/// Starts with something in the store.
class LanguageAtStart : public testing::Test {
protected:
    MemoryMachine machine;
    Application application{machine.machine};
};

TEST_F(LanguageAtStart, EntryOutsideTheListLoadsNone)
{
    machine.files.PutFile(u"C:\\Tressel\\Lang\\Language.dat"_s, "Norwegian\r\n");
    application.settings.Write(keys::ShowTips, u"0"_s);
    application.settings.Write(keys::Language, u"3"_s);
    application.Start();
    EXPECT_EQ(application.frmOption().cmbLanguage.ListIndex(), -1);
    EXPECT_EQ(application.settings.ReadText(keys::Language), u"3"_s);
    EXPECT_EQ(application.frmMain().EyeDropper1.Items().Count(), 7);
}

TEST_F(LanguageAtStart, MissingFolderIsToldOnce)
{
    machine.files.RemoveFile(u"C:\\Tressel\\Lang\\Language.dat"_s);
    EXPECT_FALSE(machine.files.TryRemoveFolder(u"C:\\Tressel\\Lang"_s));
    application.settings.Write(keys::ShowTips, u"0"_s);
    machine.dialogs.ExpectBox(u"Path ''Lang'' Not Found"_s);
    application.Start();
    EXPECT_EQ(application.frmMain().EyeDropper1.Items().Count(), 7);
}

} // namespace
