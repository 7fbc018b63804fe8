// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/FolderChoice.h"

#include "support/Failures.h"
#include "support/MemoryMachine.h"
#include "support/Text.h"

#include <gtest/gtest.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

/// The two lists on a machine with the drive C: and the folder D:\Music\Live.
class FolderChoiceTest : public testing::Test {
protected:
    FolderChoiceTest()
    {
        machine.files.AddDrive(u'D');
        machine.files.PutFolder(u"D:\\Music\\Live"_s);
        drives.Refresh();
    }

    MemoryMachine machine;
    Form form{u"form"_s};
    DriveList drives{form, u"drives"_s, machine.files};
    FolderList folders{form, u"folders"_s, machine.files};
    FolderChoice choice{drives, folders, FolderChoice::Unready::IsLeftAgain};
};

TEST_F(FolderChoiceTest, TheDriveFollowsAStoredFolderAndLeavesItWhereItIs)
{
    choice.GoTo(u"D:\\Music"_s);
    EXPECT_EQ(folders.Path(), u"D:\\Music"_s);
    EXPECT_EQ(drives.Drive(), u"D:\\"_s);
    EXPECT_EQ(folders.Items(), (QStringList{u"D:\\"_s, u"Music"_s, u"Live"_s}));
}

TEST_F(FolderChoiceTest, TheDriveFollowsTheFoldersWhereverTheyGo)
{
    folders.SetPath(u"D:\\Music\\Live"_s);
    EXPECT_EQ(drives.Drive(), u"D:\\"_s);
    EXPECT_EQ(folders.Path(), u"D:\\Music\\Live"_s);
}

TEST_F(FolderChoiceTest, AFolderThatHasGoneLeavesSomethingToPickFrom)
{
    EXPECT_EQ(NumberThrownBy([&] { choice.GoTo(u"D:\\Gone"_s); }), FailureNumber::PathNotFound);
    EXPECT_EQ(folders.Path(), u"C:\\"_s);
    EXPECT_EQ(folders.Items(), (QStringList{u"C:\\"_s, u"Tressel"_s}));
    EXPECT_EQ(drives.Drive(), u"C:\\"_s);
}

TEST_F(FolderChoiceTest, ChoosingTheDriveThatIsThereGoesToItsRoot)
{
    choice.GoTo(u"D:\\Music"_s);
    int chosen = 0;
    choice.DriveChosen.Handle([&] { ++chosen; });
    drives.UserSelects(1);
    EXPECT_EQ(folders.Path(), u"D:\\"_s);
    drives.UserSelects(1);
    EXPECT_EQ(chosen, 2);
}

TEST_F(FolderChoiceTest, ADriveWithoutItsMediumIsLeftAgain)
{
    choice.ShowPresent();
    machine.files.SetReady(u'D', false);
    drives.UserSelects(1);
    EXPECT_EQ(drives.Drive(), u"C:\\"_s);
    EXPECT_EQ(folders.Path(), u"C:\\"_s);
}

TEST_F(FolderChoiceTest, OrItsFailureLeavesTheEvent)
{
    Form other(u"other"_s);
    DriveList otherDrives(other, u"drives"_s, machine.files);
    FolderList otherFolders(other, u"folders"_s, machine.files);
    const FolderChoice strict(otherDrives, otherFolders, FolderChoice::Unready::Fails);
    machine.files.SetReady(u'D', false);
    EXPECT_EQ(NumberThrownBy([&] { otherDrives.UserSelects(1); }), FailureNumber::PathNotFound);
}

} // namespace
