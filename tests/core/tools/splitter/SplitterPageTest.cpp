// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "SplitterFixture.h"

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

class SplitterPageTest : public SplitterFixture {
protected:
    QString EstimatedCount() const { return page.lblEstFileCount[1].Caption(); }
    QString EstimatedSize() const { return page.lblEstFileSize[1].Caption(); }
    void Browse(const QString &path)
    {
        machine.dialogs.ExpectOpenFile(path);
        page.btnBrowse.UserClicks();
    }
};

/// A file system in which each file tells one length.
class LengthyFiles : public MemoryFileSystem {
public:
    LengthyFiles(Journal &journal, const Clock &clock, qint64 length)
        : MemoryFileSystem(journal, clock)
        , length(length)
    {
    }
    std::optional<FileStatus> Status(const QString &path, Links links) override
    {
        auto status = MemoryFileSystem::Status(path, links);
        if (status && status->kind == EntryKind::File)
            status->length = length;
        return status;
    }

private:
    qint64 length;
};

TEST_F(SplitterPageTest, StandsAtTheSizeAndWithItsButtonsOpen)
{
    EXPECT_TRUE(page.optSplit.IsSelected(SplitterPage::FileSize));
    EXPECT_TRUE(page.lblSplitSize.IsEnabled() && page.cmbSplitSize.IsEnabled());
    EXPECT_FALSE(page.lblSplitCount.IsEnabled() || page.txtSplitCount.IsEnabled());
    EXPECT_TRUE(page.btnGBSplitFile.IsEnabled() && page.btnGBJoinFile.IsEnabled());
    EXPECT_TRUE(page.btnBrowse.IsEnabled());
    EXPECT_EQ(page.cboFileName.ToolTip(), u" For Clear the list Set cursor in list and push F12 "_s);
}

TEST_F(SplitterPageTest, TheCutOpensItsOwnField)
{
    page.optSplit.Button(1).UserSelects();
    EXPECT_TRUE(page.lblSplitCount.IsEnabled() && page.txtSplitCount.IsEnabled());
    EXPECT_FALSE(page.lblSplitSize.IsEnabled() || page.cmbSplitSize.IsEnabled());
    page.optSplit.Button(0).UserSelects();
    EXPECT_FALSE(page.lblSplitCount.IsEnabled() || page.txtSplitCount.IsEnabled());
    EXPECT_TRUE(page.lblSplitSize.IsEnabled() && page.cmbSplitSize.IsEnabled());
}

TEST_F(SplitterPageTest, EachButtonAnswersWithTheClickSound)
{
    options.OptSound.Select(0);
    machine.dialogs.ExpectOpenFile(std::nullopt);
    page.btnBrowse.UserClicks();
    ExpectReadError(u"File Not Found ()"_s);
    Split();
    ExpectReadError(u"File Not Found ()"_s);
    // The box before has shut it.
    page.btnGBJoinFile.SetEnabled(true);
    Join();
    EXPECT_EQ(machine.journal.Count(u"Play"_s), 3);
    EXPECT_EQ(machine.journal.About(u"Play"_s).first(), u"C:\\Tressel\\click.wav"_s);
}

TEST_F(SplitterPageTest, AChosenFileJoinsTheListAndBecomesTheText)
{
    machine.files.PutFile(u"C:\\W\\movie.avi"_s, Contents(2500));
    settings.Write(keys::InitDir, u"C:\\W"_s);
    Browse(u"C:\\W\\movie.avi"_s);
    EXPECT_EQ(page.cboFileName.Items(), QStringList{u"C:\\W\\movie.avi"_s});
    EXPECT_EQ(page.cboFileName.Text(), u"C:\\W\\movie.avi"_s);
    EXPECT_EQ(EstimatedCount(), u"3"_s);
    EXPECT_EQ(settings.ReadText(keys::InitDir), u"C:\\W\\"_s);
    const FileDialogRequest request = machine.dialogs.FileRequests().constFirst();
    EXPECT_EQ(request.filter, u"All Files (*.*)|*.*"_s);
    EXPECT_EQ(request.folder, u"C:\\W"_s);
}

TEST_F(SplitterPageTest, AFileChosenTwiceIsInTheListOnce)
{
    machine.files.PutFile(u"C:\\W\\a.bin"_s);
    machine.files.PutFile(u"C:\\W\\b.bin"_s);
    Browse(u"C:\\W\\a.bin"_s);
    Browse(u"C:\\W\\b.bin"_s);
    Browse(u"C:\\W\\a.bin"_s);
    EXPECT_EQ(page.cboFileName.Items(), (QStringList{u"C:\\W\\a.bin"_s, u"C:\\W\\b.bin"_s}));
    EXPECT_EQ(page.cboFileName.Text(), u"C:\\W\\a.bin"_s);
}

TEST_F(SplitterPageTest, APartStandsForItsFile)
{
    Browse(u"C:\\W\\movie.avi.1"_s);
    EXPECT_EQ(page.cboFileName.Text(), u"C:\\W\\movie.avi"_s);
    Browse(u"C:\\W\\report.001"_s);
    EXPECT_EQ(page.cboFileName.Text(), u"C:\\W\\report"_s);
    Browse(u"C:\\W\\2004"_s);
    EXPECT_EQ(page.cboFileName.Text(), u"C:\\W\\2004"_s);
    EXPECT_EQ(page.cboFileName.ListCount(), 3);
}

TEST_F(SplitterPageTest, NothingComesOfACancelledDialog)
{
    settings.Write(keys::InitDir, u"C:\\W"_s);
    machine.dialogs.ExpectOpenFile(std::nullopt);
    page.btnBrowse.UserClicks();
    EXPECT_EQ(page.cboFileName.ListCount(), 0);
    EXPECT_EQ(settings.ReadText(keys::InitDir), u"C:\\W"_s);
}

TEST_F(SplitterPageTest, NothingComesOfAFileThatHasGone)
{
    Browse(u"C:\\W\\gone.avi"_s);
    EXPECT_EQ(page.cboFileName.ListCount(), 0);
    EXPECT_EQ(settings.ReadText(keys::InitDir), QString());
}

TEST_F(SplitterPageTest, AFileOverTwoGigabytesIsRefused)
{
    for (const qint64 length : {2LL << 30, 5LL << 30}) {
        LengthyFiles files(machine.journal, machine.clock, length);
        files.PutFile(u"C:\\W\\big.iso"_s);
        SplitterTool tool(machine.With(files));
        machine.dialogs.ExpectOpenFile(u"C:\\W\\big.iso"_s);
        machine.dialogs.ExpectBox(
            {u"This file is over 2 GB and for big to split, tip! use winzip or something to split up"_s,
             u"Tressel"_s, BoxIcon::Exclamation});
        tool.page.btnBrowse.UserClicks();
        EXPECT_EQ(tool.page.cboFileName.ListCount(), 0);
        EXPECT_EQ(tool.page.cboFileName.Text(), QString());
        EXPECT_EQ(tool.settings.ReadText(keys::InitDir), u"C:\\W\\"_s);
    }
}

TEST_F(SplitterPageTest, F12ClearsTheQueue)
{
    Choose(u"C:\\W\\a.bin"_s, 3000);
    EXPECT_FALSE(page.cboFileName.UserPressesKey(122));
    EXPECT_EQ(page.cboFileName.ListCount(), 1);
    EXPECT_TRUE(page.cboFileName.UserPressesKey(123));
    EXPECT_EQ(page.cboFileName.ListCount(), 0);
    EXPECT_EQ(page.cboFileName.Text(), QString());
    EXPECT_EQ(EstimatedCount(), u"0"_s);
    EXPECT_EQ(EstimatedSize(), u"0"_s);
}

TEST_F(SplitterPageTest, EstimatesBySize)
{
    Choose(u"C:\\W\\a.bin"_s, 2500);
    EXPECT_EQ(EstimatedCount(), u"3"_s);
    EXPECT_EQ(EstimatedSize(), u"1 Kilobytes"_s);
    page.cmbSplitSize.UserEdits(u"2"_s);
    EXPECT_EQ(EstimatedCount(), u"2"_s);
    EXPECT_EQ(EstimatedSize(), u"2 Kilobytes"_s);
    page.cmbSplitSize.SetItems({u"5"_s, u"10"_s});
    page.cmbSplitSize.UserSelects(1);
    EXPECT_EQ(EstimatedCount(), u"1"_s);
    EXPECT_EQ(EstimatedSize(), u"10 Kilobytes"_s);
}

TEST_F(SplitterPageTest, EstimatesOfASizeThatIsNoneShutTheButton)
{
    Choose(u"C:\\W\\a.bin"_s, 2500);
    page.cmbSplitSize.UserEdits(u"much"_s);
    EXPECT_EQ(EstimatedCount(), u"0"_s);
    EXPECT_EQ(EstimatedSize(), u"0"_s);
    EXPECT_FALSE(page.btnGBSplitFile.IsEnabled());
    page.cmbSplitSize.UserEdits(u"1"_s);
    EXPECT_TRUE(page.btnGBSplitFile.IsEnabled());
}

TEST_F(SplitterPageTest, EstimatesOverlookAFailure)
{
    Choose(u"C:\\W\\a.bin"_s, 2500);
    for (const QString &size : {u"0"_s, u"2097152"_s}) {
        page.cmbSplitSize.UserEdits(size);
        EXPECT_EQ(EstimatedCount(), u"0"_s);
        EXPECT_EQ(EstimatedSize(), size + u" Kilobytes"_s);
        EXPECT_TRUE(page.btnGBSplitFile.IsEnabled());
    }
}

TEST_F(SplitterPageTest, EstimatesByCount)
{
    Choose(u"C:\\W\\a.bin"_s, 3 << 20);
    CutByCount(u" 2 "_s);
    EXPECT_EQ(page.txtSplitCount.Text(), u"2"_s);
    EXPECT_EQ(EstimatedCount(), u"2"_s);
    EXPECT_EQ(EstimatedSize(), u"1.5 MB (1536. kB)"_s);
    page.txtSplitCount.UserEdits(u"0"_s);
    EXPECT_EQ(EstimatedCount(), u"0"_s);
    EXPECT_EQ(EstimatedSize(), u"0"_s);
    EXPECT_TRUE(page.btnGBSplitFile.IsEnabled());
    page.txtSplitCount.UserEdits(u"two"_s);
    EXPECT_EQ(EstimatedCount(), u"0"_s);
    EXPECT_FALSE(page.btnGBSplitFile.IsEnabled());
}

TEST_F(SplitterPageTest, EstimatesOfAFileThatIsNotThereShutTheButton)
{
    Choose(u"C:\\W\\a.bin"_s, 2500);
    page.cboFileName.UserEdits(u"C:\\W\\b.bin"_s);
    EXPECT_FALSE(page.btnGBSplitFile.IsEnabled());
    EXPECT_EQ(EstimatedCount(), u"0"_s);
    page.cboFileName.UserEdits(u"C:\\W\\a.bin"_s);
    EXPECT_TRUE(page.btnGBSplitFile.IsEnabled());
    // Without a text the button stays as it is.
    page.cboFileName.UserEdits(QString());
    EXPECT_TRUE(page.btnGBSplitFile.IsEnabled());
    EXPECT_EQ(EstimatedCount(), u"0"_s);
}

TEST_F(SplitterPageTest, AChoiceInTheListSetsBothButtons)
{
    machine.files.PutFile(u"C:\\W\\a.bin"_s, "a");
    machine.files.PutFile(u"C:\\W\\b.bin.1"_s, "b");
    Queue({u"C:\\W\\a.bin"_s, u"C:\\W\\b.bin"_s, u"C:\\W\\none"_s});
    page.cboFileName.UserSelects(0);
    EXPECT_TRUE(page.btnGBSplitFile.IsEnabled());
    EXPECT_FALSE(page.btnGBJoinFile.IsEnabled());
    page.cboFileName.UserSelects(1);
    EXPECT_FALSE(page.btnGBSplitFile.IsEnabled());
    EXPECT_TRUE(page.btnGBJoinFile.IsEnabled());
    page.cboFileName.UserSelects(2);
    EXPECT_FALSE(page.btnGBSplitFile.IsEnabled());
    EXPECT_FALSE(page.btnGBJoinFile.IsEnabled());
}

TEST_F(SplitterPageTest, ATypedTextLeavesTheJoinButtonAlone)
{
    machine.files.PutFile(u"C:\\W\\b.bin.1"_s, "b");
    page.btnGBJoinFile.SetEnabled(false);
    page.cboFileName.UserEdits(u"C:\\W\\b.bin"_s);
    EXPECT_FALSE(page.btnGBJoinFile.IsEnabled());
    EXPECT_FALSE(page.btnGBSplitFile.IsEnabled());
}

TEST_F(SplitterPageTest, NothingToSplitIsToldAndSetsTheButtons)
{
    page.cboFileName.UserEdits(u"C:\\W\\none.bin"_s);
    page.btnGBSplitFile.SetEnabled(true);
    ExpectReadError(u"File Not Found (C:\\W\\none.bin)"_s);
    Split();
    EXPECT_FALSE(page.btnGBSplitFile.IsEnabled());
    EXPECT_FALSE(page.btnGBJoinFile.IsEnabled());
    EXPECT_EQ(Status(), u"Ready"_s);
}

TEST_F(SplitterPageTest, AFolderIsNothingToSplit)
{
    machine.files.PutFolder(u"C:\\W\\sub"_s);
    page.cboFileName.UserEdits(u"C:\\W\\sub"_s);
    page.btnGBSplitFile.SetEnabled(true);
    ExpectReadError(u"File Not Found (C:\\W\\sub)"_s);
    Split();
}

TEST_F(SplitterPageTest, ASizeThatIsNoneIsToldAndGetsTheKeyboard)
{
    Choose(u"C:\\W\\a.bin"_s, 10);
    page.cmbSplitSize.SetText(u"much"_s);
    page.btnGBSplitFile.SetEnabled(true);
    ExpectReadError(u"Please specify a valid split size!"_s);
    Split();
    EXPECT_EQ(form.TakeFocused(), &page.cmbSplitSize);
}

TEST_F(SplitterPageTest, ACountThatIsNoneIsToldAndGetsTheKeyboard)
{
    Choose(u"C:\\W\\a.bin"_s, 10);
    CutByCount(u"two"_s);
    page.btnGBSplitFile.SetEnabled(true);
    ExpectReadError(u"Please specify a valid number of files!"_s);
    Split();
    EXPECT_EQ(form.TakeFocused(), &page.txtSplitCount);
}

TEST_F(SplitterPageTest, WhatCannotBeWorkedOutEndsTheProgram)
{
    QList<int> fatal;
    form.SetFatalHandler([&](const Failure &failure) { fatal += failure.Number(); });
    Choose(u"C:\\W\\a.bin"_s, 10);
    page.cmbSplitSize.SetText(u"2097152"_s);
    Split();
    CutByCount(u"0"_s);
    Split();
    EXPECT_EQ(fatal, (QList<int>{6, 11}));
    EXPECT_EQ(Tree(), QStringList{u"a.bin"_s});
}

TEST_F(SplitterPageTest, NothingToJoinIsToldUnderTheNameOfTheOutput)
{
    page.cboFileName.UserEdits(u"C:\\W\\movie.avi"_s);
    ExpectReadError(u"File Not Found (C:\\W\\movie.avi)"_s);
    Join();
    EXPECT_FALSE(page.btnGBJoinFile.IsEnabled());
}

} // namespace
