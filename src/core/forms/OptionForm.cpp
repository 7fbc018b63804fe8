// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "forms/OptionForm.h"

#include "base/Steps.h"
#include "base/Version.h"
#include "forms/Appearance.h"
#include "forms/LicenceText.h"
#include "forms/MainForm.h"
#include "language/Catalogue.h"
#include "machine/Dialogs.h"
#include "machine/Screen.h"
#include "settings/Settings.h"
#include "tools/database/DatabaseFileDialog.h"

#include <array>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

using PaletteColours = std::array<ColourNumber, 11>;

/// A colour number from red, green and blue as they are usually written, 0xRRGGBB.
constexpr ColourNumber FromRgb(quint32 rgb)
{
    return (rgb & 0xFF) << 16 | (rgb & 0xFF00) | rgb >> 16;
}

/// What the first palette holds until the user chooses: quiet blues, in the order of the side bar's slots.
constexpr PaletteColours firstPaletteColours{FromRgb(0xE3EDF8), FromRgb(0x7F9DB9), FromRgb(0xFFFFFF),
                                             FromRgb(0x5B7A9D), FromRgb(0xCFE1F6), FromRgb(0x8FB4DE),
                                             FromRgb(0xFFFFFF), FromRgb(0xE3EDF8), FromRgb(0x7F9DB9),
                                             FromRgb(0x8FB4DE), FromRgb(0xCFE1F6)};

constexpr PaletteColours defaultColours{FromRgb(0xDEDEDE), FromRgb(0x8C8C8C), FromRgb(0xFFFFFF),
                                        FromRgb(0x7B7B7B), FromRgb(0xFAE2B6), FromRgb(0xF3B94D),
                                        FromRgb(0xFFFFFF), FromRgb(0xDFDFDF), FromRgb(0x9C9C9C),
                                        FromRgb(0xF3B94D), FromRgb(0xFAE2B6)};

std::vector<std::unique_ptr<PictureBox>> MakeSwatches(Form &form)
{
    std::vector<std::unique_ptr<PictureBox>> swatches;
    for (int index = 0; index < OptionForm::swatchCount; ++index) {
        swatches.push_back(std::make_unique<PictureBox>(form, u"PicColor(%1)"_s.arg(index)));
        if (index < OptionForm::secondPalette)
            swatches.back()->SetBackColor(firstPaletteColours.at(static_cast<size_t>(index)));
    }
    return swatches;
}

/// The pages by their places in the list.
enum Page { About, Information, OptionsSetting, ColorSetting, Licence };

// Where the dialog's pages stand in its window, in twips.
constexpr int pageLeft = 1800;
constexpr int pageTop = 120;
constexpr int aboutTop = 350;
constexpr int backgroundLeft = 480;
constexpr int backgroundTop = 2880;

} // namespace

OptionForm::OptionForm(const Machine &onMachine, Settings &allSettings, Catalogue &languageCatalogue)
    : Form(u"frmOption"_s)
    , lstOptions(*this, u"lstOptions"_s)
    , PicAbout(*this, u"PicAbout"_s)
    , lblName{Label(*this, u"lblName(0)"_s), Label(*this, u"lblName(1)"_s)}
    , FrmeOption(*this, u"FrmeOption"_s, u"Settings Options"_s)
    , lblHeaderOption(
          *this, u"lblHeaderOption"_s,
          u"Below you will find a few useful options on Settings.  You can either enable or disable options "
          "on Settings, for E.G:  \"Animation on Form with Exit\"  You can either enable or disable this."_s)
    , lblLanguage(*this, u"lblLanguage"_s, u"Language"_s)
    , cmbLanguage(*this, u"cmbLanguage"_s, ComboBox::Kind::List)
    , lblMessage(*this, u"lblMessage"_s,
                 u" If you only find English on Language listbox Exit a program and start up again "_s)
    , FrmeButtonStyle(*this, u"FrmeButtonStyle"_s, u"Button Style"_s)
    , optButtonStyle(*this, u"optButtonStyle"_s,
                     {u"Windows 9 X"_s, u"Flat Style"_s, u"Mac OSX Style"_s, u"Windows XP Blue"_s,
                      u"Office XP System"_s, u"Linux Mandrake Style"_s, u"Keramik Style"_s,
                      u"Linux Plastik Style"_s, u"Sun Java Style"_s})
    , ChkAutoOption(*this, u"ChkAutoOption"_s, u"Manual Digit ON"_s)
    , FrmeNumFolders(*this, u"FrmeNumFolders"_s, u"Make Numbered Folders"_s)
    , OptDigit(
          *this, u"OptDigit"_s,
          {u"Digit 1, 2, 3"_s, u"Digit 01, 02, 03"_s, u"Digit 001, 002, 003"_s, u"Digit 0001, 0002, 0003"_s})
    , ChkAnimOption(*this, u"ChkAnimOption"_s, u"Enable Form Animation"_s)
    , FrmeAnimation(*this, u"FrmeAnimation"_s, u"Form Animation"_s)
    , lblHeight(*this, u"lblHeight"_s, u"Form speed Height"_s)
    , txtHeight(*this, u"txtHeight"_s, u"500"_s)
    , lblWidth(*this, u"lblWidth"_s, u"Form speed Width"_s)
    , txtWidth(*this, u"txtWidth"_s, u"200"_s)
    , btnGBDefault(*this, u"btnGBDefault"_s, u"&Default"_s)
    , FrmeSound(*this, u"FrmeSound"_s, u"Sound"_s)
    , OptSound(*this, u"OptSound"_s, {u"On"_s, u"Off"_s})
    , FrmeColor(*this, u"FrmeColor"_s, u"Settings Color"_s)
    , Label5(*this, u"Label5"_s,
             u"Below you will find a color settings to side bar and you can change text on title bar header "
             "and you can change Icon and text from left to right in all side bar header Click color to "
             "change color"_s)
    , Picture6(*this, u"Picture6"_s)
    , PicColor(MakeSwatches(*this))
    , btnGBColor1(*this, u"btnGBColor1"_s, u"&Color form 1"_s)
    , btnGBColor2(*this, u"btnGBColor2"_s, u"&Color form 2"_s)
    , Frame5(*this, u"Frame5"_s, u"Custom Color Setting"_s)
    , btnGBColorDefault(*this, u"btnGBColorDefault"_s, u"&Default Color"_s)
    , btnGBColorSystem(*this, u"btnGBColorSystem"_s, u"&Original System Color"_s)
    , btnGBTextSidebarFont(*this, u"btnGBTextSidebarFont"_s, u"&Text Sidebar Font"_s)
    , btnGBTextHeadFont(*this, u"btnGBTextHeadFont"_s, u"&Text Header Font"_s)
    , Frame6(*this, u"Frame6"_s, u"Side Bar and Icons Setting"_s)
    , btnGBImageSmall(*this, u"btnGBImageSmall"_s, u"&Small Images"_s)
    , btnGBImageNone(*this, u"btnGBImageNone"_s, u"&None Images"_s)
    , btnGBShowMenu(*this, u"btnGBShowMenu"_s, u"Add/Remove Menu"_s)
    , btnGBHideSelItem(*this, u"btnGBHideSelItem"_s, u"&Hide Selected Item"_s)
    , btnGBShowAllItem(*this, u"btnGBShowAllItem"_s, u"&Show All Item"_s)
    , btnGBIconRight(*this, u"btnGBIconRight"_s, u"&Icon Right To Left"_s)
    , isButton1(*this, u"isButton1"_s, u"&None"_s)
    , isButton3(*this, u"isButton3"_s, u"&None"_s)
    , FrmeLicence(*this, u"FrmeLicence"_s, u"Licence"_s)
    , Text1(*this, u"Text1"_s, LicenceText())
    , btnGBOK(*this, u"btnGBOK"_s, u"&OK"_s)
    , btnGBCancel(*this, u"btnGBCancel"_s, u"&Cancel"_s)
    , btnGBApply(*this, u"btnGBApply"_s, u"&Apply"_s)
    , PicComingSoon(*this, u"PicComingSoon"_s)
    , Label2(*this, u"Label2"_s,
             u"This page is not finish yet but coming more function soon, check for update regularly"_s)
    , lblDatabase(*this, u"lblDatabase"_s, u"Database:"_s)
    , txtDBFilnavn(*this, u"txtDBFilnavn"_s)
    , btnBrowse(*this, u"btnBrowse"_s, u"..."_s)
    , clickSound(onMachine, OptSound)
    , information(*this, allSettings, clickSound)
    , machine(onMachine)
    , settings(allSettings)
    , catalogue(languageCatalogue)
{
    SetFirstValues();
    TieHandlers();
    TieColours();
}

void OptionForm::SetFirstValues()
{
    SetCaption(u"Option"_s);
    lstOptions.SetToolTip(u" Chose a option "_s);
    cmbLanguage.SetToolTip(u" Change to your Language here "_s);
    ChkAutoOption.SetToolTip(u" If Unchecked Auto and program organized to correct format for you "_s);
    ChkAnimOption.SetToolTip(u" Enable/Disable Form Animation "_s);
    // Kept: a higher number folds the window up sooner, whatever the tool tip says.
    txtHeight.SetToolTip(u" Type in Interval here, higher number slow down animation "_s);
    Text1.SetLocked(true);
    isButton1.SetVisible(false);
    isButton3.SetVisible(false);
    PicComingSoon.SetVisible(false);
    lblMessage.SetVisible(false);
    for (Frame *page : {&information.FrmeInfo, &FrmeOption, &FrmeColor, &FrmeLicence})
        page->SetVisible(false);
}

void OptionForm::TieHandlers()
{
    Load.Handle([this] { LoadForm(); });
    Activate.Handle([this] { Activated(); });
    // The window's own close button only hides it: the tools go on reading its controls.
    QueryUnload.Handle([this](bool &refused) {
        refused = true;
        Hide();
    });
    lstOptions.Click.Handle([this] { lstOptions_Click(); });
    cmbLanguage.Click.Handle([this] { cmbLanguage_Click(); });
    ChkAutoOption.Click.Handle([this] { EnableDigits(ChkAutoOption.Value() != 0); });
    ChkAnimOption.Click.Handle([this] { EnableAnimation(ChkAnimOption.Value() != 0); });
    optButtonStyle.Click.Handle([this](int) { optButtonStyle_Click(); });
    btnGBDefault.Click.Handle([this] { btnGBDefault_Click(); });
    btnGBApply.Click.Handle([this] { btnGBApply_Click(); });
    btnGBOK.Click.Handle([this] { btnGBOK_Click(); });
    btnGBCancel.Click.Handle([this] { btnGBCancel_Click(); });
    btnBrowse.Click.Handle([this] { btnBrowse_Click(); });
}

void OptionForm::LoadForm()
{
    for (const QStringView entry :
         {u"About", u"Information", u"Options Setting", u"Color Setting", u"Licence"})
        lstOptions.AddItem(entry.toString());
    lstOptions.SetListIndex(About);
    PicAbout.SetTop(aboutTop);
    information.PicBakground.SetLeft(backgroundLeft);
    information.PicBakground.SetTop(backgroundTop);
    for (Frame *page : {&information.FrmeInfo, &FrmeOption, &FrmeColor})
        page->SetLeft(pageLeft);
    FrmeColor.SetTop(pageTop);
    FrmeLicence.SetTop(pageTop);
    lblName[0].SetCaption(ApplicationTitle);
    lblName[1].SetCaption(u"v%1.%2"_s.arg(MajorVersion).arg(MinorVersion));
    Steps steps;
    steps.Do([&] { CenterOverMain(*this); });
    steps.Do([&] { information.FillSystemInfo(); });
    for (int index = 0; index < swatchCount; ++index)
        Swatch(index).SetToolTip(u" Click In color to changes to another color "_s);
}

void OptionForm::Activated()
{
    ApplyButtonStyle();
    GiveSelectedStyle(*this, {&btnGBShowMenu});
    lblMessage.SetVisible(cmbLanguage.ListCount() == 1 && cmbLanguage.Item(0) == u"English");
}

void OptionForm::lstOptions_Click()
{
    Steps steps;
    switch (lstOptions.ListIndex()) {
    case About:
        ShowAboutPage();
        break;
    case Information:
        ShowPage(information.FrmeInfo);
        steps.Do([&] { information.FillSystemInfo(); });
        break;
    case OptionsSetting:
        ShowPage(FrmeOption);
        ReadAgain(steps);
        break;
    case ColorSetting:
        ShowPage(FrmeColor);
        break;
    case Licence:
        ShowPage(FrmeLicence);
        break;
    default:
        break;
    }
}

void OptionForm::ShowAboutPage()
{
    information.FrmeInfo.SetVisible(false);
    FrmeOption.SetVisible(false);
    FrmeLicence.SetVisible(false);
    PicAbout.SetVisible(true);
    information.HideBoxes();
    information.PicBakground.SetLeft(backgroundLeft);
    information.PicBakground.SetTop(backgroundTop);
    information.PicBakground.SetVisible(true);
}

void OptionForm::ShowPage(const Frame &page)
{
    information.HideBoxes();
    PicAbout.SetVisible(false);
    for (Frame *each : {&information.FrmeInfo, &FrmeOption, &FrmeColor, &FrmeLicence})
        each->SetVisible(each == &page);
}

void OptionForm::ReadAgain(Steps &steps)
{
    steps.Do([&] { ChkAutoOption.SetValue(settings.ReadInt32(keys::ShowDigit, KeyReader::Later)); });
    EnableDigits(ChkAutoOption.Value() != 0);
    steps.Do([&] { ChkAnimOption.SetValue(settings.ReadInt32(keys::EnableAnimation, KeyReader::Later)); });
    EnableAnimation(ChkAnimOption.Value() != 0);
    steps.Do([&] { OptSound.Select(settings.ReadInt32(keys::Sound, KeyReader::Later)); });
    steps.Do([&] { cmbLanguage.SetListIndex(settings.ReadInt32(keys::Language, KeyReader::Later)); });
}

void OptionForm::cmbLanguage_Click()
{
    // What was stored where there was no list of languages chooses none of them.
    if (cmbLanguage.ListIndex() < 0)
        return;
    // The choice stands, whether or not its file is any good.
    if (catalogue.LoadLanguage(catalogue.FileOf(cmbLanguage.Text())) != 0)
        machine.dialogs.Show({u"Failed loading new language."_s, ApplicationTitle, BoxIcon::Critical});
    settings.Write(keys::Language, QString::number(cmbLanguage.ListIndex()));
}

void OptionForm::optButtonStyle_Click()
{
    ApplyButtonStyle();
    if (mainForm)
        mainForm->ApplyStyleToMain();
}

void OptionForm::btnGBDefault_Click()
{
    clickSound.Play();
    txtHeight.SetText(u"500"_s);
    txtWidth.SetText(u"200"_s);
}

void OptionForm::btnGBApply_Click()
{
    clickSound.Play();
    Steps steps;
    StoreAnimation(steps);
    steps.Do([&] { settings.Write(keys::Language, QString::number(cmbLanguage.ListIndex())); });
    StoreOutlookColors(steps);
    StoreChoices(steps);
}

void OptionForm::btnGBOK_Click()
{
    clickSound.Play();
    Steps steps;
    // Kept: the language isn't among what is stored here, and the side bar's colours come last.
    StoreAnimation(steps);
    StoreChoices(steps);
    StoreOutlookColors(steps);
    Hide();
}

void OptionForm::btnGBCancel_Click()
{
    // Kept: nothing is undone.
    clickSound.Play();
    Hide();
}

void OptionForm::btnBrowse_Click()
{
    clickSound.Play();
    Steps steps;
    steps.Do([&] {
        const auto answer = machine.dialogs.OpenFile(
            DatabaseFileRequest(u"Select Database File"_s, settings.ReadText(keys::OpenDBPath)));
        if (answer)
            txtDBFilnavn.SetText(answer->paths.value(0));
    });
}

void OptionForm::StoreAnimation(Steps &steps)
{
    steps.Do([&] { settings.Write(keys::AnimHeight, txtHeight.Text()); });
    steps.Do([&] { settings.Write(keys::AnimWidth, txtWidth.Text()); });
    steps.Do([&] { settings.Write(keys::ShowDigit, ChkAutoOption.Value()); });
    steps.Do([&] { settings.Write(keys::EnableAnimation, ChkAnimOption.Value()); });
}

void OptionForm::StoreChoices(Steps &steps)
{
    const auto store = [&](const KeyEntry &key, const OptionGroup &group) {
        if (group.Selected() >= 0)
            steps.Do([&] { settings.Write(key, group.Selected()); });
    };
    store(keys::DigitType, OptDigit);
    store(keys::Sound, OptSound);
    store(keys::ButtonStyle, optButtonStyle);
}

void OptionForm::StoreOutlookColors(Steps &steps)
{
    if (mainForm)
        steps.Do([&] { settings.WriteBoolean(keys::OutlookColors, mainForm->EyeDropper1.OutlookColors()); });
}

void OptionForm::ApplyButtonStyle()
{
    GiveSelectedStyle(*this, Buttons());
}

QList<IsButton *> OptionForm::Buttons()
{
    return {&btnGBDefault,
            &btnGBCancel,
            &btnGBOK,
            &btnGBApply,
            &information.btnGBChangeInfo,
            &information.btnGBUpdateInfo,
            &btnGBColor1,
            &btnGBColor2,
            &btnGBColorDefault,
            &btnGBColorSystem,
            &btnGBTextSidebarFont,
            &btnGBTextHeadFont,
            &btnGBImageSmall,
            &btnGBImageNone,
            &btnGBHideSelItem,
            &btnGBShowAllItem,
            &btnGBIconRight};
}

void OptionForm::CenterOverMain(Form &form) const
{
    const Screen &screen = machine.screen;
    const double left = mainForm ? mainForm->Left() : screen.Left();
    const double top = mainForm ? mainForm->Top() : screen.Top();
    const double width = mainForm ? mainForm->Width() : screen.Width();
    const double height = mainForm ? mainForm->Height() : screen.Height();
    form.Move(ToInt32(left + (width - form.Width()) / 2), ToInt32(top + (height - form.Height()) / 2));
}

LiveOptions OptionForm::Live()
{
    return {OptSound, ChkAutoOption, OptDigit, ChkAnimOption, txtHeight, txtWidth};
}

PictureBox &OptionForm::Swatch(int index)
{
    if (index < 0 || index >= swatchCount)
        throw Failure(FailureNumber::SubscriptOutOfRange);
    return *PicColor[static_cast<size_t>(index)];
}

void OptionForm::SetDefaultColors()
{
    for (int slot = 0; slot < static_cast<int>(defaultColours.size()); ++slot)
        Swatch(secondPalette + slot).SetBackColor(defaultColours.at(static_cast<size_t>(slot)));
}

void OptionForm::EnableDigits(bool enabled)
{
    FrmeNumFolders.SetEnabled(enabled);
    OptDigit.SetEnabled(enabled);
}

void OptionForm::EnableAnimation(bool enabled)
{
    FrmeAnimation.SetEnabled(enabled);
    lblHeight.SetEnabled(enabled);
    lblWidth.SetEnabled(enabled);
    txtHeight.SetEnabled(enabled);
    txtWidth.SetEnabled(enabled);
    btnGBDefault.SetEnabled(enabled);
}

} // namespace tressel
