// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/splitter/FileJoin.h"

#include "SplitterFixture.h"
#include "machine/CopiedAtOnce.h"
#include "tools/splitter/SplitRules.h"

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

/// The parts of C:\W\m.avi lie there, and their file is chosen.
class FileJoinTest : public SplitterFixture {
protected:
    FileJoinTest()
    {
        form.SetFatalHandler([this](const Failure &failure) { fatal += failure.Number(); });
        page.cboFileName.UserEdits(target);
    }
    void PutParts(const QList<QByteArray> &parts)
    {
        for (qsizetype index = 0; index < parts.size(); ++index)
            machine.files.PutFile(PartName(target, index + 1), parts.at(index));
    }
    void ExpectQuestion(BoxAnswer answer)
    {
        machine.dialogs.ExpectBox({u"Output file (C:\\W\\m.avi) already exists.\r"
                                   "Are you sure you want to overwrite it?"_s,
                                   u"Overwrite Warning"_s, BoxIcon::Question, BoxButtons::YesNo},
                                  answer);
    }

    const QString target = u"C:\\W\\m.avi"_s;
    QList<int> fatal;
};

TEST_F(FileJoinTest, PutsThePartsTogether)
{
    PutParts({"one-", "two-", "three"});
    area.lblStatusLine.SetCaption(u"before"_s);
    Join();
    EXPECT_EQ(Bytes(target), "one-two-three");
    EXPECT_EQ(Count(), u"File Count: Finished (3 Files)"_s);
    EXPECT_EQ(page.ctlProgress1.Caption(), u"Finished Joining"_s);
    EXPECT_EQ(page.ctlProgress1.CaptionStyle(), CaptionStyle::Caption);
    EXPECT_EQ(page.ctlProgress1.Max(), 13);
    EXPECT_EQ(page.ctlProgress1.Value(), 13);
    EXPECT_EQ(Status(), u"before"_s);
    EXPECT_FALSE(machine.events.IsBusy());
    EXPECT_EQ(Tree(), (QStringList{u"m.avi"_s, u"m.avi.1"_s, u"m.avi.2"_s, u"m.avi.3"_s}));
    EXPECT_EQ(watch.lines, (QStringList{u"started 3"_s, u"made C:\\W\\m.avi"_s}));
}

TEST_F(FileJoinTest, WhatASplitMadeComesTogetherAgain)
{
    page.cboFileName.AddItem(target);
    for (const qsizetype length : {1, 1023, 1024, 1025, 4096, 5000}) {
        machine.files.PutFile(target, Contents(length));
        page.cboFileName.UserSelects(0);
        Split();
        machine.files.RemoveFile(target);
        Join();
        EXPECT_EQ(Bytes(target), Contents(length)) << length;
        for (int part = 1; machine.files.Exists(PartName(target, part)); ++part)
            machine.files.RemoveFile(PartName(target, part));
    }
}

TEST_F(FileJoinTest, APartOfNoBytesIsPassed)
{
    PutParts({"one-", "", "three"});
    Join();
    EXPECT_EQ(Bytes(target), "one-three");
    EXPECT_EQ(Count(), u"File Count: Finished (3 Files)"_s);
}

TEST_F(FileJoinTest, AGapHidesAllLaterParts)
{
    PutParts({"one-", "two"});
    machine.files.PutFile(u"C:\\W\\m.avi.4"_s, "four");
    page.chkDeleteParts.SetChecked(true);
    Join();
    EXPECT_EQ(Bytes(target), "one-two");
    EXPECT_EQ(Tree(), (QStringList{u"m.avi"_s, u"m.avi.4"_s}));
}

TEST_F(FileJoinTest, PartsAndBatchFileGoIfTheyAreToGo)
{
    PutParts({"one-", "two"});
    machine.files.PutFile(u"C:\\W\\m.avi.bat"_s, "x");
    page.chkDeleteParts.SetChecked(true);
    machine.journal.Clear();
    Join();
    EXPECT_EQ(Tree(), QStringList{u"m.avi"_s});
    EXPECT_EQ(machine.journal.About(u"RemoveFile"_s),
              (QStringList{u"C:\\W\\m.avi.1"_s, u"C:\\W\\m.avi.2"_s, u"C:\\W\\m.avi.bat"_s}));
    // They go before the output is closed.
    const QStringList lines = machine.journal.Lines();
    EXPECT_LT(lines.indexOf(u"RemoveFile C:\\W\\m.avi.bat"_s), lines.indexOf(u"CloseFile C:\\W\\m.avi"_s));
    EXPECT_FALSE(page.btnGBJoinFile.IsEnabled());
    EXPECT_TRUE(page.btnGBSplitFile.IsEnabled());
}

TEST_F(FileJoinTest, TheBatchFileStaysWithTheParts)
{
    PutParts({"one"});
    machine.files.PutFile(u"C:\\W\\m.avi.bat"_s, "x");
    Join();
    EXPECT_EQ(Tree(), (QStringList{u"m.avi"_s, u"m.avi.1"_s, u"m.avi.bat"_s}));
}

TEST_F(FileJoinTest, TheOutputIsFlushedAfterEachPart)
{
    PutParts({"one-", "two"});
    Join();
    EXPECT_EQ(machine.journal.About(u"FlushFile"_s), (QStringList{target, target}));
    // Events run once a part.
    EXPECT_EQ(machine.events.Calls(), 2);
}

TEST_F(FileJoinTest, ThePageIsShutWhileItRuns)
{
    PutParts({"one-", "two"});
    machine.events.At(1, [&] {
        EXPECT_TRUE(IsShut());
        EXPECT_EQ(page.ctlProgress1.Caption(), u"Joining"_s);
        EXPECT_EQ(page.ctlProgress1.CaptionStyle(), CaptionStyle::PercentWithoutCaption);
        EXPECT_EQ(page.ctlProgress1.Max(), 7);
    });
    machine.events.At(2, [&] {
        EXPECT_EQ(Count(), u"Join Count: 1 of 2"_s);
        EXPECT_EQ(page.ctlProgress1.Value(), 4);
    });
    Join();
    EXPECT_TRUE(page.cmbSplitSize.IsEnabled() && page.optSplit.Button(0).IsEnabled());
    EXPECT_FALSE(page.txtSplitCount.IsEnabled());
}

TEST_F(FileJoinTest, StatisticsTellStartFinishAndTime)
{
    PutParts({"one"});
    const QDateTime start = machine.clock.Now();
    machine.events.At(1, [&] { machine.clock.Advance(250); });
    Join();
    EXPECT_EQ(page.lblStart.Caption(), u"Start Time: "_s + DateTimeText(start));
    EXPECT_EQ(page.lblFinish.Caption(), u"Finish Time: "_s + DateTimeText(start.addMSecs(250)));
    EXPECT_EQ(page.lblElapsed.Caption(), u"Elapsed Time: .25 seconds"_s);
}

TEST_F(FileJoinTest, TheWindowShowsTheFolderOfTheLastSplit)
{
    PutParts({"one"});
    session.CurrentFolder = u"C:\\Other"_s;
    page.chkOpenExplorer.SetChecked(true);
    Join();
    EXPECT_EQ(machine.journal.About(u"BrowseFolder"_s), QStringList{u"C:\\Other"_s});
    EXPECT_EQ(session.CurrentFolder, u"C:\\Other"_s);
}

TEST_F(FileJoinTest, ANoLeavesTheOldOutputAndAllElse)
{
    PutParts({"one"});
    machine.files.PutFile(target, "old");
    ExpectQuestion(BoxAnswer::No);
    Join();
    EXPECT_EQ(Count(), u"Join Count: Output File Exists"_s);
    EXPECT_EQ(Bytes(target), "old");
    EXPECT_EQ(page.lblStart.Caption(), u"Start Time:"_s);
    EXPECT_EQ(page.lblFinish.Caption(), u"Finish Time:"_s);
    EXPECT_EQ(page.lblElapsed.Caption(), u"Elapsed Time:"_s);
    EXPECT_TRUE(watch.lines.isEmpty());
}

TEST_F(FileJoinTest, AYesRemovesTheOldOutput)
{
    PutParts({"new"});
    machine.files.PutFile(target, "older and longer");
    ExpectQuestion(BoxAnswer::Yes);
    Join();
    EXPECT_EQ(Bytes(target), "new");
    EXPECT_EQ(watch.lines.first(), u"removed C:\\W\\m.avi"_s);
}

TEST_F(FileJoinTest, TheQuestionComesBeforeThePartsAreLookedFor)
{
    machine.files.PutFile(target, "old");
    LeftOpen leftOpen;
    ExpectQuestion(BoxAnswer::Yes);
    FileJoin(context, page, leftOpen).JoinFiles(target);
    EXPECT_EQ(Count(), u"Join Count: No Input Files"_s);
    EXPECT_EQ(Tree(), QStringList());
}

TEST_F(FileJoinTest, AnOutputThatIsAFolderIsAWriteError)
{
    PutParts({"one"});
    machine.files.PutFolder(target);
    Join();
    EXPECT_EQ(Count(), u"Join Count: Write Error"_s);
    EXPECT_TRUE(IsShut());
}

TEST_F(FileJoinTest, AnOutputThatIsALinkIsNotWrittenThrough)
{
    PutParts({"one"});
    machine.files.PutFile(u"C:\\Keep\\letter"_s, "mine");
    machine.files.PutLink(target, u"C:\\Keep\\none"_s);
    Join();
    EXPECT_EQ(Count(), u"Join Count: Write Error"_s);
    EXPECT_EQ(machine.files.Tree(u"C:\\Keep"_s), QStringList{u"letter"_s});
    machine.files.RemoveFile(target);
    machine.files.PutLink(target, u"C:\\Keep\\letter"_s);
    page.cboFileName.AddItem(target);
    page.cboFileName.UserSelects(0);
    ExpectQuestion(BoxAnswer::Yes);
    Join();
    EXPECT_EQ(Bytes(u"C:\\Keep\\letter"_s), "mine");
    EXPECT_EQ(Bytes(target), "one");
}

TEST_F(FileJoinTest, APartThatIsALinkGoesAndItsTargetStays)
{
    machine.files.PutFile(u"C:\\Keep\\part"_s, "kept");
    machine.files.PutLink(u"C:\\W\\m.avi.1"_s, u"C:\\Keep\\part"_s);
    page.chkDeleteParts.SetChecked(true);
    Join();
    EXPECT_EQ(Bytes(target), "kept");
    EXPECT_EQ(Tree(), QStringList{u"m.avi"_s});
    EXPECT_EQ(Bytes(u"C:\\Keep\\part"_s), "kept");
}

TEST_F(FileJoinTest, APartThatCannotBeOpenedLeavesThePageShut)
{
    PutParts({"one-", "two-", "three"});
    machine.files.HoldByAnother(u"C:\\W\\m.avi.2"_s);
    page.chkDeleteParts.SetChecked(true);
    Join();
    EXPECT_EQ(Count(), u"Join Count: Read Error"_s);
    EXPECT_TRUE(IsShut());
    EXPECT_EQ(Bytes(target), "one-");
    EXPECT_EQ(Tree(), (QStringList{u"m.avi"_s, u"m.avi.1"_s, u"m.avi.2"_s, u"m.avi.3"_s}));
    EXPECT_EQ(watch.lines.constLast(), u"failed 70 C:\\W\\m.avi.2"_s);
    // The output stays open.
    EXPECT_THROW(machine.files.RemoveFile(target), Failure);
}

TEST_F(FileJoinTest, AReadOnlyPartIsAReadError)
{
    PutParts({"one-", "two"});
    machine.files.SetReadOnly(u"C:\\W\\m.avi.2"_s, true);
    Join();
    EXPECT_EQ(Count(), u"Join Count: Read Error"_s);
}

TEST_F(FileJoinTest, AFullDiscAtEachWriteLeavesThePageShut)
{
    for (int part = 1; part <= 3; ++part) {
        SplitterMachine other;
        SplitterTool tool(other.machine.machine);
        for (int number = 1; number <= 3; ++number)
            other.machine.files.PutFile(PartName(target, number), "part");
        tool.page.cboFileName.UserEdits(target);
        tool.page.chkDeleteParts.SetChecked(true);
        other.machine.files.FailAt(Operation::WriteBytes, target, part, FailureNumber::DiskFull);
        tool.Join();
        EXPECT_EQ(tool.Count(), u"Join Count: Write Error"_s);
        EXPECT_FALSE(tool.page.btnGBJoinFile.IsEnabled());
        EXPECT_TRUE(other.machine.events.IsBusy());
        EXPECT_EQ(other.machine.files.Bytes(target), QByteArray("part").repeated(part - 1));
        // All parts are whole, and the one that was being written stays open with the output.
        EXPECT_EQ(other.machine.files.Tree(u"C:\\W"_s).size(), 4);
        EXPECT_THROW(other.machine.files.RemoveFile(PartName(target, part)), Failure);
        EXPECT_THROW(other.machine.files.RemoveFile(target), Failure);
    }
}

TEST_F(FileJoinTest, APartThatCannotBeReadIsZeros)
{
    PutParts({"one-", "two-", "three"});
    machine.files.FailAt(Operation::ReadBytes, u"C:\\W\\m.avi.2"_s, 1, FailureNumber::DeviceIoError);
    Join();
    EXPECT_EQ(Bytes(target), QByteArray("one-\0\0\0\0three", 13));
    EXPECT_EQ(Count(), u"File Count: Finished (3 Files)"_s);
    EXPECT_EQ(watch.lines.at(1), u"failed 57 C:\\W\\m.avi.2"_s);
}

TEST_F(FileJoinTest, APartThatCannotBeLookedAtIsNoEndOfTheParts)
{
    PutParts({"one-", "two-", "three"});
    machine.files.FailAt(Operation::Status, PartName(target, 2), 1, FailureNumber::DeviceIoError);
    Join();
    EXPECT_EQ(Bytes(target), "one-two-three");
    EXPECT_EQ(Count(), u"File Count: Finished (3 Files)"_s);
}

TEST_F(FileJoinTest, APartThatCannotBeReachedAtAllEndsTheProgram)
{
    PutParts({"one-", "two-", "three"});
    page.chkDeleteParts.SetChecked(true);
    machine.files.FailAt(Operation::Status, PartName(target, 2), 0, FailureNumber::DeviceIoError);
    machine.files.FailAt(Operation::OpenForReading, PartName(target, 2), 0, FailureNumber::DeviceIoError);
    Join();
    EXPECT_EQ(fatal, QList<int>{57});
    EXPECT_EQ(Tree(), (QStringList{u"m.avi.1"_s, u"m.avi.2"_s, u"m.avi.3"_s}));
}

TEST_F(FileJoinTest, RoomIsAskedForOneByteMoreThanThePart)
{
    PutParts({"one-", "", "three"});
    LeftOpen leftOpen;
    QList<qint64> asked;
    FileJoin(context, page, leftOpen, [&](qint64 bytes) {
        asked += bytes;
        return QByteArray(bytes, 'x');
    }).JoinFiles(target);
    EXPECT_EQ(asked, (QList<qint64>{5, 1, 6}));
    EXPECT_EQ(Bytes(target), "one-three");
}

TEST_F(FileJoinTest, PartsOfOneSizeShareTheirRoom)
{
    PutParts({"one-", "two-", "end"});
    LeftOpen leftOpen;
    QList<qint64> asked;
    FileJoin(context, page, leftOpen, [&](qint64 bytes) {
        asked += bytes;
        return QByteArray(bytes, 'x');
    }).JoinFiles(target);
    EXPECT_EQ(asked, (QList<qint64>{5, 4}));
    EXPECT_EQ(Bytes(target), "one-two-end");
}

TEST_F(FileJoinTest, WhatCannotBeReadIsZerosAlsoInRoomThatServedBefore)
{
    PutParts({"one-", "two-"});
    machine.files.FailAt(Operation::ReadBytes, PartName(target, 2), 1, FailureNumber::DeviceIoError);
    Join();
    EXPECT_EQ(Bytes(target), QByteArray("one-\0\0\0\0", 8));
}

TEST_F(FileJoinTest, PartsOfManyPiecesComeWhole)
{
    QList<QByteArray> parts;
    for (const qint64 length : {copiedAtOnce - 1, copiedAtOnce, copiedAtOnce + 1, 2 * copiedAtOnce + 5})
        parts += Contents(length);
    PutParts(parts);
    Join();
    EXPECT_TRUE(Bytes(target) == parts.join());
    EXPECT_EQ(Count(), u"File Count: Finished (4 Files)"_s);
}

TEST_F(FileJoinTest, APartThatFailsInItsMiddleIsZerosFromItsBeginningOn)
{
    const qsizetype length = 2 * copiedAtOnce + 5;
    PutParts({"one-", Contents(length), "three"});
    machine.files.FailAt(Operation::ReadBytes, PartName(target, 2), 2, FailureNumber::DeviceIoError);
    Join();
    EXPECT_TRUE(Bytes(target) == "one-" + QByteArray(length, '\0') + "three");
    EXPECT_EQ(Count(), u"File Count: Finished (3 Files)"_s);
    EXPECT_EQ(page.ctlProgress1.Max(), length + 9);
    EXPECT_EQ(watch.lines.at(1), u"failed 57 C:\\W\\m.avi.2"_s);
}

TEST_F(FileJoinTest, APartThatIsCutInItsMiddleIsZerosFromThereOn)
{
    const qsizetype length = 2 * copiedAtOnce + 5;
    const qsizetype left = copiedAtOnce + 7;
    PutParts({Contents(length), "two"});
    machine.files.DoBefore(Operation::ReadBytes, PartName(target, 1), 2,
                           [&] { machine.files.PutFile(PartName(target, 1), Contents(left)); });
    Join();
    EXPECT_TRUE(Bytes(target) == Contents(left) + QByteArray(length - left, '\0') + "two");
}

TEST_F(FileJoinTest, AFullDiscInTheMiddleOfAPartKeepsWhatWasWritten)
{
    PutParts({Contents(2 * copiedAtOnce)});
    machine.files.FailAt(Operation::WriteBytes, target, 2, FailureNumber::DiskFull);
    Join();
    EXPECT_EQ(Count(), u"Join Count: Write Error"_s);
    EXPECT_TRUE(IsShut());
    EXPECT_TRUE(Bytes(target) == Contents(copiedAtOnce));
}

TEST_F(FileJoinTest, NoRoomEndsTheProgram)
{
    PutParts({"one"});
    LeftOpen leftOpen;
    form.Dispatch([&] {
        FileJoin(context, page, leftOpen, [](qint64) -> QByteArray {
            throw Failure(FailureNumber::OutOfMemory);
        }).JoinFiles(target);
    });
    EXPECT_EQ(fatal, QList<int>{7});
}

TEST_F(FileJoinTest, APartThatCannotBeDeletedEndsTheProgram)
{
    PutParts({"one-", "two"});
    machine.files.FailAt(Operation::RemoveFile, u"C:\\W\\m.avi.2"_s, 1, FailureNumber::PathFileAccessError);
    page.chkDeleteParts.SetChecked(true);
    Join();
    EXPECT_EQ(fatal, QList<int>{75});
    EXPECT_EQ(Bytes(target), "one-two");
}

TEST_F(FileJoinTest, AnOutputThatCannotBeDeletedEndsTheProgram)
{
    PutParts({"one"});
    machine.files.PutFile(target, "old");
    machine.files.SetReadOnly(target, true);
    ExpectQuestion(BoxAnswer::Yes);
    Join();
    EXPECT_EQ(fatal, QList<int>{75});
    EXPECT_EQ(Bytes(target), "old");
}

TEST_F(FileJoinTest, MorePartsThanSixteenBitsCountEndTheProgram)
{
    for (int part = 1; part <= 32767; ++part)
        machine.files.PutFile(PartName(target, part), {});
    Join();
    EXPECT_EQ(fatal, QList<int>{6});
    EXPECT_FALSE(machine.files.Exists(target));
}

} // namespace
