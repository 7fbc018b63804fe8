// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/Frame.h"
#include "controls/IsButton.h"
#include "controls/PictureBox.h"
#include "controls/SideBar.h"
#include "language/Session.h"
#include "settings/Settings.h"
#include "tools/ToolContext.h"
#include "tools/WorkArea.h"
#include "tools/database/DatabasePage.h"
#include "tools/emptyfolders/EmptyFoldersPage.h"
#include "tools/erase/ErasePage.h"
#include "tools/folders/BrowsePage.h"
#include "tools/folders/FolderCreation.h"
#include "tools/folders/FolderListFile.h"
#include "tools/folders/FolderTree.h"
#include "tools/folders/TextListTool.h"
#include "tools/listing/ListingPage.h"
#include "tools/numbered/NumberedPage.h"
#include "tools/rename/RenamePage.h"
#include "tools/splitter/SplitterPage.h"
#include "tools/update/UpdateCheck.h"

#include <array>

namespace tressel {

class Catalogue;
class OptionForm;
class Steps;
struct FormContext;

/// The main window: the toolbar, the path row, the pages with the tools, the tree and the list, and the
/// status line. It restores every tool's last state when it loads and writes it back when it goes.
class MainForm : public Form {
public:
    MainForm(const FormContext &program, OptionForm &options);

private:
    Machine machine;
    Settings &settings;
    Session &session;
    OptionForm &optionForm;
    const Catalogue &catalogue;
    LiveOptions options;
    const ClickSound &clickSound;

public:
    Frame FrmeToolbar;
    IsButton btnGBToolbarCreate;
    IsButton btnGBToolbarLoadList;
    IsButton btnGBToolbarBrowse;
    IsButton btnGBToolbarOption;
    IsButton btnGBToolbarUpdate;
    IsButton btnGBToolbarAbout;
    IsButton btnGBToolbarExit;
    std::array<Frame, 2> FrmeSep;

    WorkArea area;

private:
    ToolContext context; ///< what the tools below are made from

public:
    FolderTree tree;
    FolderListFile listFile;

    SideBar EyeDropper1;
    PictureBox Picture3; ///< stands behind the side bar and its pages
    BrowsePage browse;
    Frame FrameXPMenu6; ///< the page of three tools: text lists, listings and erasing
    TextListTool textLists;
    ListingPage listing;
    ErasePage erase;
    FolderCreation creation;
    NumberedPage numbered;
    SplitterPage splitter;
    DatabasePage database;
    EmptyFoldersPage emptyFolders;
    RenamePage rename;
    Frame FrameXPMenu3; ///< an empty page that no entry opens
    PictureBox Picture4; ///< holds what has no face

    PictureBox PicStrip; ///< the split bar: all that stands left of it follows its left edge
    PictureBox PicHold; ///< the grip on the split bar
    PictureBox PicStatus;
    UpdateCheck update; ///< its notice stands in the status band

    const std::array<Frame *, 8> FrameXPMenu; ///< the pages by their numbers

    Event<> AboutWanted; ///< the About button was pressed

    // MainFormAppearance.cpp

    /// Brings the side bar, its palette and the window's place into the state that the settings hold.
    void ApplyAppearance();
    /// Gives all buttons of the window the look of the selected entry of optButtonStyle.
    void ApplyStyleToMain();
    /// All buttons of the window, in the order in which they are given their look.
    QList<IsButton *> Buttons() const;

    // MainFormSideBar.cpp

    /// Builds the entries of the side bar anew and opens the one that was open last.
    void LoadItems();

    // MainFormLayout.cpp: what the form decides of its geometry, in twips. All else follows in the window.

    /// The answer to each change of the window's size: keeps the least size and lays the panes out. Does
    /// nothing but note that there is something to lay out while the window can't be seen or folds up.
    void FormResize();
    /// Keeps the split bar within its limits and gives the side bar the room left of it.
    void LayoutPanes();
    /// Lays out once more if a layout is pending: FormResize was called since the last time.
    void LayOutPending();

private:
    bool hasLoaded = false; ///< the load got to its end, so that there is something to write back
    bool layoutPending = false;
    bool foldsUp = false; ///< the window is closing and gets smaller than its least size

    void SetFirstValues();
    void PlaceIcons();
    void TieSideBar();
    void TieLayout();
    void KeepLeastSize();
    int CentredLeft(int width) const;
    int CentredTop(int height) const;
    void DragBar(int buttons, int x);
    void EyeDropper1_ItemSelected(const SideBarItem &item);
    void chkButtonBar_Click();

    void TieToolbar();
    void TiePathRow();
    void TieTree();
    void TieListing();

    void btnGBToolbarCreate_Click();
    void btnGBToolbarLoadList_Click();
    void btnGBToolbarBrowse_Click();
    void btnGBToolbarUpdate_Click();
    void btnGBToolbarAbout_Click();
    void btnGBToolbarOption_Click();
    void btnGBToolbarExit_Click();
    void chkExtension_Click();
    void txtStrtPath_Drop(const QStringList &paths);
    void TVList_NodeClick(int node);

    // MainFormLoad.cpp: restoring, in its fixed order.
    void LoadForm();
    void RestoreTools(Steps &steps);
    void RestoreAppearance();
    void RestorePlace(Steps &steps, KeyReader reader);
    void RestoreBarWidth(Steps &steps);
    void ShowFirstTree(Steps &steps);
    void TakeCommandLine();
    void RestoreWindowPlace();
    void RestoreLanguage();
    void RestoreItemVisibility();

    // MainFormAppearance.cpp
    OptionForm &frmOption() { return optionForm; }
    void RestoreSwatches(Steps &steps);
    void ApplyPalette(const QString &choice);

    // MainFormUnload.cpp: writing back and going, in their fixed orders.
    void SaveSecondStore();
    void UnloadForm(bool &refused);
    void SaveSettings();
    bool ExitsThoughUpdateLoads();
    void FoldUp();
    static int FoldStep(const TextBox &twips);
    void EndProgram();

    static constexpr int menuCount = 7;
    std::array<QString, menuCount> menus; ///< kept from session to session, and nothing else
    QString customColor; ///< which palette the side bar has: "1", "2" or none of the two
};

} // namespace tressel
