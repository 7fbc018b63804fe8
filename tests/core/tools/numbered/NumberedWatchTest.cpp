// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "NumberedFixture.h"

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

/// What the runs over a series tell their watch.
class NumberedWatch : public NumberedFixture { };

TEST_F(NumberedWatch, MakeTellsWhatCameOfEachNumber)
{
    machine.files.PutFolder(u"D:\\Work\\Disk2"_s);
    machine.files.PutFile(u"D:\\Work\\Disk3"_s, "x");
    Make(u"1"_s, u"3"_s);
    EXPECT_EQ(told.lines,
              (QStringList{u"started 3"_s, u"next D:\\Work\\Disk1"_s, u"made D:\\Work\\Disk1"_s,
                           u"next D:\\Work\\Disk2"_s, u"already there D:\\Work\\Disk2"_s,
                           u"next D:\\Work\\Disk3"_s, u"failed D:\\Work\\Disk3 75"_s}));
}

TEST_F(NumberedWatch, DeleteTellsWhatCameOfEachNumber)
{
    machine.files.PutFile(u"D:\\Work\\keep"_s);
    machine.files.PutFolder(u"D:\\Work\\Disk1"_s);
    machine.files.PutFile(u"D:\\Work\\Disk2\\file"_s, "x");
    machine.files.PutFile(u"D:\\Work\\Disk3"_s, "x");
    Delete(u"1"_s, u"4"_s);
    EXPECT_EQ(told.Of(u"removed"_s), QStringList{u"D:\\Work\\Disk1"_s});
    EXPECT_EQ(told.Of(u"kept"_s), QStringList{u"D:\\Work\\Disk2"_s});
    EXPECT_EQ(told.Of(u"failed"_s), QStringList{u"D:\\Work\\Disk3 75"_s});
    EXPECT_EQ(told.Of(u"not there"_s), QStringList{u"D:\\Work\\Disk4"_s});
    EXPECT_EQ(told.Of(u"next"_s).size(), 4);
}

TEST_F(NumberedWatch, FoldersAboveTheSeriesThatGoAreToldToo)
{
    machine.files.PutFolder(u"D:\\A\\B"_s);
    page.DirBox.SetPath(u"D:\\A\\B"_s);
    Delete(u"1"_s, u"1"_s);
    EXPECT_EQ(told.Of(u"removed"_s), QStringList{u"D:\\A\\B"_s});
    EXPECT_EQ(told.Of(u"not there"_s), QStringList{u"D:\\A\\B\\Disk1"_s});
}

TEST_F(NumberedWatch, TheGuardedFolderIsToldAsKept)
{
    machine.files.PutFolder(u"C:\\Test1"_s);
    page.DirBox.SetPath(u"C:\\"_s);
    page.txtFeltDir.SetText(u"Test"_s);
    Delete(u"1"_s, u"1"_s);
    EXPECT_EQ(told.Of(u"kept"_s), QStringList{u"C:\\Test1"_s});
}

TEST_F(NumberedWatch, ANumberThatIsNoneIsToldAsTheRunsFailure)
{
    Make(u"x"_s, u"3"_s);
    EXPECT_EQ(told.lines, QStringList{u"failed D:\\Work 13"_s});
}

TEST_F(NumberedWatch, NumbersWithoutAPictureAreNotCountedThrough)
{
    Make(u"1"_s, u"2147483647"_s);
    EXPECT_EQ(told.lines, QStringList{u"started 0"_s});
    EXPECT_TRUE(Work().isEmpty());
}

} // namespace
