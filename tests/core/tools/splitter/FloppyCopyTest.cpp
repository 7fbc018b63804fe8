// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/splitter/FloppyCopy.h"

#include "SplitterFixture.h"
#include "machine/posix/PosixFileSystem.h"
#include "support/TemporaryFolder.h"

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

class FloppyCopyTest : public SplitterFixture {
protected:
    FloppyCopyTest()
    {
        machine.files.AddDrive(u'A');
        page.chkCopyToFloppy.SetChecked(true);
    }
    void ExpectDisk(int number, BoxAnswer answer = BoxAnswer::Ok)
    {
        machine.dialogs.ExpectBox({u"Please enter Disk #%1 in Drive A:"_s.arg(number), u"Coppy to Floppy"_s,
                                   BoxIcon::Information, BoxButtons::OkCancel},
                                  answer);
    }
    void ExpectMissing(BoxAnswer answer)
    {
        machine.dialogs.ExpectBox({u"Unable to find disk in drive or disk is write-protected\r"
                                   "Please insert another disk and press OK"_s,
                                   u"Disk Missing"_s, BoxIcon::Critical, BoxButtons::OkCancel},
                                  answer);
    }
    QStringList Disk() { return Tree(u"A:\\"_s); }
};

TEST_F(FloppyCopyTest, OnePartAndTheBatchFileGoToOneDisk)
{
    Choose(u"C:\\W\\a.bin"_s, 100);
    ExpectDisk(1);
    Split();
    EXPECT_EQ(Disk(), (QStringList{u"a.bin.1"_s, u"a.bin.bat"_s}));
    EXPECT_EQ(Bytes(u"A:\\a.bin.1"_s), Contents(100));
    EXPECT_EQ(Bytes(u"A:\\a.bin.bat"_s), Bytes(u"C:\\W\\a.bin.bat"_s));
    EXPECT_EQ(Status(), u"Finished"_s);
    EXPECT_EQ(watch.lines.mid(3), (QStringList{u"made A:\\a.bin.1"_s, u"made A:\\a.bin.bat"_s}));
}

TEST_F(FloppyCopyTest, ItComesBehindTheStatisticsAndBeforeTheFolder)
{
    Choose(u"C:\\W\\a.bin"_s, 100);
    page.chkOpenExplorer.SetChecked(true);
    ExpectDisk(1);
    machine.dialogs.WhileUp([&] {
        EXPECT_EQ(Count(), u"Split Count: Finished (1 Files)"_s);
        EXPECT_TRUE(page.btnGBSplitFile.IsEnabled() && page.btnGBJoinFile.IsEnabled());
        EXPECT_FALSE(machine.events.IsBusy());
        EXPECT_EQ(machine.journal.Count(u"BrowseFolder"_s), 0);
        EXPECT_EQ(Status(), u"Wait working..."_s);
    });
    Split();
    EXPECT_EQ(machine.journal.Count(u"BrowseFolder"_s), 1);
}

TEST_F(FloppyCopyTest, EachPartHasADiskAndTheLastTheBatchFile)
{
    Choose(u"C:\\W\\a.bin"_s, 2500);
    QList<QStringList> disks;
    ExpectDisk(1);
    ExpectDisk(2);
    machine.dialogs.WhileUp([&] { disks += Disk(); });
    ExpectDisk(3);
    machine.dialogs.WhileUp([&] { disks += Disk(); });
    Split();
    EXPECT_EQ(disks, (QList<QStringList>{{u"a.bin.1"_s}, {u"a.bin.2"_s}}));
    EXPECT_EQ(Disk(), (QStringList{u"a.bin.3"_s, u"a.bin.bat"_s}));
}

TEST_F(FloppyCopyTest, CancelAtTheThirdOfFiveLeavesTheLoop)
{
    Choose(u"C:\\W\\a.bin"_s, 5 * 1024);
    ExpectDisk(1);
    ExpectDisk(2);
    ExpectDisk(3, BoxAnswer::Cancel);
    Split();
    EXPECT_EQ(Disk(), QStringList{u"a.bin.2"_s});
    EXPECT_EQ(Status(), u"Finished"_s);
}

TEST_F(FloppyCopyTest, WhatIsOnTheDiskGoesWithoutAQuestion)
{
    machine.files.PutFile(u"A:\\letter.txt"_s, "mine");
    machine.files.PutFile(u"A:\\secret"_s, "mine");
    machine.files.SetHidden(u"A:\\secret"_s);
    Choose(u"C:\\W\\a.bin"_s, 100);
    ExpectDisk(1);
    Split();
    EXPECT_EQ(Disk(), (QStringList{u"a.bin.1"_s, u"a.bin.bat"_s}));
}

TEST_F(FloppyCopyTest, ADiskWithAFolderIsMissing)
{
    machine.files.PutFile(u"A:\\sub\\letter.txt"_s, "mine");
    machine.files.PutFile(u"A:\\other.txt"_s, "mine");
    Choose(u"C:\\W\\a.bin"_s, 100);
    ExpectDisk(1);
    ExpectMissing(BoxAnswer::Cancel);
    Split();
    EXPECT_EQ(Disk(), (QStringList{u"other.txt"_s, u"sub\\"_s, u"sub\\letter.txt"_s}));
    EXPECT_EQ(Status(), u"Finished"_s);
}

TEST_F(FloppyCopyTest, OkLooksForADiskAgain)
{
    machine.files.SetReady(u'A', false);
    Choose(u"C:\\W\\a.bin"_s, 100);
    ExpectDisk(1);
    ExpectMissing(BoxAnswer::Ok);
    ExpectMissing(BoxAnswer::Ok);
    machine.dialogs.WhileUp([&] { machine.files.SetReady(u'A', true); });
    Split();
    EXPECT_EQ(Disk(), (QStringList{u"a.bin.1"_s, u"a.bin.bat"_s}));
}

TEST_F(FloppyCopyTest, APartLargerThanTheDiskComesBackUntilTheDiskIsOut)
{
    machine.files.AddDrive(u'A', {}, 50);
    Choose(u"C:\\W\\a.bin"_s, 100);
    ExpectDisk(1);
    ExpectCopyFailed(u"a.bin.1"_s);
    ExpectCopyFailed(u"a.bin.1"_s);
    machine.dialogs.WhileUp([&] { machine.files.SetReady(u'A', false); });
    ExpectMissing(BoxAnswer::Cancel);
    Split();
    machine.files.SetReady(u'A', true);
    EXPECT_EQ(Disk(), QStringList());
}

TEST_F(FloppyCopyTest, ACopyThatFailsIsTriedAgainOnAnEmptiedDisk)
{
    Choose(u"C:\\W\\a.bin"_s, 1500);
    machine.files.FailAt(Operation::WriteBytes, u"A:\\a.bin.2"_s, 1, FailureNumber::DiskFull);
    ExpectDisk(1);
    ExpectDisk(2);
    ExpectCopyFailed(u"a.bin.2"_s);
    machine.dialogs.WhileUp([&] { machine.files.PutFile(u"A:\\other disk"_s); });
    Split();
    EXPECT_EQ(Disk(), (QStringList{u"a.bin.2"_s, u"a.bin.bat"_s}));
}

TEST_F(FloppyCopyTest, ABatchFileThatCannotBeCopiedIsToldAsItsPart)
{
    Choose(u"C:\\W\\a.bin"_s, 100);
    machine.files.FailAt(Operation::WriteBytes, u"A:\\a.bin.bat"_s, 1, FailureNumber::DiskFull);
    ExpectDisk(1);
    ExpectCopyFailed(u"a.bin.1"_s);
    Split();
    EXPECT_EQ(Disk(), QStringList{u"a.bin.1"_s});
    EXPECT_EQ(Status(), u"Finished"_s);
}

TEST_F(FloppyCopyTest, NoPartsAskForNoDisk)
{
    Choose(u"C:\\W\\a.bin"_s, 0);
    Split();
    EXPECT_EQ(Disk(), QStringList());
    EXPECT_EQ(Status(), u"Finished"_s);
}

TEST_F(FloppyCopyTest, EventsRunBeforeAndBehindEachDisk)
{
    Choose(u"C:\\W\\a.bin"_s, 100);
    ExpectDisk(1);
    Split();
    // A read, a write, a read, and the two around the disk.
    EXPECT_EQ(machine.events.Calls(), 5);
}

class ClearDiskRootTest : public FloppyCopyTest {
protected:
    bool Clear(const QString &path = u"A:\\"_s) { return ClearDiskRoot(machine.files, path); }
};

TEST_F(ClearDiskRootTest, TakesTheRootWithAndWithoutItsSeparator)
{
    for (const QString &path : {u"A:"_s, u"A:\\"_s}) {
        machine.files.PutFile(u"A:\\a.txt"_s);
        EXPECT_TRUE(Clear(path));
        EXPECT_EQ(Disk(), QStringList());
    }
}

TEST_F(ClearDiskRootTest, PassesAFolderOfThatOneName)
{
    machine.files.PutFile(u"A:\\io.sys\\inner"_s);
    machine.files.PutFile(u"A:\\a.txt"_s);
    EXPECT_TRUE(Clear());
    EXPECT_EQ(Disk(), (QStringList{u"io.sys\\"_s, u"io.sys\\inner"_s}));
    machine.files.PutFolder(u"A:\\B.SYS"_s);
    EXPECT_FALSE(Clear());
}

TEST_F(ClearDiskRootTest, ALinkIsAFileOfTheRoot)
{
    machine.files.PutFile(u"C:\\Keep\\letter"_s, "mine");
    machine.files.PutLink(u"A:\\link"_s, u"C:\\Keep"_s);
    EXPECT_TRUE(Clear());
    EXPECT_EQ(Disk(), QStringList());
    EXPECT_EQ(Bytes(u"C:\\Keep\\letter"_s), "mine");
}

TEST_F(ClearDiskRootTest, AWriteProtectedDiskWithAFileIsMissingAndAnEmptyOneIsNot)
{
    machine.files.FailAt(Operation::RemoveFile, u"A:\\"_s, 0, FailureNumber::PermissionDenied);
    machine.files.PutFile(u"A:\\a.sys"_s);
    EXPECT_FALSE(Clear());
    machine.files.FailNoMore();
    machine.files.RemoveFile(u"A:\\a.sys"_s);
    EXPECT_TRUE(Clear());
}

TEST_F(ClearDiskRootTest, WhatCannotBeDeletedIsMissingBehindAFolderOfThatNameToo)
{
    machine.files.PutFile(u"A:\\a.txt"_s);
    machine.files.PutFolder(u"A:\\io.sys"_s);
    for (const Operation operation : {Operation::RemoveFile, Operation::List}) {
        // The first listing goes through; the delete, or the second listing, fails once.
        const bool isList = operation == Operation::List;
        machine.files.FailAt(operation, u"A:\\"_s, isList ? 2 : 1, FailureNumber::DeviceIoError);
        EXPECT_FALSE(Clear());
        EXPECT_EQ(Disk(), (QStringList{u"a.txt"_s, u"io.sys\\"_s}));
    }
    EXPECT_TRUE(Clear());
}

TEST_F(ClearDiskRootTest, AFailingListingAndAnEmptyDriveAreMissing)
{
    machine.files.FailAt(Operation::List, u"A:\\"_s, 1, FailureNumber::DeviceIoError);
    EXPECT_FALSE(Clear());
    machine.files.SetReady(u'A', false);
    EXPECT_FALSE(Clear());
}

/// The real disc, on which a folder stands in for a floppy disc drive.
class WithStandIn : public PosixFileSystem {
public:
    explicit WithStandIn(QString root)
        : root(std::move(root))
    {
    }
    QList<Volume> Volumes() override { return {Volume{u"/"_s, {}, false}, Volume{root, {}, true}}; }

private:
    QString root;
};

TEST(ClearDiskRootOnTheRealDisc, EmptiesTheStandInAndNothingElse)
{
    const TemporaryFolder folder;
    WithStandIn files(folder.Path() + u"/floppy/"_s);
    ASSERT_FALSE(files.TryMakeFolder(folder.Path() + u"/floppy"_s));
    files.Open(folder.Path() + u"/floppy/.hidden"_s, OpenFor::Creating)->Close();
    files.Open(folder.Path() + u"/floppy/a.txt"_s, OpenFor::Creating)->Close();
    files.Open(folder.Path() + u"/beside"_s, OpenFor::Creating)->Close();
    EXPECT_TRUE(ClearDiskRoot(files, u"A:\\"_s));
    EXPECT_TRUE(files.List(folder.Path() + u"/floppy"_s).isEmpty());
    EXPECT_TRUE(files.Status(folder.Path() + u"/beside"_s, Links::Keep));
}

TEST(ClearDiskRootOnTheRealDisc, WithoutAFloppyDriveTheDiskIsMissing)
{
    class NoFloppy : public PosixFileSystem {
        QList<Volume> Volumes() override { return {Volume{u"/"_s, {}, false}}; }
    } files;
    EXPECT_FALSE(ClearDiskRoot(files, u"A:\\"_s));
}

} // namespace
