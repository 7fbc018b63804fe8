// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "machine/posix/MountedVolumes.h"

#include "support/TemporaryFolder.h"
#include "support/Text.h"

#include <fstream>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

QStringList RootsOf(const QByteArray &table, const QByteArray &home = "/home/me")
{
    QStringList roots;
    for (const Volume &volume : VolumesOfTable(table, home))
        roots += volume.root;
    return roots;
}

TEST(VolumesOfTable, RootComesFirstThenHomeThenRemovableMediaByPath)
{
    const QByteArray table = "proc /proc proc rw 0 0\n"
                             "/dev/sdc1 /run/media/me/STICK vfat rw 0 0\n"
                             "/dev/sdb1 /media/me/PHOTOS exfat rw 0 0\n"
                             "/dev/sda2 /home ext4 rw 0 0\n"
                             "server:/share /mnt/share nfs rw 0 0\n"
                             "/dev/sda1 / ext4 rw 0 0\n"
                             "/dev/sda3 /boot ext4 rw 0 0\n"
                             "tmpfs /mnt/ram tmpfs rw 0 0\n";
    EXPECT_EQ(RootsOf(table),
              (QStringList{u"/"_s, u"/home/"_s, u"/media/me/PHOTOS/"_s, u"/mnt/share/"_s,
                           u"/run/media/me/STICK/"_s}));
    EXPECT_EQ(RootsOf(table, "/srv/me"),
              (QStringList{u"/"_s, u"/media/me/PHOTOS/"_s, u"/mnt/share/"_s, u"/run/media/me/STICK/"_s}));
}

TEST(VolumesOfTable, EscapesAndOddBytesInMountPointsAreKept)
{
    EXPECT_EQ(RootsOf("/dev/sdb1 /media/My\\040Disc\\134\\011x vfat rw 0 0\n"),
              QStringList{u"/media/My Disc\\\tx/"_s});
    EXPECT_EQ(RootsOf("/dev/sdb1 /media/\xE9 vfat rw 0 0\n"),
              QStringList{u"/media/"_s + QChar(0xDCE9) + u'/'});
    EXPECT_EQ(RootsOf("/dev/sdb1 /media/end\\040 vfat rw 0 0\n"), QStringList{u"/media/end /"_s});
}

TEST(VolumesOfTable, OnlyAFloppyDeviceIsAFloppyWhereverItIsMounted)
{
    const QList<Volume> volumes = VolumesOfTable("/dev/sda1 / ext4 rw 0 0\n"
                                                 "/dev/fd0 /floppy vfat rw 0 0\n"
                                                 "/dev/fdx /media/no vfat rw 0 0\n"
                                                 "/dev/sdb /media/floppy vfat rw 0 0\n",
                                                 "/home/me");
    ASSERT_EQ(volumes.size(), 4);
    EXPECT_EQ(volumes.at(1).root, u"/floppy/"_s);
    EXPECT_TRUE(volumes.at(1).isFloppy);
    EXPECT_FALSE(volumes.at(0).isFloppy || volumes.at(2).isFloppy || volumes.at(3).isFloppy);
}

TEST(VolumesOfTable, AMountOverAnotherCountsOnceAndTornLinesNotAtAll)
{
    EXPECT_EQ(RootsOf("/dev/a / ext4 rw 0 0\n/dev/b / ext4 rw 0 0\n\n/dev/c\n/dev/d /media/x\n"),
              QStringList{u"/"_s});
}

TEST(MountedVolumes, LabelsAreFoundByTheirDevice)
{
    // /dev/null stands for a disc: what counts is its number.
    const TemporaryFolder folder;
    ASSERT_EQ(mkdir(folder.Native("labels").constData(), 0755), 0);
    ASSERT_EQ(symlink("/dev/null", folder.Native("labels/My\\x20Disc").constData()), 0);
    ASSERT_EQ(symlink("/dev/gone", folder.Native("labels/GONE").constData()), 0);
    std::ofstream(folder.Native("mounts").constData())
        << "/dev/zero / ext4 rw 0 0\n/dev/null /media/disc vfat rw 0 0\n";
    MountedVolumes volumes(folder.Native("mounts"), folder.Native("labels"), "/home/me");
    ASSERT_EQ(volumes.All().size(), 2);
    EXPECT_EQ(volumes.All().at(0).label, QString());
    EXPECT_EQ(volumes.All().at(1).label, u"My Disc"_s);
    struct stat status = {};
    ASSERT_EQ(stat("/dev/null", &status), 0);
    EXPECT_EQ(volumes.LabelOf(status.st_rdev), u"My Disc"_s);
    EXPECT_EQ(volumes.LabelOf(status.st_rdev + 1), QString());
}

TEST(MountedVolumes, WithoutATableThereIsTheRoot)
{
    MountedVolumes volumes("/nonexistent/mounts", "/nonexistent/labels", "");
    ASSERT_EQ(volumes.All().size(), 1);
    EXPECT_EQ(volumes.All().first().root, u"/"_s);
}

} // namespace
