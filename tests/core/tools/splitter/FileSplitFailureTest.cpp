// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

// How a split ends where something fails or changes on its way.

#include "SplitterFixture.h"
#include "tools/splitter/FileSplit.h"

#include <limits>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

class FileSplitFailure : public SplitterFixture { };

TEST_F(FileSplitFailure, AHeldSourceIsAReadError)
{
    Choose(u"C:\\W\\a.bin"_s, 10);
    machine.files.HoldByAnother(u"C:\\W\\a.bin"_s);
    machine.dialogs.ExpectBox({u"Split Count: Read Error"_s, u"File Error"_s, BoxIcon::Critical});
    Split();
    EXPECT_EQ(Count(), u"Split Count: Read Error"_s);
    EXPECT_EQ(Status(), u"Wait working..."_s);
    EXPECT_FALSE(machine.events.IsBusy());
    EXPECT_TRUE(page.btnGBSplitFile.IsEnabled() && page.cmbSplitSize.IsEnabled());
    EXPECT_TRUE(page.optSplit.Button(0).IsEnabled() && page.optSplit.Button(1).IsEnabled());
    EXPECT_FALSE(page.btnGBJoinFile.IsEnabled() || page.txtSplitCount.IsEnabled());
    EXPECT_EQ(Tree(), QStringList{u"a.bin"_s});
}

TEST_F(FileSplitFailure, AReadOnlySourceIsAReadError)
{
    Choose(u"C:\\W\\a.bin"_s, 10);
    machine.files.SetReadOnly(u"C:\\W\\a.bin"_s, true);
    machine.dialogs.ExpectBox(u"Split Count: Read Error"_s);
    CutByCount(u"2"_s);
    Split();
    EXPECT_TRUE(page.txtSplitCount.IsEnabled());
    EXPECT_EQ(watch.lines, (QStringList{u"started 2"_s, u"failed 75 C:\\W\\a.bin"_s}));
}

TEST_F(FileSplitFailure, AFailedReadEndsThePartsWithoutAWord)
{
    Choose(u"C:\\W\\a.bin"_s, 2500);
    machine.files.FailAt(Operation::ReadBytes, u"C:\\W\\a.bin"_s, 2, FailureNumber::DeviceIoError);
    Split();
    EXPECT_EQ(Count(), u"Split Count: Finished (1 Files)"_s);
    EXPECT_EQ(Tree(), (QStringList{u"a.bin"_s, u"a.bin.1"_s, u"a.bin.bat"_s}));
}

TEST_F(FileSplitFailure, APartThatCannotBeMadeLeavesThePageShut)
{
    Choose(u"C:\\W\\a.bin"_s, 2500);
    machine.files.PutFolder(u"C:\\W\\a.bin.2"_s);
    Split();
    EXPECT_EQ(Count(), u"Split Count: Write Error"_s);
    EXPECT_EQ(Status(), u"Wait working..."_s);
    EXPECT_TRUE(IsShut());
    EXPECT_EQ(Tree(), (QStringList{u"a.bin"_s, u"a.bin.1"_s, u"a.bin.2\\"_s}));
    page.cboFileName.UserSelects(0);
    EXPECT_TRUE(page.btnGBSplitFile.IsEnabled() && page.btnGBJoinFile.IsEnabled());
    EXPECT_FALSE(page.cmbSplitSize.IsEnabled() || page.optSplit.Button(0).IsEnabled());
    // The source stays held.
    machine.dialogs.ExpectBox(u"Split Count: Read Error"_s);
    Split();
}

TEST_F(FileSplitFailure, AFullDiscAtEachWriteCleansNothing)
{
    for (int part = 1; part <= 3; ++part) {
        SplitterMachine other;
        SplitterTool tool(other.machine.machine);
        other.machine.files.PutFile(u"C:\\W\\a.bin"_s, Contents(2500));
        tool.Queue({u"C:\\W\\a.bin"_s});
        other.machine.files.FailAt(Operation::WriteBytes, u"C:\\W\\a.bin."_s + QString::number(part), 1,
                                   FailureNumber::DiskFull);
        tool.Split();
        EXPECT_EQ(tool.Count(), u"Split Count: Write Error"_s);
        // The part that couldn't be written is there, empty, and held.
        QStringList left{u"a.bin"_s};
        for (int made = 1; made <= part; ++made)
            left += u"a.bin."_s + QString::number(made);
        EXPECT_EQ(other.machine.files.Tree(u"C:\\W"_s), left);
        const QString unwritten = u"C:\\W\\"_s + left.constLast();
        EXPECT_THROW(other.machine.files.RemoveFile(unwritten), Failure);
        EXPECT_EQ(tool.watch.lines.constLast(), u"failed 61 "_s + unwritten);
    }
}

TEST_F(FileSplitFailure, FlushAndCloseOfAPartAreNotLookedAt)
{
    Choose(u"C:\\W\\a.bin"_s, 100);
    machine.files.FailAt(Operation::FlushFile, u"C:\\W\\a.bin.1"_s, 1, FailureNumber::DeviceIoError);
    machine.files.FailAt(Operation::CloseFile, u"C:\\W\\a.bin.1"_s, 1, FailureNumber::DiskFull);
    Split();
    EXPECT_EQ(Count(), u"Split Count: Finished (1 Files)"_s);
}

TEST_F(FileSplitFailure, ABatchFileThatCannotBeWrittenIsToldAndTheRunEnds)
{
    Choose(u"C:\\W\\a.bin"_s, 100);
    machine.files.PutFolder(u"C:\\W\\a.bin.bat"_s);
    ExpectCopyFailed(u"a.bin.2"_s);
    Split();
    EXPECT_EQ(Count(), u"Split Count: Finished (1 Files)"_s);
    EXPECT_EQ(Status(), u"Finished"_s);
}

TEST_F(FileSplitFailure, AnOldBatchFileIsReplaced)
{
    Choose(u"C:\\W\\a.bin"_s, 100);
    machine.files.PutFile(u"C:\\W\\a.bin.bat"_s, QByteArray(1000, 'x'));
    Split();
    EXPECT_TRUE(Bytes(u"C:\\W\\a.bin.bat"_s).startsWith("@ECHO OFF\r\n"));
    EXPECT_TRUE(Bytes(u"C:\\W\\a.bin.bat"_s).endsWith("\r\nECHO Done!\r\n"));
    EXPECT_EQ(watch.lines.constLast(), u"rewrote C:\\W\\a.bin.bat"_s);
}

TEST_F(FileSplitFailure, AChunkOfZeroGivesTwoBoxesAndNoPart)
{
    Choose(u"C:\\W\\a.bin"_s, 100);
    page.cmbSplitSize.SetText(u"0"_s);
    ExpectCopyFailed(u"C:\\W\\a.bin.0"_s);
    ExpectCopyFailed(u"C:\\W\\a.bin.0"_s);
    Split();
    EXPECT_EQ(Count(), u"Split Count: Finished (0 Files)"_s);
    EXPECT_EQ(Tree(), (QStringList{u"a.bin"_s, u"a.bin.bat"_s}));
}

TEST_F(FileSplitFailure, ANegativeChunkHasNoRoom)
{
    Choose(u"C:\\W\\a.bin"_s, 100);
    page.cmbSplitSize.SetText(u"-1"_s);
    ExpectCopyFailed(u"C:\\W\\a.bin.1"_s);
    ExpectCopyFailed(u"a.bin.1"_s);
    Split();
    EXPECT_EQ(Count(), u"Split Count: Finished (0 Files)"_s);
}

TEST_F(FileSplitFailure, NoRoomForAPartIsToldAndTheRunGoesOn)
{
    Choose(u"C:\\W\\a.bin"_s, 100);
    LeftOpen leftOpen;
    machine.dialogs.ExpectBox(
        {u"Out of memory, Try with another size"_s, u"Tressel"_s, BoxIcon::Exclamation});
    ExpectCopyFailed(u"C:\\W\\a.bin.1"_s);
    ExpectCopyFailed(u"a.bin.1"_s);
    FileSplit run(context, page, leftOpen,
                  [](qint64) -> QByteArray { throw Failure(FailureNumber::OutOfMemory); });
    EXPECT_TRUE(run.SplitFiles(u"C:\\W\\a.bin"_s, 1024));
    EXPECT_EQ(Count(), u"Split Count: Finished (0 Files)"_s);
    EXPECT_EQ(Status(), u"Finished"_s);
    EXPECT_EQ(Tree(), (QStringList{u"a.bin"_s, u"a.bin.bat"_s}));
}

TEST_F(FileSplitFailure, RoomIsAskedForOneByteMoreThanAPart)
{
    Choose(u"C:\\W\\a.bin"_s, 2500);
    LeftOpen leftOpen;
    QList<qint64> asked;
    FileSplit run(context, page, leftOpen, [&](qint64 bytes) {
        asked += bytes;
        return QByteArray(bytes, Qt::Uninitialized);
    });
    run.SplitFiles(u"C:\\W\\a.bin"_s, 1000);
    EXPECT_EQ(asked, QList<qint64>{1001});
    EXPECT_EQ(Parts(u"C:\\W\\a.bin"_s), Contents(2500));
}

TEST(MakeRoom, FailsWhereThereIsNoSuchRoom)
{
    EXPECT_EQ(MakeRoom(10).size(), 10);
    EXPECT_THROW(MakeRoom(-1), Failure);
    EXPECT_THROW(MakeRoom(std::numeric_limits<qint64>::max() / 2), Failure);
}

TEST_F(FileSplitFailure, TheSourceMayGrowInMidRun)
{
    Choose(u"C:\\W\\a.bin"_s, 1500);
    machine.events.At(
        3, [&] { machine.files.Open(u"C:\\W\\a.bin"_s, OpenFor::Appending)->Write(QByteArray(2000, 'x')); });
    Split();
    EXPECT_EQ(Parts(u"C:\\W\\a.bin"_s), Contents(1500) + QByteArray(2000, 'x'));
    EXPECT_EQ(Count(), u"Split Count: Finished (4 Files)"_s);
    EXPECT_EQ(page.ctlProgress1.Value(), 1500);
}

TEST_F(FileSplitFailure, TheSourceMayShrinkInMidRun)
{
    Choose(u"C:\\W\\a.bin"_s, 2500);
    machine.events.At(1, [&] { machine.files.Open(u"C:\\W\\a.bin"_s, OpenFor::Writing)->Close(); });
    Split();
    EXPECT_EQ(Parts(u"C:\\W\\a.bin"_s), Contents(1024));
    EXPECT_EQ(Count(), u"Split Count: Finished (1 Files)"_s);
}

TEST_F(FileSplitFailure, PastTheLastPartNumberEachChunkIsToldAndWrittenOver)
{
    constexpr int most = 32767;
    Choose(u"C:\\W\\a"_s, most + 2);
    CutByCount(QString::number(most + 2));
    ExpectCopyFailed(u"C:\\W\\a.0"_s);
    ExpectCopyFailed(u"C:\\W\\a.0"_s);
    ExpectCopyFailed(u"a.32767"_s);
    ExpectCopyFailed(u"a.32767"_s);
    ExpectCopyFailed(u"a.32767"_s);
    machine.events.At(2, [&] { EXPECT_EQ(Count(), u"Split Count: 1 of 0"_s); });
    Split();
    EXPECT_EQ(Bytes(u"C:\\W\\a.32766"_s), Contents(most + 2).mid(most - 2, 1));
    EXPECT_EQ(Bytes(u"C:\\W\\a.32767"_s), Contents(most + 2).right(1));
    EXPECT_FALSE(machine.files.Exists(u"C:\\W\\a.32768"_s));
    EXPECT_EQ(Count(), u"Split Count: Finished (32766 Files)"_s);
}

TEST_F(FileSplitFailure, ProgressBeyondThirtyTwoBitsIsToldAndTheRunGoesOn)
{
    Choose(u"C:\\W\\a.bin"_s, 100);
    machine.events.At(1, [&] { page.ctlProgress1.SetValue(std::numeric_limits<std::int32_t>::max()); });
    ExpectCopyFailed(u"a.bin.1"_s);
    Split();
    EXPECT_EQ(Parts(u"C:\\W\\a.bin"_s), Contents(100));
}

TEST_F(FileSplitFailure, AChoiceInMidRunOpensTheButtons)
{
    Choose(u"C:\\W\\a.bin"_s, 100);
    machine.events.At(1, [&] {
        page.cboFileName.UserSelects(0);
        EXPECT_TRUE(page.btnGBSplitFile.IsEnabled());
    });
    Split();
    EXPECT_EQ(Count(), u"Split Count: Finished (1 Files)"_s);
}

} // namespace
