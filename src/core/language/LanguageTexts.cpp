// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "language/LanguageTexts.h"

namespace tressel {

namespace {

using enum TextProperty;

constexpr QStringView mainForm = u"frmMain";
constexpr QStringView optionForm = u"frmOption";
constexpr QStringView aboutForm = u"frmAbout";

// clang-format off: a row is a line
constexpr LanguageText rows[] = {
    // Captions of the main window.
    {1, mainForm, u"btnGBToolbarExit", Caption},
    {2, mainForm, u"btnGBToolbarOption", Caption},
    {3, mainForm, u"btnGBToolbarLoadList", Caption},
    {4, mainForm, u"btnGBToolbarBrowse", Caption},
    {5, mainForm, u"btnGBToolbarCreate", Caption},
    {6, mainForm, u"btnGBToolbarUpdate", Caption},
    {7, mainForm, u"btnGBToolbarAbout", Caption},
    {8, mainForm, u"btnGBToolbarSearch", Caption},
    {9, mainForm, u"btnGBToolbarOpenDir", Caption},
    {10, mainForm, u"btnGBToolbarDelDir", Caption},
    {11, mainForm, u"btnGBToolbarDeleteAll", Caption},
    {22, mainForm, u"btnGBToolbarCopy", Caption},
    {13, mainForm, u"chkExtension", Caption},
    {14, mainForm, u"lblFrom", Caption},
    {15, mainForm, u"lblTo", Caption},
    {16, mainForm, u"btnGBMake", Caption},
    {17, mainForm, u"btnGBDelete", Caption},
    {18, mainForm, u"btnGBErase", Caption},
    {19, mainForm, u"Chck_MakeDel", Caption},
    {20, mainForm, u"lblInfo", Caption},
    {21, mainForm, u"btnGBLoadFile", Caption},
    {12, mainForm, u"btnGBSaveFile", Caption},
    {23, mainForm, u"lblDatabaseFile", Caption},
    {24, mainForm, u"lblstrSQL", Caption},
    {25, mainForm, u"lblTable", Caption},
    {26, mainForm, u"btnGBOpenDatabase", Caption},
    {27, mainForm, u"btnGBLoadList", Caption},
    {28, mainForm, u"btnGBMakeList", Caption},
    {29, mainForm, u"btnGBResult", Caption},
    {30, mainForm, u"lblFilePath", Caption},
    {31, mainForm, u"lblRSaved", Caption},
    {32, mainForm, u"lblWStatus", Caption},
    {33, mainForm, u"btnGBSplitFile", Caption},
    {34, mainForm, u"btnGBJoinFile", Caption},
    {35, mainForm, u"chkDeleteParts", Caption},
    {36, mainForm, u"chkOpenExplorer", Caption},
    {37, mainForm, u"chkCopyToFloppy", Caption},
    {38, mainForm, u"optSplit(0)", Caption},
    {39, mainForm, u"optSplit(1)", Caption},
    {40, mainForm, u"lblSplitSize", Caption},
    {41, mainForm, u"lblSplitCount", Caption},
    // Tool tips of the main window.
    {42, mainForm, u"CboFilePath", ToolTip},
    {43, mainForm, u"txtReport", ToolTip},
    {112, mainForm, u"chkExtension", ToolTip},
    {113, mainForm, u"DrvList", ToolTip},
    {114, mainForm, u"DirList", ToolTip},
    {115, mainForm, u"FileList", ToolTip},
    {116, mainForm, u"cboFrom", ToolTip},
    {118, mainForm, u"cboTo", ToolTip},
    {122, mainForm, u"txtFeltDir", ToolTip},
    {150, mainForm, u"txtFeltDirSub", ToolTip},
    {124, mainForm, u"Chck_MakeDel", ToolTip},
    {125, mainForm, u"DrvBox", ToolTip},
    {126, mainForm, u"DirBox", ToolTip},
    {129, mainForm, u"btnGBLoadFile", ToolTip},
    {131, mainForm, u"btnGBSaveFile", ToolTip},
    {133, mainForm, u"txtDatabaseFile", ToolTip},
    {135, mainForm, u"ListBox(0)", ToolTip},
    {137, mainForm, u"ListBox(1)", ToolTip},
    {139, mainForm, u"btnGBOpenDatabase", ToolTip},
    {141, mainForm, u"btnGBLoadList", ToolTip},
    {142, mainForm, u"TVList", ToolTip},
    {143, mainForm, u"txtStrtPath", ToolTip},
    // The options.
    {400, optionForm, u"lstOptions", ToolTip},
    {401, optionForm, u"FrmeOption", Caption},
    {402, optionForm, u"lblHeaderOption", Caption},
    {403, optionForm, u"FrmeNumFolders", Caption},
    {404, optionForm, u"FrmeButtonStyle", Caption},
    {405, optionForm, u"FrmeSound", Caption},
    {406, optionForm, u"ChkAutoOption", Caption},
    {407, optionForm, u"ChkAutoOption", ToolTip},
    {408, optionForm, u"ChkAnimOption", Caption},
    {409, optionForm, u"ChkAnimOption", ToolTip},
    {410, optionForm, u"FrmeAnimation", Caption},
    {411, optionForm, u"lblLanguage", Caption},
    {412, optionForm, u"cmbLanguage", ToolTip},
    {413, optionForm, u"lblHeight", Caption},
    {414, optionForm, u"txtHeight", ToolTip},
    {415, optionForm, u"lblWidth", Caption},
    {416, optionForm, u"txtWidth", ToolTip},
    {417, optionForm, u"btnGBDefault", Caption},
    {418, optionForm, u"btnGBDefault", ToolTip},
    {419, optionForm, u"btnGBCancel", Caption},
    {420, optionForm, u"btnGBCancel", ToolTip},
    {421, optionForm, u"btnGBOK", Caption},
    {422, optionForm, u"btnGBOK", ToolTip},
    {423, optionForm, u"btnGBApply", Caption},
    {424, optionForm, u"btnGBApply", ToolTip},
    {425, optionForm, u"FrmeInfo", Caption},
    {426, optionForm, u"lblHeaderInformation", Caption},
    {427, optionForm, u"lblSystem", Caption},
    {428, optionForm, u"lblRegitered", Caption},
    {429, optionForm, u"FrmeLicence", Caption},
    {430, optionForm, u"btnGBChangeInfo", Caption},
    {431, optionForm, u"btnGBUpdateInfo", Caption},
    // The window that says what the program is.
    {500, aboutForm, u"lblAbout", Caption},
};
// clang-format on

} // namespace

std::span<const LanguageText> LanguageTexts()
{
    return rows;
}

} // namespace tressel
