// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "machine/Paths.h"

#include "machine/posix/PosixFileSystem.h"
#include "support/MemoryMachine.h"
#include "support/Text.h"

#include <gtest/gtest.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

TEST(IsDriveRoot, IsTheRootWithItsSeparatorAlone)
{
    MemoryMachine machine;
    machine.files.AddDrive(u'D');
    EXPECT_TRUE(IsDriveRoot(machine.files, u"D:\\"_s));
    EXPECT_TRUE(IsDriveRoot(machine.files, u"d:\\"_s));
    for (const QString &path : {u"D:"_s, u"D:\\a"_s, u"D:\\a\\"_s, u""_s})
        EXPECT_FALSE(IsDriveRoot(machine.files, path)) << qPrintable(path);
    PosixFileSystem files;
    EXPECT_TRUE(IsDriveRoot(files, u"/"_s));
    EXPECT_FALSE(IsDriveRoot(files, u"/usr/"_s));
}

TEST(OnDriveC, IsTheRootWhereDrivesHaveNoLetters)
{
    const PosixFileSystem files;
    EXPECT_EQ(OnDriveC(files, u"C:\\"_s), u"/"_s);
    EXPECT_EQ(OnDriveC(files, u"c:\\a\\b"_s), u"/a/b"_s);
    EXPECT_EQ(OnDriveC(files, u"C:"_s), u""_s);
    EXPECT_EQ(OnDriveC(files, u"/home/a\\b"_s), u"/home/a\\b"_s);
    const MemoryMachine machine;
    EXPECT_EQ(OnDriveC(machine.files, u"C:\\a"_s), u"C:\\a"_s);
    EXPECT_EQ(OnDriveC(machine.files, u"C:"_s), u"C:"_s);
}

} // namespace
