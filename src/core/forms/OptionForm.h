// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/CheckBox.h"
#include "controls/ComboBox.h"
#include "controls/Frame.h"
#include "controls/IsButton.h"
#include "controls/Label.h"
#include "controls/ListBox.h"
#include "controls/OptionGroup.h"
#include "controls/PictureBox.h"
#include "controls/TextBox.h"
#include "forms/InformationPage.h"
#include "machine/Machine.h"
#include "tools/ClickSound.h"
#include "tools/LiveOptions.h"

#include <array>

namespace tressel {

class Catalogue;
class MainForm;
class Settings;
class SideBar;
class Steps;

/// The options dialog: five pages that a list chooses between. It is made hidden at start-up and lives as
/// long as the program: its controls are not a view of the settings but the settings themselves, which the
/// tools read as they run. Closing it hides it.
class OptionForm : public Form {
public:
    OptionForm(const Machine &machine, Settings &settings, Catalogue &catalogue);

    /// The main window, which it changes from then on and which must outlive its use. Before that it
    /// changes itself alone.
    void Serve(MainForm &main) { mainForm = &main; }

    /// The controls that tools read.
    LiveOptions Live();
    /// Enables or disables the choice of digits.
    void EnableDigits(bool enabled);
    /// Enables or disables what the closing animation asks for.
    void EnableAnimation(bool enabled);

    /// Gives the dialog's buttons the look of the selected entry of optButtonStyle.
    void ApplyButtonStyle();
    /// Shows the page that says what the program is. Kept: the colours stay in view if they are.
    void ShowAboutPage();
    /// Moves a form so that its middle is that of the main window, or of the screen while there is none.
    void CenterOverMain(Form &form) const;

    // The side bar's two palettes of eleven swatches each: PicColor(0) to (10) and (11) to (21).
    static constexpr int secondPalette = 11;
    static constexpr int swatchCount = 22;
    /// Fails with 9 outside the two palettes.
    PictureBox &Swatch(int index);
    /// Puts the default colours into the second palette.
    void SetDefaultColors();

    ListBox lstOptions;

    PictureBox PicAbout;
    std::array<Label, 2> lblName; ///< the program's name, and its version

    Frame FrmeOption;
    Label lblHeaderOption;
    Label lblLanguage;
    ComboBox cmbLanguage;
    Label lblMessage;
    Frame FrmeButtonStyle;
    OptionGroup optButtonStyle;
    CheckBox ChkAutoOption;
    Frame FrmeNumFolders;
    OptionGroup OptDigit;
    CheckBox ChkAnimOption;
    Frame FrmeAnimation;
    Label lblHeight;
    TextBox txtHeight;
    Label lblWidth;
    TextBox txtWidth;
    IsButton btnGBDefault;
    Frame FrmeSound;
    OptionGroup OptSound;

    Frame FrmeColor;
    Label Label5;
    PictureBox Picture6; ///< holds the swatches
    std::vector<std::unique_ptr<PictureBox>> PicColor;
    IsButton btnGBColor1;
    IsButton btnGBColor2;
    Frame Frame5;
    IsButton btnGBColorDefault;
    IsButton btnGBColorSystem;
    IsButton btnGBTextSidebarFont;
    IsButton btnGBTextHeadFont;
    Frame Frame6;
    IsButton btnGBImageSmall;
    IsButton btnGBImageNone;
    IsButton btnGBShowMenu;
    IsButton btnGBHideSelItem;
    IsButton btnGBShowAllItem;
    IsButton btnGBIconRight;
    IsButton isButton1; ///< stands for nothing, as does the other
    IsButton isButton3;

    Frame FrmeLicence;
    TextBox Text1;

    IsButton btnGBOK;
    IsButton btnGBCancel;
    IsButton btnGBApply;

    // Kept: a page that was never finished. No entry of the list shows it.
    PictureBox PicComingSoon;
    Label Label2;
    Label lblDatabase;
    TextBox txtDBFilnavn;
    IsButton btnBrowse;

    ClickSound clickSound; ///< the program's one, which the dialog switches on and off
    InformationPage information;

private:
    void SetFirstValues();
    void TieHandlers();
    void LoadForm();
    void Activated();

    void lstOptions_Click();
    void ShowPage(const Frame &page);
    void ReadAgain(Steps &steps);
    void cmbLanguage_Click();
    void optButtonStyle_Click();
    void btnGBDefault_Click();
    void btnGBApply_Click();
    void btnGBOK_Click();
    void btnGBCancel_Click();
    void btnBrowse_Click();
    void StoreAnimation(Steps &steps);
    void StoreChoices(Steps &steps);
    void StoreOutlookColors(Steps &steps);
    QList<IsButton *> Buttons();

    // OptionFormColours.cpp: what changes the side bar, at once and without Apply.

    void TieColours();
    /// Plays the click sound and then runs the step; what fails in it is passed over.
    void OnBar(IsButton &button, void (OptionForm::*change)(SideBar &bar));
    void PicColor_Click(int index);
    void btnGBColor1_Click(SideBar &bar);
    void btnGBColor2_Click(SideBar &bar);
    void btnGBColorDefault_Click(SideBar &bar);
    void btnGBColorSystem_Click(SideBar &bar);
    void btnGBImageSmall_Click(SideBar &bar);
    void btnGBImageNone_Click(SideBar &bar);
    void btnGBShowMenu_Click(SideBar &bar);
    void btnGBHideSelItem_Click(SideBar &bar);
    void btnGBShowAllItem_Click(SideBar &bar);
    void btnGBIconRight_Click(SideBar &bar);
    void btnGBTextSidebarFont_Click(SideBar &bar);
    void btnGBTextHeadFont_Click(SideBar &bar);
    void StoreVisibility(SideBar &bar);

    Machine machine;
    Settings &settings;
    Catalogue &catalogue;
    MainForm *mainForm = nullptr;
};

} // namespace tressel
