// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/Frame.h"
#include "controls/IsButton.h"
#include "language/Session.h"
#include "machine/Machine.h"
#include "tools/ClickSound.h"
#include "tools/LiveOptions.h"
#include "tools/WorkArea.h"
#include "tools/folders/BrowsePage.h"
#include "tools/folders/FolderCreation.h"
#include "tools/folders/FolderListFile.h"
#include "tools/folders/FolderTree.h"
#include "tools/folders/TextListTool.h"
#include "tools/listing/ListingPage.h"
#include "tools/numbered/NumberedPage.h"
#include "settings/Settings.h"

namespace tressel {


class Steps;


/// The main window: the toolbar, the path row, the pages with the tools, the tree and the list, and the
/// status line. It restores every tool's last state when it loads and writes it back when it goes.
class MainForm : public Form {
public:
    MainForm(const Machine &machine, Settings &settings, Session &session, const LiveOptions &options);

private:
    Machine machine;
    Settings &settings;
    Session &session;
    LiveOptions options;
    ClickSound clickSound;

public:
    Frame FrmeToolbar;
    IsButton btnGBToolbarCreate;
    IsButton btnGBToolbarLoadList;
    IsButton btnGBToolbarBrowse;
    IsButton btnGBToolbarExit;

    WorkArea area;
    FolderTree tree;
    FolderListFile listFile;
    BrowsePage browse;
    TextListTool textLists;
    FolderCreation creation;
    NumberedPage numbered;
    ListingPage listing;

    QString OpenDBPath; ///< where the database dialog opens, kept from session to session

private:
    void TieToolbar();
    void TiePathRow();

    void btnGBToolbarCreate_Click();
    void btnGBToolbarLoadList_Click();
    void btnGBToolbarBrowse_Click();
    void btnGBToolbarExit_Click();
    void chkExtension_Click();

    // MainFormLoad.cpp: restoring, writing back and going, in their fixed orders.
    void LoadForm();
    void RestorePlace(Steps &steps, KeyReader reader);
    void UnloadForm(bool &refused);
    void EndProgram();
};

} // namespace tressel
