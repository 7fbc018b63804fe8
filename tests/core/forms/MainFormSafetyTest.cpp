// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

// What a main window does that goes before its load has ended, that is killed while it closes, or whose
// settings are damaged.

#include "support/StartedProgram.h"
#include "support/Text.h"

#include <gtest/gtest.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

class MainFormSafety : public testing::Test, protected StartedProgram { };

TEST_F(MainFormSafety, AWindowThatEndsWhileItLoadsWritesNothing)
{
    application.settings.Write(keys::SplitSize, u"500"_s);
    application.settings.Write(keys::LastFile, u"C:\\list.txt"_s);
    machine.files.PutFile(u"C:\\list.txt"_s, "one\ntwo\n");
    machine.journal.Clear();
    machine.events.At(1, [&] { Form().Unload(); });
    EXPECT_THROW(Start(), ProcessEnded);
    EXPECT_EQ(machine.journal.Count(u"WriteSetting"_s), 0);
    EXPECT_EQ(application.settings.ReadText(keys::SplitSize), u"500"_s);
}

TEST_F(MainFormSafety, AllIsOnTheDiscBeforeTheWindowFoldsUp)
{
    Start();
    application.frmOption().ChkAnimOption.SetChecked(true);
    machine.journal.Clear();
    QString last;
    machine.events.At(1, [&] { last = machine.journal.Lines().last(); });
    EXPECT_THROW(Form().btnGBToolbarExit.UserClicks(), ProcessEnded);
    EXPECT_TRUE(last.startsWith(u"FlushSettings"_s)) << last.toStdString();
}

TEST_F(MainFormSafety, AFailureInTheSecondPartOfTheLoadLeavesNoPageOnAnother)
{
    application.settings.Write(keys::WindowLeft, u"abc"_s);
    Start();
    EXPECT_EQ(Form().EyeDropper1.Items().Count(), 0);
    for (const Frame *page : Form().FrameXPMenu)
        EXPECT_FALSE(page->IsVisible()) << page->Name().toStdString();
}

TEST_F(MainFormSafety, ASearchPathOnAnotherDriveStaysWhereItWas)
{
    machine.files.AddDrive(u'D');
    machine.files.PutFolder(u"D:\\Deep\\Down"_s);
    application.settings.Write(keys::SearchPath, u"D:\\Deep\\Down"_s);
    Start();
    EXPECT_EQ(Form().emptyFolders.DirListRemove.Path(), u"D:\\Deep\\Down"_s);
    EXPECT_EQ(Form().emptyFolders.DrvListRemove.Drive(), u"D:\\"_s);
}

TEST_F(MainFormSafety, EveryFolderListShowsSomethingWhereTheStoredFoldersHaveGone)
{
    for (const KeyEntry *key : {&keys::SearchPath, &keys::LastDBPath, &keys::LastNumPath})
        application.settings.Write(*key, u"C:\\Gone"_s);
    Start();
    for (const FolderList *list :
         {&Form().emptyFolders.DirListRemove, &Form().browse.DirList, &Form().numbered.DirBox})
        EXPECT_EQ(list->Items(), (QStringList{u"C:\\"_s, u"Tressel"_s, u"Work"_s}))
            << list->Name().toStdString();
}

} // namespace
