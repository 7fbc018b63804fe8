// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/splitter/FileSplit.h"

#include "SplitterFixture.h"
#include "tools/splitter/SplitRules.h"

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

class FileSplitTest : public SplitterFixture {
protected:
    void ExpectQuestion(const QString &pieces, BoxAnswer answer)
    {
        machine.dialogs.ExpectBox(
            {u"Are you sure you want to break this file up into "_s + pieces + u" pieces?"_s,
             u"Are you sure?"_s, BoxIcon::Question, BoxButtons::YesNo},
            answer);
    }
};

TEST_F(FileSplitTest, CutsAFileIntoPartsAndABatchFile)
{
    Choose(u"C:\\W\\movie.avi"_s, 2500);
    Split();
    EXPECT_EQ(Tree(),
              (QStringList{u"movie.avi"_s, u"movie.avi.1"_s, u"movie.avi.2"_s, u"movie.avi.3"_s,
                           u"movie.avi.bat"_s}));
    EXPECT_EQ(Parts(u"C:\\W\\movie.avi"_s), Contents(2500));
    EXPECT_EQ(Bytes(u"C:\\W\\movie.avi.1"_s).size(), 1024);
    EXPECT_EQ(Bytes(u"C:\\W\\movie.avi.3"_s).size(), 452);
    EXPECT_EQ(Count(), u"Split Count: Finished (3 Files)"_s);
    EXPECT_EQ(Status(), u"Finished"_s);
    EXPECT_EQ(page.ctlProgress1.Caption(), u"Finished Splitting"_s);
    EXPECT_EQ(page.ctlProgress1.CaptionStyle(), CaptionStyle::Caption);
    EXPECT_EQ(page.ctlProgress1.Max(), 2500);
    EXPECT_EQ(page.ctlProgress1.Value(), 2500);
    EXPECT_FALSE(machine.events.IsBusy());
}

TEST_F(FileSplitTest, TheBatchFileOfThreePartsToTheByte)
{
    Choose(u"C:\\W\\movie.avi"_s, 2500);
    Split();
    EXPECT_EQ(Bytes(u"C:\\W\\movie.avi.bat"_s),
              "@ECHO OFF\r\n"
              "ECHO Joining Files...\r\n"
              "IF EXIST \"movie.avi\" DEL \"movie.avi\"\r\n"
              "COPY \"movie.avi.1\" \"movie.avi\"\r\n"
              "COPY /B \"movie.avi\"+\"movie.avi.2\"+\"movie.avi.3\"\r\n"
              "ECHO Done!\r\n");
    page.chkDeleteParts.SetChecked(true);
    Split();
    EXPECT_EQ(Bytes(u"C:\\W\\movie.avi.bat"_s),
              "@ECHO OFF\r\n"
              "ECHO Joining Files...\r\n"
              "IF EXIST \"movie.avi\" DEL \"movie.avi\"\r\n"
              "COPY /B \"movie.avi.1\"+\"movie.avi.2\"+\"movie.avi.3\"\r\n"
              "DEL \"movie.avi.2\"\r\n"
              "DEL \"movie.avi.3\"\r\n"
              "REN \"movie.avi.1\" \"movie.avi\"\r\n"
              "DEL \"movie.avi.bat\"\r\n"
              "ECHO Done!\r\n");
}

TEST_F(FileSplitTest, TheBatchFileOfOnePartToTheByte)
{
    Choose(u"C:\\W\\a b%.bin"_s, 1);
    Split();
    EXPECT_EQ(Bytes(u"C:\\W\\a b%.bin.bat"_s),
              "@ECHO OFF\r\n"
              "ECHO Joining Files...\r\n"
              "IF EXIST \"a b%.bin\" DEL \"a b%.bin\"\r\n"
              "COPY \"a b%.bin.1\" \"a b%.bin\"\r\n"
              "ECHO Done!\r\n");
    page.chkDeleteParts.SetChecked(true);
    Split();
    EXPECT_EQ(Bytes(u"C:\\W\\a b%.bin.bat"_s),
              "@ECHO OFF\r\n"
              "ECHO Joining Files...\r\n"
              "IF EXIST \"a b%.bin\" DEL \"a b%.bin\"\r\n"
              "REN \"a b%.bin.1\" \"a b%.bin\"\r\n"
              "DEL \"a b%.bin.bat\"\r\n"
              "ECHO Done!\r\n");
}

TEST_F(FileSplitTest, AnEmptyFileGivesTheBatchFileAlone)
{
    Choose(u"C:\\W\\empty.bin"_s, 0);
    Split();
    EXPECT_EQ(Tree(), (QStringList{u"empty.bin"_s, u"empty.bin.bat"_s}));
    EXPECT_EQ(Bytes(u"C:\\W\\empty.bin.bat"_s),
              "@ECHO OFF\r\n"
              "ECHO Joining Files...\r\n"
              "IF EXIST \"empty.bin\" DEL \"empty.bin\"\r\n"
              "COPY \"empty.bin.1\" \"empty.bin\"\r\n"
              "ECHO Done!\r\n");
    EXPECT_EQ(Count(), u"Split Count: Finished (0 Files)"_s);
}

TEST_F(FileSplitTest, AnExactMultipleHasNoEmptyLastPart)
{
    Choose(u"C:\\W\\a.bin"_s, 3072);
    Split();
    EXPECT_EQ(Tree(), (QStringList{u"a.bin"_s, u"a.bin.1"_s, u"a.bin.2"_s, u"a.bin.3"_s, u"a.bin.bat"_s}));
    EXPECT_EQ(Bytes(u"C:\\W\\a.bin.3"_s).size(), 1024);
}

TEST_F(FileSplitTest, ACountCanGiveOnePartMore)
{
    Choose(u"C:\\W\\a.bin"_s, 10);
    CutByCount(u"3"_s);
    Split();
    EXPECT_EQ(Count(), u"Split Count: Finished (4 Files)"_s);
    EXPECT_EQ(Bytes(u"C:\\W\\a.bin.4"_s).size(), 1);
    EXPECT_EQ(Parts(u"C:\\W\\a.bin"_s), Contents(10));
}

TEST_F(FileSplitTest, TheWatchHearsOfEachFile)
{
    Choose(u"C:\\W\\a.bin"_s, 1500);
    machine.files.PutFile(u"C:\\W\\a.bin.2"_s, "old");
    Split();
    EXPECT_EQ(watch.lines,
              (QStringList{u"started 2"_s, u"made C:\\W\\a.bin.1"_s, u"removed C:\\W\\a.bin.2"_s,
                           u"made C:\\W\\a.bin.2"_s, u"made C:\\W\\a.bin.bat"_s}));
}

TEST_F(FileSplitTest, EachPartIsFlushedBeforeItIsClosed)
{
    Choose(u"C:\\W\\a.bin"_s, 1500);
    machine.journal.Clear();
    Split();
    const QStringList lines = machine.journal.Lines();
    const qsizetype write = lines.indexOf(u"WriteBytes C:\\W\\a.bin.1 1024"_s);
    ASSERT_GE(write, 0);
    EXPECT_EQ(lines.mid(write + 1, 2),
              (QStringList{u"FlushFile C:\\W\\a.bin.1"_s, u"CloseFile C:\\W\\a.bin.1"_s}));
    EXPECT_EQ(machine.journal.About(u"FlushFile"_s), (QStringList{u"C:\\W\\a.bin.1"_s, u"C:\\W\\a.bin.2"_s}));
}

TEST_F(FileSplitTest, APartInTheWayGoesAndALaterOneStays)
{
    Choose(u"C:\\W\\a.bin"_s, 2500);
    machine.files.PutFile(u"C:\\W\\a.bin.3"_s, QByteArray(5000, 'x'));
    machine.files.PutFile(u"C:\\W\\a.bin.4"_s, "old");
    Split();
    EXPECT_EQ(Bytes(u"C:\\W\\a.bin.3"_s).size(), 452);
    EXPECT_EQ(Bytes(u"C:\\W\\a.bin.4"_s), "old");
}

TEST_F(FileSplitTest, ALinkInAPartsPlaceGoesAndItsTargetStays)
{
    Choose(u"C:\\W\\a.bin"_s, 1500);
    machine.files.PutFile(u"C:\\Keep\\letter"_s, "mine");
    machine.files.PutLink(u"C:\\W\\a.bin.1"_s, u"C:\\Keep\\letter"_s);
    machine.files.PutLink(u"C:\\W\\a.bin.2"_s, u"C:\\Keep\\none"_s);
    machine.files.PutLink(u"C:\\W\\a.bin.bat"_s, u"C:\\Keep\\letter"_s);
    Split();
    EXPECT_EQ(machine.files.Tree(u"C:\\Keep"_s), QStringList{u"letter"_s});
    EXPECT_EQ(Bytes(u"C:\\Keep\\letter"_s), "mine");
    EXPECT_EQ(Parts(u"C:\\W\\a.bin"_s), Contents(1500));
    EXPECT_EQ(machine.files.Status(u"C:\\W\\a.bin.1"_s, Links::Keep)->kind, EntryKind::File);
}

TEST_F(FileSplitTest, ALinkThatCannotGoIsNotWrittenThrough)
{
    Choose(u"C:\\W\\a.bin"_s, 100);
    machine.files.PutFile(u"C:\\Keep\\letter"_s, "mine");
    machine.files.PutLink(u"C:\\W\\a.bin.1"_s, u"C:\\Keep\\letter"_s);
    machine.files.FailAt(Operation::RemoveFile, u"C:\\W\\a.bin.1"_s, 1, FailureNumber::PathFileAccessError);
    ExpectCopyFailed(u"a.bin.1"_s);
    Split();
    EXPECT_EQ(Count(), u"Split Count: Write Error"_s);
    EXPECT_EQ(Bytes(u"C:\\Keep\\letter"_s), "mine");
}

TEST_F(FileSplitTest, APartThatCannotGoIsWrittenOver)
{
    Choose(u"C:\\W\\a.bin"_s, 100);
    machine.files.PutFile(u"C:\\W\\a.bin.1"_s, QByteArray(150, 'x'));
    machine.files.FailAt(Operation::RemoveFile, u"C:\\W\\a.bin.1"_s, 1, FailureNumber::PathFileAccessError);
    ExpectCopyFailed(u"a.bin.1"_s);
    Split();
    EXPECT_EQ(Count(), u"Split Count: Finished (1 Files)"_s);
    EXPECT_EQ(Bytes(u"C:\\W\\a.bin.1"_s), Contents(100) + QByteArray(50, 'x'));
}

TEST_F(FileSplitTest, TenPiecesAreCutUnasked)
{
    Choose(u"C:\\W\\a.bin"_s, 10 * 1024);
    Split();
    EXPECT_EQ(Count(), u"Split Count: Finished (10 Files)"_s);
}

TEST_F(FileSplitTest, ElevenPiecesAreCutIfTheUserSaysYes)
{
    Choose(u"C:\\W\\a.bin"_s, 10 * 1024 + 1);
    ExpectQuestion(u"11"_s, BoxAnswer::Yes);
    Split();
    EXPECT_EQ(Count(), u"Split Count: Finished (11 Files)"_s);
}

TEST_F(FileSplitTest, ANoLeavesEverythingButTheStatus)
{
    Choose(u"C:\\W\\a.bin"_s, 11 * 1024);
    ExpectQuestion(u"11"_s, BoxAnswer::No);
    Split();
    EXPECT_EQ(Tree(), QStringList{u"a.bin"_s});
    EXPECT_EQ(Status(), u"Wait working..."_s);
    EXPECT_EQ(page.lblStart.Caption(), u"Start Time:"_s);
    EXPECT_TRUE(page.btnGBSplitFile.IsEnabled());
    EXPECT_FALSE(machine.events.IsBusy());
}

TEST_F(FileSplitTest, WithNoneOrTwoInTheListNobodyIsAsked)
{
    machine.files.PutFile(u"C:\\W\\a.bin"_s, Contents(11 * 1024));
    page.cboFileName.SetText(u"C:\\W\\a.bin"_s);
    Split();
    EXPECT_EQ(Count(), u"Split Count: Finished (11 Files)"_s);
    machine.files.PutFile(u"C:\\W\\b.bin"_s, Contents(12 * 1024));
    Queue({u"C:\\W\\a.bin"_s, u"C:\\W\\b.bin"_s});
    Split();
    EXPECT_EQ(Count(), u"Split Count: Finished (12 Files)"_s);
}

TEST_F(FileSplitTest, AQueueIsCutFromItsFirstToItsLast)
{
    machine.files.PutFile(u"C:\\W\\a.bin"_s, Contents(1000));
    machine.files.PutFile(u"C:\\W\\b.bin"_s, Contents(600));
    machine.files.PutFile(u"C:\\X\\c.bin"_s, Contents(90));
    Queue({u"C:\\W\\a.bin"_s, u"C:\\W\\b.bin"_s, u"C:\\X\\c.bin"_s});
    CutByCount(u"2"_s);
    Split();
    EXPECT_EQ(Tree(),
              (QStringList{u"a.bin"_s, u"a.bin.1"_s, u"a.bin.2"_s, u"a.bin.bat"_s, u"b.bin"_s, u"b.bin.1"_s,
                           u"b.bin.2"_s, u"b.bin.bat"_s}));
    EXPECT_EQ(Bytes(u"C:\\W\\b.bin.1"_s).size(), 300);
    EXPECT_EQ(Parts(u"C:\\X\\c.bin"_s), Contents(90));
    EXPECT_EQ(page.cboFileName.ListIndex(), 2);
    EXPECT_EQ(page.cboFileName.Text(), u"C:\\X\\c.bin"_s);
}

TEST_F(FileSplitTest, AQueueMeetsAFileThatHasGone)
{
    machine.files.PutFile(u"C:\\W\\a.bin"_s, Contents(10));
    Queue({u"C:\\W\\gone.bin"_s, u"C:\\W\\a.bin"_s});
    ExpectCopyFailed(u"C:\\W\\gone.bin.0"_s);
    Split();
    // Opening makes the file that isn't there.
    EXPECT_EQ(Bytes(u"C:\\W\\gone.bin"_s), QByteArray());
    EXPECT_EQ(Parts(u"C:\\W\\a.bin"_s), Contents(10));
    EXPECT_EQ(Count(), u"Split Count: Finished (1 Files)"_s);
}

TEST_F(FileSplitTest, AQueueByCountEndsTheProgramAtAFileThatHasGone)
{
    machine.files.PutFile(u"C:\\W\\a.bin"_s, Contents(10));
    Queue({u"C:\\W\\gone.bin"_s, u"C:\\W\\a.bin"_s});
    CutByCount(u"2"_s);
    QList<int> fatal;
    form.SetFatalHandler([&](const Failure &failure) { fatal += failure.Number(); });
    Split();
    EXPECT_EQ(fatal, QList<int>{53});
}

TEST_F(FileSplitTest, AQueueMeetsAFolderThatHasGone)
{
    machine.files.PutFile(u"C:\\W\\a.bin"_s, Contents(10));
    Queue({u"C:\\Gone\\b.bin"_s, u"C:\\W\\a.bin"_s});
    session.CurrentFolder = u"C:\\W"_s;
    ExpectCopyFailed(u"C:\\Gone\\b.bin.0"_s);
    ExpectCopyFailed(u"C:\\Gone\\b.bin.1"_s);
    Split();
    EXPECT_EQ(Tree(), (QStringList{u"a.bin"_s, u"a.bin.1"_s, u"a.bin.bat"_s, u"b.bin"_s, u"b.bin.bat"_s}));
}

TEST_F(FileSplitTest, TheFolderOfTheFileBecomesTheCurrentOne)
{
    Choose(u"C:\\W\\a.bin"_s, 10);
    page.chkOpenExplorer.SetChecked(true);
    Split();
    EXPECT_EQ(session.CurrentFolder, u"C:\\W\\"_s);
    EXPECT_EQ(machine.journal.About(u"BrowseFolder"_s), QStringList{u"C:\\W\\"_s});
}

TEST_F(FileSplitTest, ANameWithoutAFolderIsOfTheCurrentOne)
{
    machine.files.PutFile(u"C:\\W\\a.bin"_s, Contents(10));
    session.CurrentFolder = u"C:\\W"_s;
    page.cboFileName.UserEdits(u"a.bin"_s);
    Split();
    EXPECT_EQ(Tree(), (QStringList{u"a.bin"_s, u"a.bin.1"_s, u"a.bin.bat"_s}));
    EXPECT_EQ(session.CurrentFolder, u"C:\\W"_s);
}

TEST_F(FileSplitTest, NoWindowOpensUnlessAsked)
{
    Choose(u"C:\\W\\a.bin"_s, 10);
    Split();
    EXPECT_EQ(machine.journal.Count(u"BrowseFolder"_s), 0);
}

TEST_F(FileSplitTest, ThePageIsShutWhileItRuns)
{
    Choose(u"C:\\W\\a.bin"_s, 1500);
    bool wasShut = false;
    machine.events.At(1, [&] {
        wasShut = IsShut();
        EXPECT_EQ(Status(), u"Wait working..."_s);
        EXPECT_EQ(page.ctlProgress1.Caption(), u"Splitting"_s);
        EXPECT_EQ(page.ctlProgress1.CaptionStyle(), CaptionStyle::PercentWithoutCaption);
        EXPECT_EQ(page.ctlProgress1.Max(), 1500);
        EXPECT_EQ(page.ctlProgress1.Value(), 0);
    });
    machine.events.At(2, [&] {
        EXPECT_EQ(Count(), u"Split Count: 1 of 2"_s);
        EXPECT_EQ(page.ctlProgress1.Value(), 1024);
    });
    Split();
    EXPECT_TRUE(wasShut);
    // A read, and a write and a read for each part.
    EXPECT_EQ(machine.events.Calls(), 5);
    EXPECT_TRUE(page.cmbSplitSize.IsEnabled() && page.optSplit.Button(0).IsEnabled());
    EXPECT_FALSE(page.txtSplitCount.IsEnabled());
    EXPECT_TRUE(page.btnGBSplitFile.IsEnabled() && page.btnGBJoinFile.IsEnabled());
}

TEST_F(FileSplitTest, ACutByCountOpensItsFieldAgain)
{
    Choose(u"C:\\W\\a.bin"_s, 10);
    CutByCount(u"2"_s);
    Split();
    EXPECT_TRUE(page.txtSplitCount.IsEnabled() && page.optSplit.Button(1).IsEnabled());
    EXPECT_FALSE(page.cmbSplitSize.IsEnabled());
}

TEST_F(FileSplitTest, StatisticsTellStartFinishAndTime)
{
    Choose(u"C:\\W\\a.bin"_s, 10);
    const QDateTime start = machine.clock.Now();
    machine.events.At(2, [&] { machine.clock.Advance(1234); });
    Split();
    EXPECT_EQ(page.lblStart.Caption(), u"Start Time: "_s + DateTimeText(start));
    EXPECT_EQ(page.lblFinish.Caption(), u"Finish Time: "_s + DateTimeText(start.addMSecs(1234)));
    EXPECT_EQ(page.lblElapsed.Caption(), u"Elapsed Time: 1.23 seconds"_s);
}

TEST_F(FileSplitTest, ARunOverMidnightTakesNegativeTime)
{
    Choose(u"C:\\W\\a.bin"_s, 10);
    machine.clock.Set(QDateTime(QDate(2004, 3, 31), QTime(23, 59, 59, 500)));
    machine.events.At(1, [&] { machine.clock.Advance(1000); });
    Split();
    EXPECT_EQ(page.lblElapsed.Caption(), u"Elapsed Time: -86399.00 seconds"_s);
}

} // namespace
