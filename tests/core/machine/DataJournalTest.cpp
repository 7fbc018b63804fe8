// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "machine/posix/DataJournal.h"

#include <gtest/gtest.h>
#include <sys/sysmacros.h>

using namespace tressel;

namespace {

TEST(DataJournal, IsNamedAmongTheOptionsOfTheFileSystem)
{
    const QByteArray table = "22 27 0:21 / /proc rw,relatime - proc proc rw\n"
                             "27 1 254:0 / / rw,relatime - ext4 /dev/vda rw,discard,data=journal\n"
                             "28 27 254:1 / /a rw,relatime shared:1 - ext4 /dev/vdb rw,data=ordered\n"
                             "29 27 254:2 / /b rw shared:2 master:1 - ext3 /dev/vdc rw,data=journal,acl\n";
    EXPECT_TRUE(IsMountedWithDataJournal(table, makedev(254, 0)));
    EXPECT_FALSE(IsMountedWithDataJournal(table, makedev(254, 1)));
    EXPECT_TRUE(IsMountedWithDataJournal(table, makedev(254, 2)));
    EXPECT_FALSE(IsMountedWithDataJournal(table, makedev(0, 21)));
    EXPECT_FALSE(IsMountedWithDataJournal(table, makedev(25, 40)));
}

TEST(DataJournal, IsNoPartOfAnotherWordAndNoOtherField)
{
    EXPECT_FALSE(IsMountedWithDataJournal("27 1 8:1 / /data=journal rw - ext4 /dev/sda1 rw", makedev(8, 1)));
    EXPECT_FALSE(IsMountedWithDataJournal("27 1 8:1 / / rw,data=journal - ext4 /dev/sda1 rw", makedev(8, 1)));
    EXPECT_FALSE(
        IsMountedWithDataJournal("27 1 8:1 / / rw - ext4 /dev/sda1 rw,nodata=journal", makedev(8, 1)));
    EXPECT_FALSE(
        IsMountedWithDataJournal("27 1 8:1 / / rw - ext4 /dev/sda1 rw,data=journal_x", makedev(8, 1)));
}

TEST(DataJournal, ADamagedTableTellsNothing)
{
    for (const char *table : {"", "\n", "27 1 8:1", "27 1 8:1 / / rw -",
                              "27 1 8:1 / / rw ext4 /dev/a data=journal", "- - - - - - - - - -"})
        EXPECT_FALSE(IsMountedWithDataJournal(table, makedev(8, 1))) << table;
}

TEST(DataJournal, AnOpenFileOfNoKindHasNone)
{
    EXPECT_FALSE(HasDataInJournal(-1));
}

} // namespace
