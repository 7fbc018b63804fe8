// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/listing/RecentPaths.h"

#include "settings/Settings.h"
#include "support/MemoryMachine.h"
#include "support/Text.h"

#include <gtest/gtest.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

class RecentPathsTest : public testing::Test {
protected:
    void Store(const QStringList &paths)
    {
        for (int index = 0; index < paths.size(); ++index)
            settings.Write(keys::RecentPath.At(index), paths.at(index));
    }
    QStringList Stored()
    {
        QStringList paths;
        for (int index = 0; index <= 4; ++index)
            paths += machine.hive.Text(u"Software\\Halven Software\\Tressel\\Main"_s,
                                       u"RecentPath %1"_s.arg(index));
        return paths;
    }
    void Save(const QString &path)
    {
        CboFilePath.SetText(path);
        recent.SaveRecentPath();
    }

    MemoryMachine machine;
    Settings settings{machine.machine};
    Form form{u"frmMain"_s};
    ComboBox CboFilePath{form, u"CboFilePath"_s};
    RecentPaths recent{CboFilePath, settings};
};

TEST_F(RecentPathsTest, AnEmptyStoreGivesAnEmptyListAndText)
{
    CboFilePath.AddItem(u"old"_s);
    CboFilePath.SetText(u"old"_s);
    recent.LoadRecentPaths();
    EXPECT_EQ(CboFilePath.Items(), QStringList());
    EXPECT_EQ(CboFilePath.Text(), u""_s);
}

TEST_F(RecentPathsTest, LoadsUpToTheFirstEmptyEntryAndShowsTheFirst)
{
    Store({u"a"_s, u"b"_s, u""_s, u"d"_s});
    recent.LoadRecentPaths();
    EXPECT_EQ(CboFilePath.Items(), (QStringList{u"a"_s, u"b"_s}));
    EXPECT_EQ(CboFilePath.Text(), u"a"_s);
}

TEST_F(RecentPathsTest, AllFiveLeaveTheTextAsItStood)
{
    Store({u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s});
    CboFilePath.SetText(u"as it stood"_s);
    recent.LoadRecentPaths();
    EXPECT_EQ(CboFilePath.ListCount(), 5);
    EXPECT_EQ(CboFilePath.Text(), u"as it stood"_s);
}

TEST_F(RecentPathsTest, ASixthPathPushesTheFirstOut)
{
    for (const QString &path : {u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s, u"f"_s})
        Save(path);
    EXPECT_EQ(CboFilePath.Items(), (QStringList{u"b"_s, u"c"_s, u"d"_s, u"e"_s, u"f"_s}));
    EXPECT_EQ(CboFilePath.Text(), u"f"_s);
    EXPECT_EQ(Stored(), CboFilePath.Items());
}

TEST_F(RecentPathsTest, APathThatDiffersOnlyInCaseIsTheSameAndStaysInItsPlace)
{
    Save(u"C:\\Music"_s);
    Save(u"D:\\"_s);
    Save(u"c:\\MUSIC"_s);
    EXPECT_EQ(CboFilePath.Items(), (QStringList{u"C:\\Music"_s, u"D:\\"_s}));
    EXPECT_EQ(Stored().value(0), u"C:\\Music"_s);
}

TEST_F(RecentPathsTest, AnEmptyTextStoresNothingNew)
{
    Save(u"a"_s);
    Save(u""_s);
    EXPECT_EQ(CboFilePath.Items(), QStringList{u"a"_s});
    EXPECT_EQ(Stored(), (QStringList{u"a"_s, {}, {}, {}, {}}));
}

TEST_F(RecentPathsTest, KeysBehindTheListStay)
{
    Store({u"a"_s, u"b"_s, u"c"_s});
    Save(u"z"_s);
    EXPECT_EQ(Stored(), (QStringList{u"z"_s, u"b"_s, u"c"_s, {}, {}}));
}

TEST_F(RecentPathsTest, DroppedPathsMayMakeTheListLongerThanIsStored)
{
    for (const QString &path : {u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s, u"f"_s})
        recent.AddDropped(path);
    EXPECT_EQ(CboFilePath.ListCount(), 6);
    Save(u"g"_s);
    EXPECT_EQ(CboFilePath.Items(), (QStringList{u"b"_s, u"c"_s, u"d"_s, u"e"_s, u"f"_s, u"g"_s}));
    EXPECT_EQ(Stored(), (QStringList{u"b"_s, u"c"_s, u"d"_s, u"e"_s, u"f"_s}));
}

TEST_F(RecentPathsTest, AStoreThatCannotBeWrittenIsNoFailure)
{
    machine.hive.canWrite = false;
    Save(u"a"_s);
    EXPECT_EQ(CboFilePath.Items(), QStringList{u"a"_s});
}

} // namespace
