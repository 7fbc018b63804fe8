// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/erase/FileErasure.h"

#include "machine/posix/PosixFileSystem.h"
#include "support/Failures.h"
#include "support/MemoryMachine.h"
#include "support/TemporaryFolder.h"
#include "support/Text.h"
#include "support/ToolBench.h"
#include "tools/erase/ErasePage.h"

#include <QLocale>

#include <gtest/gtest.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

class FileErasureTest : public testing::Test {
protected:
    FileErasureTest() { bench.options.OptSound.Select(0); }

    void PutInList(const QString &path, const QByteArray &bytes)
    {
        machine.files.PutFile(path, bytes);
        page.lstErase.AddItem(path);
    }
    MessageBox FolderBox(const QString &path) const
    {
        return {u"Folders ''"_s + path + u"'' cannot erased !!!"_s, u"Tressel"_s, BoxIcon::Exclamation};
    }
    /// What stands in a file of so many blocks before it goes.
    QByteArray TwoLines(int blocks) const
    {
        const QString date = QLocale().toString(machine.clock.Now().date(), QLocale::ShortFormat);
        return "Erased by Tressel, the maker of many folders\r\nTimes to overwrite current files "
            + QByteArray::number(blocks) + " and secure deleted " + date.toUtf8() + "\r\n";
    }
    int BlocksWritten(const QString &path) const
    {
        int count = 0;
        for (const JournalEntry &entry : machine.journal.Entries())
            count += entry.what == u"WriteBytes" && entry.about == path && entry.detail == u"4096";
        return count / 2;
    }

    MemoryMachine machine;
    ToolBench bench{machine.machine};
    ErasePage page{bench.context};
};

struct BlockCount {
    qint64 length;
    std::int32_t blocks;
};

TEST(BlocksToErase, TheLastBlockIsWholeAndAMultipleGetsOneMore)
{
    for (const BlockCount &row : {BlockCount{0, 1},
                                  {1, 1},
                                  {4095, 1},
                                  {4096, 2},
                                  {4097, 2},
                                  {5000, 2},
                                  {8192, 3},
                                  {qint64(3) << 30, (3 << 18) + 1}})
        EXPECT_EQ(BlocksToErase(row.length), row.blocks) << row.length;
}

TEST(BlocksToErase, CountsIn32Bits)
{
    constexpr qint64 most = qint64(2147483647) * 4096 - 1;
    EXPECT_EQ(BlocksToErase(most), 2147483647);
    EXPECT_EQ(NumberThrownBy([] { BlocksToErase(most + 1); }), FailureNumber::Overflow);
}

TEST_F(FileErasureTest, EveryFileIsOverwrittenInWholeBlocksAndDeleted)
{
    for (const BlockCount &row : {BlockCount{0, 1}, {1, 1}, {4095, 1}, {4096, 2}, {4097, 2}, {8192, 3}}) {
        machine.journal.Clear();
        PutInList(u"C:\\W\\f"_s, QByteArray(row.length, 'a'));
        page.btnGBErase.SetEnabled(true);
        page.btnGBErase.UserClicks();
        EXPECT_EQ(BlocksWritten(u"C:\\W\\f"_s), row.blocks) << row.length;
        EXPECT_FALSE(machine.files.Exists(u"C:\\W\\f"_s));
        EXPECT_EQ(page.lstErase.ListCount(), 0);
    }
}

TEST_F(FileErasureTest, EachBlockTakesTheFirstPatternAndThenTheSecond)
{
    PutInList(u"C:\\W\\f"_s, QByteArray(5000, 'a'));
    QList<QByteArray> seen;
    for (int call = 1; call <= 2; ++call)
        machine.events.At(call, [&] { seen += machine.files.Bytes(u"C:\\W\\f"_s); });
    // Between the two patterns: the second write of the first block fails.
    page.run.WipeFileClean(u"C:\\W\\f"_s);
    ASSERT_EQ(seen.size(), 2);
    EXPECT_EQ(seen.at(0), QByteArray(5000, 'a'));
    EXPECT_EQ(seen.at(1), QByteArray(4096, ' ') + QByteArray(904, 'a'));

    machine.files.PutFile(u"C:\\W\\g"_s, QByteArray(5000, 'a'));
    machine.files.FailAt(Operation::WriteBytes, u"C:\\W\\g"_s, 2, FailureNumber::DeviceIoError);
    page.run.WipeFileClean(u"C:\\W\\g"_s);
    EXPECT_EQ(machine.files.Bytes(u"C:\\W\\g"_s), QByteArray(4096, 'X') + QByteArray(904, 'a'));
}

TEST_F(FileErasureTest, StepsComeInTheirOrder)
{
    PutInList(u"C:\\W\\f"_s, "secret");
    machine.journal.Clear();
    page.run.WipeFileClean(u"C:\\W\\f"_s);
    QStringList steps;
    for (const JournalEntry &entry : machine.journal.Entries()) {
        if (entry.about == u"C:\\W\\f")
            steps += entry.what;
    }
    EXPECT_EQ(steps,
              (QStringList{u"OpenForWriting"_s, u"CloseFile"_s, u"OpenForWriting"_s, u"WriteBytes"_s,
                           u"WriteBytes"_s, u"CloseFile"_s, u"OpenForWriting"_s, u"ResizeFile"_s,
                           u"WriteBytes"_s, u"CloseFile"_s, u"RemoveFile"_s}));
}

TEST_F(FileErasureTest, TwoLinesStandInTheFileUntilItGoes)
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German));
    PutInList(u"C:\\W\\f"_s, QByteArray(5000000, 'a'));
    machine.files.FailAt(Operation::RemoveFile, u"C:\\W\\f"_s, 1, FailureNumber::PermissionDenied);
    page.run.WipeFileClean(u"C:\\W\\f"_s);
    EXPECT_EQ(QString::fromUtf8(machine.files.Bytes(u"C:\\W\\f"_s)),
              u"Erased by Tressel, the maker of many folders\r\n"
              "Times to overwrite current files 1,221 and secure deleted 31.03.04\r\n"_s);
    QLocale::setDefault(before);
}

TEST_F(FileErasureTest, BarAndLabelTellTheBlocks)
{
    PutInList(u"C:\\W\\f"_s, QByteArray(4096 * 2, 'a'));
    machine.events.At(3, [&] {
        EXPECT_EQ(page.ProgrBar.Max(), 3);
        EXPECT_EQ(page.ProgrBar.Value(), 2);
        EXPECT_EQ(page.lblOverwrite.Caption(), u"Times to overwrite current files 3"_s);
    });
    page.run.WipeFileClean(u"C:\\W\\f"_s);
    EXPECT_EQ(page.ProgrBar.Value(), 0);
    EXPECT_EQ(machine.events.Calls(), 3);
}

TEST_F(FileErasureTest, AFolderGetsTheBoxAndTheRunGoesOn)
{
    machine.files.PutFolder(u"C:\\W\\folder"_s);
    page.lstErase.AddItem(u"C:\\W\\folder"_s);
    PutInList(u"C:\\W\\f"_s, "x");
    machine.dialogs.ExpectBox(FolderBox(u"C:\\W\\folder"_s));
    page.run.EraseList();
    EXPECT_TRUE(machine.files.Exists(u"C:\\W\\folder"_s));
    EXPECT_FALSE(machine.files.Exists(u"C:\\W\\f"_s));
    EXPECT_EQ(page.lstErase.ListCount(), 0);
    EXPECT_EQ(page.lblEraseMessage.Caption(), u"Successfully Deleted"_s);
    EXPECT_EQ(page.lblEraseMessage.ForeColor(), 0x0000FFU);
    EXPECT_EQ(page.lblOverwrite.Caption(), u"Ready"_s);
    EXPECT_EQ(machine.journal.About(u"Play"_s), QStringList{u"C:\\Tressel\\click.wav"_s});
}

TEST_F(FileErasureTest, ALinkIsNoFileAndItsTargetStays)
{
    machine.files.PutFile(u"C:\\W\\target"_s, "mine");
    machine.files.PutLink(u"C:\\W\\link"_s, u"C:\\W\\target"_s);
    machine.dialogs.ExpectBox(FolderBox(u"C:\\W\\link"_s));
    page.run.WipeFileClean(u"C:\\W\\link"_s);
    EXPECT_EQ(machine.files.Bytes(u"C:\\W\\target"_s), "mine");
    EXPECT_TRUE(machine.files.Exists(u"C:\\W\\link"_s));
}

TEST_F(FileErasureTest, AFileThatHasGoneIsSilentAndNotMade)
{
    machine.files.PutFolder(u"C:\\W"_s);
    page.lblEraseMessage.SetForeColor(0x0000FF);
    page.lblEraseMessage.SetCaption({});
    page.run.WipeFileClean(u"C:\\W\\gone"_s);
    EXPECT_FALSE(machine.files.Exists(u"C:\\W\\gone"_s));
    EXPECT_EQ(page.lblEraseMessage.Caption(), u"Drag and drop files into list"_s);
    EXPECT_EQ(page.lblEraseMessage.ForeColor(), NumberOf(SystemColour::ButtonText));
}

TEST_F(FileErasureTest, AFileHeldByAnotherStaysAsItIs)
{
    PutInList(u"C:\\W\\f"_s, "mine");
    machine.files.HoldByAnother(u"C:\\W\\f"_s);
    page.run.EraseList();
    EXPECT_EQ(machine.files.Bytes(u"C:\\W\\f"_s), "mine");
}

TEST_F(FileErasureTest, AFailureLeavesBarAndLabelAsTheyWere)
{
    PutInList(u"C:\\W\\f"_s, QByteArray(8192, 'a'));
    machine.files.FailAt(Operation::WriteBytes, u"C:\\W\\f"_s, 3, FailureNumber::DiskFull);
    page.run.WipeFileClean(u"C:\\W\\f"_s);
    EXPECT_EQ(page.ProgrBar.Value(), 1);
    EXPECT_EQ(page.lblOverwrite.Caption(), u"Times to overwrite current files 3"_s);
    EXPECT_EQ(machine.files.Bytes(u"C:\\W\\f"_s), QByteArray(4096, ' ') + QByteArray(4096, 'a'));
}

struct LeftBehind {
    Operation operation;
    int nth;
    QByteArray bytes;
};

TEST_F(FileErasureTest, AFailureAtEachStepLeavesWhatIsTold)
{
    const QByteArray old(5000, 'a');
    const QByteArray blanks(8192, ' ');
    const QList<LeftBehind> rows{
        {Operation::OpenForWriting, 1, old},
        {Operation::WriteBytes, 1, old},
        {Operation::WriteBytes, 2, QByteArray(4096, 'X') + QByteArray(904, 'a')},
        {Operation::WriteBytes, 3, QByteArray(4096, ' ') + QByteArray(904, 'a')},
        {Operation::WriteBytes, 4, QByteArray(4096, ' ') + QByteArray(4096, 'X')},
        {Operation::CloseFile, 1, old},
        {Operation::OpenForWriting, 2, old},
        {Operation::CloseFile, 2, blanks},
        {Operation::OpenForWriting, 3, blanks},
        {Operation::ResizeFile, 1, blanks},
        {Operation::WriteBytes, 5, {}},
        {Operation::CloseFile, 3, TwoLines(2)},
        {Operation::RemoveFile, 1, TwoLines(2)},
    };
    for (const LeftBehind &row : rows) {
        Form other(u"other"_s);
        ErasePage fresh{bench.On(other)};
        machine.files.PutFile(u"C:\\W\\f"_s, old);
        machine.files.FailAt(row.operation, u"C:\\W\\f"_s, row.nth, FailureNumber::DeviceIoError);
        fresh.run.WipeFileClean(u"C:\\W\\f"_s);
        EXPECT_EQ(machine.files.Bytes(u"C:\\W\\f"_s), row.bytes)
            << qPrintable(OperationName(row.operation)) << ' ' << row.nth;
        machine.files.FailNoMore();
    }
}

TEST_F(FileErasureTest, TheSecondFailedFileTakesTheNumberThatAllOthersNeed)
{
    for (const QString &name : {u"C:\\W\\a"_s, u"C:\\W\\b"_s, u"C:\\W\\c"_s})
        PutInList(name, "x");
    for (const QString &name : {u"C:\\W\\a"_s, u"C:\\W\\b"_s})
        machine.files.FailAt(Operation::WriteBytes, name, 1, FailureNumber::DeviceIoError);
    page.run.EraseList();
    // The third is overwritten and stays.
    EXPECT_EQ(machine.files.Bytes(u"C:\\W\\c"_s), QByteArray(4096, ' '));
    EXPECT_EQ(page.lblEraseMessage.Caption(), u"Successfully Deleted"_s);
}

TEST_F(FileErasureTest, OneFailedFileDoesNotStopTheOthers)
{
    PutInList(u"C:\\W\\a"_s, "x");
    PutInList(u"C:\\W\\b"_s, "x");
    machine.files.FailAt(Operation::WriteBytes, u"C:\\W\\a"_s, 1, FailureNumber::DeviceIoError);
    page.run.EraseList();
    EXPECT_TRUE(machine.files.Exists(u"C:\\W\\a"_s));
    EXPECT_FALSE(machine.files.Exists(u"C:\\W\\b"_s));
}

TEST_F(FileErasureTest, ASecondRunMayStartInTheMiddleOfTheFirst)
{
    PutInList(u"C:\\W\\a"_s, QByteArray(5000, 'a'));
    PutInList(u"C:\\W\\b"_s, "b");
    page.btnGBErase.SetEnabled(true);
    machine.events.At(2, [&] { page.btnGBErase.UserClicks(); });
    page.btnGBErase.UserClicks();
    EXPECT_EQ(machine.files.Tree(u"C:\\W"_s), QStringList());
    EXPECT_EQ(page.lstErase.ListCount(), 0);
    EXPECT_TRUE(page.btnGBErase.IsEnabled());
}

TEST_F(FileErasureTest, AListedFileLeavesTheListThoughItFailed)
{
    PutInList(u"C:\\W\\f"_s, "x");
    machine.files.FailAt(Operation::OpenForWriting, u"C:\\W\\f"_s, 1, FailureNumber::PermissionDenied);
    page.run.EraseList();
    EXPECT_EQ(page.lstErase.ListCount(), 0);
    EXPECT_TRUE(machine.files.Exists(u"C:\\W\\f"_s));
}

} // namespace
