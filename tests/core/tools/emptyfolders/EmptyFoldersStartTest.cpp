// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

// The page in the whole program: where it stands at the start, what it leaves behind, and what another tool
// does to it.

#include "support/StartedProgram.h"
#include "support/Text.h"

#include <gtest/gtest.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

class EmptyFoldersStart : public testing::Test, protected StartedProgram {
protected:
    EmptyFoldersPage &Page() { return Form().emptyFolders; }
};

TEST_F(EmptyFoldersStart, StandsAtTheProgramFolderUnlessAnotherIsStored)
{
    Start();
    EXPECT_EQ(Page().DirListRemove.Path(), u"C:\\Tressel"_s);
    StartedProgram again;
    again.application.settings.Write(keys::SearchPath, u"C:\\Work"_s);
    again.Start();
    EXPECT_EQ(again.Form().emptyFolders.DirListRemove.Path(), u"C:\\Work"_s);
    EXPECT_EQ(again.Form().emptyFolders.DrvListRemove.Drive(), u"C:\\"_s);
    for (const IsButton *button :
         {&again.Form().emptyFolders.btnGBToolbarOpenDir, &again.Form().emptyFolders.btnGBToolbarDelDir,
          &again.Form().emptyFolders.btnGBToolbarDeleteAll, &again.Form().emptyFolders.btnGBToolbarCopy})
        EXPECT_FALSE(button->IsEnabled());
}

TEST_F(EmptyFoldersStart, TheFolderIsStoredAtTheEnd)
{
    Start();
    Page().DirListRemove.SetPath(u"C:\\Work"_s);
    EXPECT_THROW(Form().btnGBToolbarExit.UserClicks(), ProcessEnded);
    EXPECT_EQ(application.settings.ReadText(keys::SearchPath), u"C:\\Work"_s);
}

TEST_F(EmptyFoldersStart, AListingOfFoldersEmptiesTheList)
{
    machine.files.PutFolder(u"C:\\Work\\a"_s);
    Start();
    Page().DirListRemove.SetPath(u"C:\\Work"_s);
    Page().btnGBToolbarSearch.UserClicks();
    EXPECT_EQ(Page().ListRemove.ListCount(), 1);
    EXPECT_TRUE(Page().btnGBToolbarDeleteAll.IsEnabled());
    Form().listing.CboFilePath.SetText(u"C:\\Work"_s);
    Form().listing.btnGBMakeList.UserClicks();
    EXPECT_EQ(Page().ListRemove.ListCount(), 0);
    EXPECT_FALSE(Page().btnGBToolbarDeleteAll.IsEnabled());
}

} // namespace
