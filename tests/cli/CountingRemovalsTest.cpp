// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "CountingRemovals.h"

#include "language/FolderPaths.h"
#include "support/MemoryMachine.h"
#include "support/Text.h"

#include <gtest/gtest.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

class Removals : public testing::Test {
protected:
    Removals() { machine.files.PutFile(u"C:\\Work\\stays"_s, "x"); }
    void ExpectCount(int removed, int kept, int missing, int failed)
    {
        const RemovalCount count = counting.Count();
        EXPECT_EQ(count.removed, removed);
        EXPECT_EQ(count.kept, kept);
        EXPECT_EQ(count.missing, missing);
        EXPECT_EQ(count.failed, failed);
    }

    MemoryMachine machine;
    CountingRemovals counting{machine.files};
};

TEST_F(Removals, NothingTriedIsNothingCounted)
{
    ExpectCount(0, 0, 0, 0);
    EXPECT_EQ(counting.Tried(), 0);
}

TEST_F(Removals, EachTargetCountsOnceAndEachFolderThatWent)
{
    machine.files.PutFolder(u"C:\\Work\\a"_s);
    machine.files.PutFile(u"C:\\Work\\b\\file"_s, "x");
    machine.files.PutFile(u"C:\\Work\\c"_s, "x");
    for (const QString &name : {u"a"_s, u"b"_s, u"c"_s, u"d"_s})
        RemoveFolderPath(counting, u"C:\\Work\\"_s + name);
    ExpectCount(1, 1, 1, 1);
    EXPECT_EQ(counting.Tried(), 4);
}

TEST_F(Removals, FoldersAboveATargetCountAsRemoved)
{
    machine.files.PutFolder(u"C:\\Empty\\In"_s);
    RemoveFolderPath(counting, u"C:\\Empty\\In\\Disk1"_s);
    RemoveFolderPath(counting, u"C:\\Empty\\In\\Disk2"_s);
    ExpectCount(2, 0, 2, 0);
}

TEST_F(Removals, HookIsCalledBeforeEachTargetIsTried)
{
    QList<int> tried;
    counting.onTarget = [&] { tried += counting.Tried(); };
    RemoveFolderPath(counting, u"C:\\Work\\a\\b"_s);
    RemoveFolderPath(counting, u"C:\\Work\\c"_s);
    EXPECT_EQ(tried, (QList<int>{0, 1}));
}

} // namespace
