// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "controls/FolderList.h"
#include "support/Failures.h"
#include "support/MemoryMachine.h"
#include "support/Text.h"

#include <gtest/gtest.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

class FolderListControlTest : public testing::Test {
protected:
    FolderListControlTest()
    {
        for (const QString &folder : {u"C:\\a\\b\\x"_s, u"C:\\a\\b\\y"_s, u"C:\\a\\other"_s})
            memory.files.PutFolder(folder);
    }

    MemoryMachine memory;
    Form form{u"f"_s};
    FolderList folders{form, u"DirList"_s, memory.files};
};

TEST_F(FolderListControlTest, IsEmptyUntilThereIsAPath)
{
    EXPECT_EQ(folders.Path(), u"C:\\"_s);
    EXPECT_EQ(folders.ListCount(), 0);
}

TEST_F(FolderListControlTest, ShowsTheWayToTheFolderAndWhatIsBelow)
{
    folders.SetPath(u"C:\\a\\b\\"_s);
    EXPECT_EQ(folders.Path(), u"C:\\a\\b"_s);
    EXPECT_EQ(folders.Items(), (QStringList{u"C:\\"_s, u"a"_s, u"b"_s, u"x"_s, u"y"_s}));
    EXPECT_EQ(folders.PresentRow(), 2);
    const QStringList paths{u"C:\\"_s, u"C:\\a"_s, u"C:\\a\\b"_s, u"C:\\a\\b\\x"_s, u"C:\\a\\b\\y"_s};
    for (int row = 0; row < folders.ListCount(); ++row) {
        EXPECT_EQ(folders.Depth(row), std::min(row, 3));
        folders.SetListIndex(row);
        EXPECT_EQ(folders.SelectedPath(), paths.at(row));
    }
}

TEST_F(FolderListControlTest, ANewPathOrAFreshListSelectsNothing)
{
    folders.SetPath(u"C:\\a"_s);
    folders.SetListIndex(1);
    folders.Refresh();
    EXPECT_EQ(folders.ListIndex(), -1);
    EXPECT_EQ(folders.SelectedPath(), u"C:\\a"_s);
}

TEST_F(FolderListControlTest, TheDiscIsReadWhenSomebodyLooks)
{
    folders.SetPath(u"C:\\a\\b"_s);
    memory.files.PutFolder(u"C:\\a\\b\\z"_s);
    EXPECT_EQ(folders.Items().constLast(), u"z"_s);
    memory.files.PutFolder(u"C:\\a\\b\\zz"_s);
    EXPECT_EQ(folders.Items().constLast(), u"z"_s);
    folders.Refresh();
    EXPECT_EQ(folders.Items().constLast(), u"zz"_s);
}

TEST_F(FolderListControlTest, ListsNobodyLooksAtCostNothing)
{
    int listings = 0;
    folders.SetPath(u"C:\\a"_s);
    for (int turn = 0; turn < 3; ++turn)
        folders.Refresh();
    memory.files.DoBefore(Operation::List, u"C:\\a"_s, 1, [&] { ++listings; });
    EXPECT_EQ(listings, 0);
    EXPECT_EQ(folders.ListCount(), 4);
    EXPECT_EQ(listings, 1);
}

TEST_F(FolderListControlTest, AFolderThatIsNotThereLeavesTheListWhereItWas)
{
    folders.SetPath(u"C:\\a"_s);
    EXPECT_EQ(NumberThrownBy([&] { folders.SetPath(u"C:\\gone"_s); }), FailureNumber::PathNotFound);
    EXPECT_EQ(folders.Path(), u"C:\\a"_s);
    EXPECT_EQ(folders.ListCount(), 4);
}

TEST_F(FolderListControlTest, AFolderThatCannotBeReadShowsTheWayOut)
{
    memory.files.FailAt(Operation::List, u"C:\\a\\b"_s, 1, FailureNumber::PathFileAccessError);
    folders.SetPath(u"C:\\a\\b"_s);
    EXPECT_EQ(folders.Items(), (QStringList{u"C:\\"_s, u"a"_s, u"b"_s}));
}

} // namespace
