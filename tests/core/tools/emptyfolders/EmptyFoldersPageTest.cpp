// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/emptyfolders/EmptyFoldersPage.h"

#include "support/Failures.h"
#include "support/MemoryMachine.h"
#include "support/Text.h"
#include "support/ToolBench.h"

#include <gtest/gtest.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

/// The page after a search that found C:\W\a, C:\W\b and C:\W\c.
class EmptyFoldersPageTest : public testing::Test {
protected:
    EmptyFoldersPageTest()
    {
        for (const QString &folder : {u"C:\\W\\a"_s, u"C:\\W\\b"_s, u"C:\\W\\c"_s})
            machine.files.PutFolder(folder);
        page.DirListRemove.SetPath(u"C:\\W"_s);
        page.btnGBToolbarSearch.UserClicks();
        machine.journal.Clear();
    }

    void AnswerDeleteAll(BoxAnswer answer)
    {
        machine.dialogs.ExpectBox({u"Are you sure you want to delete all empty folders"_s, u"Tressel"_s,
                                   BoxIcon::None, BoxButtons::YesNo},
                                  answer);
        page.btnGBToolbarDeleteAll.UserClicks();
    }
    void DeleteCurrent(int index, BoxAnswer answer)
    {
        page.ListRemove.UserSelects(index);
        machine.dialogs.ExpectBox({u"Are you sure you want to delete "_s + page.ListRemove.Text() + u'?',
                                   u"Remove Directory"_s, BoxIcon::Question, BoxButtons::YesNo},
                                  answer);
        page.btnGBToolbarDelDir.UserClicks();
    }
    void ExpectSelectionBox()
    {
        machine.dialogs.ExpectBox({u"Please select a directory."_s, u"Error"_s, BoxIcon::Information});
    }
    QList<bool> FoundButtons() const
    {
        return {page.btnGBToolbarOpenDir.IsEnabled(), page.btnGBToolbarDelDir.IsEnabled(),
                page.btnGBToolbarDeleteAll.IsEnabled(), page.btnGBToolbarCopy.IsEnabled()};
    }
    QString Status() const { return bench.area.lblStatusLine.Caption(); }

    const QList<bool> allOn{true, true, true, true};
    const QList<bool> allOff{false, false, false, false};
    MemoryMachine machine;
    ToolBench bench{machine.machine};
    EmptyFoldersPage page{bench.context};
};

TEST_F(EmptyFoldersPageTest, AClickShowsTheFolderInTheStatusLine)
{
    page.ListRemove.UserSelects(1);
    EXPECT_EQ(Status(), u"C:\\W\\b\\"_s);
    EXPECT_EQ(page.GetSelectedFolder(), u"C:\\W\\b\\"_s);
}

TEST_F(EmptyFoldersPageTest, TheRowUnderThePointerIsTheToolTip)
{
    page.ListRemove.UserPointsAt(2);
    EXPECT_EQ(page.ListRemove.ToolTip(), u" C:\\W\\c\\ "_s);
    page.ListRemove.UserPointsAt(-1);
    EXPECT_EQ(page.ListRemove.ToolTip(), QString());
}

TEST_F(EmptyFoldersPageTest, DeleteAllRemovesWhatIsListed)
{
    machine.events.At(2, [&] { EXPECT_EQ(Status(), u"Found 1"_s); });
    AnswerDeleteAll(BoxAnswer::Yes);
    EXPECT_EQ(machine.files.Tree(u"C:\\W"_s), QStringList());
    EXPECT_EQ(page.ListRemove.ListCount(), 0);
    EXPECT_EQ(Status(), u"Found 0"_s);
    EXPECT_EQ(FoundButtons(), allOff);
}

TEST_F(EmptyFoldersPageTest, NoKeepsTheListAndTurnsTheButtonsOff)
{
    AnswerDeleteAll(BoxAnswer::No);
    EXPECT_EQ(page.ListRemove.ListCount(), 3);
    EXPECT_EQ(machine.files.Tree(u"C:\\W"_s).size(), 3);
    EXPECT_EQ(Status(), u"I'm Finished"_s);
    EXPECT_EQ(FoundButtons(), allOff);
}

TEST_F(EmptyFoldersPageTest, AFailedRemovalEndsDeleteAllWithoutAWord)
{
    machine.files.PutFile(u"C:\\W\\b\\new"_s, "mine");
    AnswerDeleteAll(BoxAnswer::Yes);
    EXPECT_EQ(page.ListRemove.Items(), (QStringList{u"C:\\W\\b\\"_s, u"C:\\W\\c\\"_s}));
    EXPECT_EQ(machine.files.Bytes(u"C:\\W\\b\\new"_s), "mine");
    EXPECT_TRUE(machine.files.Exists(u"C:\\W\\c"_s));
    EXPECT_EQ(Status(), u"Found 1"_s);
    EXPECT_EQ(FoundButtons(), allOn);
}

TEST_F(EmptyFoldersPageTest, OneKindOfFailureIsPassedOver)
{
    machine.files.FailAt(Operation::RemoveFolder, u"C:\\W\\a"_s, 1, static_cast<FailureNumber>(419));
    AnswerDeleteAll(BoxAnswer::Yes);
    EXPECT_EQ(page.ListRemove.ListCount(), 0);
    EXPECT_EQ(machine.files.Tree(u"C:\\W"_s), QStringList{u"a\\"_s});
}

TEST_F(EmptyFoldersPageTest, DelCurrentSelectsANeighbour)
{
    DeleteCurrent(0, BoxAnswer::Yes);
    EXPECT_EQ(page.ListRemove.Items(), (QStringList{u"C:\\W\\b\\"_s, u"C:\\W\\c\\"_s}));
    EXPECT_EQ(page.ListRemove.ListIndex(), 0);
    EXPECT_EQ(Status(), u"C:\\W\\b\\"_s);
    DeleteCurrent(1, BoxAnswer::Yes);
    EXPECT_EQ(page.ListRemove.ListIndex(), 0);
    EXPECT_EQ(FoundButtons(), allOn);
    DeleteCurrent(0, BoxAnswer::Yes);
    EXPECT_EQ(page.ListRemove.ListCount(), 0);
    EXPECT_EQ(Status(), u"Ready"_s);
    EXPECT_EQ(FoundButtons(), allOff);
    EXPECT_EQ(machine.files.Tree(u"C:\\W"_s), QStringList());
}

TEST_F(EmptyFoldersPageTest, DelCurrentAsksFirst)
{
    DeleteCurrent(1, BoxAnswer::No);
    EXPECT_EQ(page.ListRemove.ListCount(), 3);
    EXPECT_TRUE(machine.files.Exists(u"C:\\W\\b"_s));
}

TEST_F(EmptyFoldersPageTest, DelCurrentWithoutASelectionSelectsTheFirst)
{
    ExpectSelectionBox();
    page.btnGBToolbarDelDir.UserClicks();
    EXPECT_EQ(page.ListRemove.ListIndex(), 0);
    EXPECT_EQ(machine.files.Tree(u"C:\\W"_s).size(), 3);
}

TEST_F(EmptyFoldersPageTest, AFailedDelCurrentKeepsTheItemWithoutAWord)
{
    machine.files.PutFile(u"C:\\W\\b\\new"_s, "mine");
    DeleteCurrent(1, BoxAnswer::Yes);
    EXPECT_EQ(page.ListRemove.ListCount(), 3);
    EXPECT_EQ(page.ListRemove.ListIndex(), 1);
    EXPECT_EQ(machine.files.Bytes(u"C:\\W\\b\\new"_s), "mine");
}

TEST_F(EmptyFoldersPageTest, OpenDirOpensTheSelectedFolder)
{
    ExpectSelectionBox();
    page.btnGBToolbarOpenDir.UserClicks();
    EXPECT_EQ(page.ListRemove.ListIndex(), -1);
    page.ListRemove.UserSelects(0);
    page.btnGBToolbarOpenDir.UserClicks();
    EXPECT_EQ(machine.journal.About(u"Open"_s), QStringList{u"C:\\W\\a\\"_s});
}

TEST_F(EmptyFoldersPageTest, ADoubleClickMarksTheButtonAndOpensTheFolder)
{
    page.ListRemove.UserSelects(2);
    page.ListRemove.UserActivates(2);
    EXPECT_TRUE(page.btnGBToolbarOpenDir.Value());
    EXPECT_EQ(machine.journal.About(u"Open"_s), QStringList{u"C:\\W\\c\\"_s});
}

TEST_F(EmptyFoldersPageTest, ADoubleClickOpensTheFolderWhereTheButtonIsOff)
{
    AnswerDeleteAll(BoxAnswer::No);
    page.ListRemove.UserSelects(2);
    page.ListRemove.UserActivates(2);
    EXPECT_FALSE(page.btnGBToolbarOpenDir.Value());
    EXPECT_EQ(machine.journal.About(u"Open"_s), QStringList{u"C:\\W\\c\\"_s});
}

TEST_F(EmptyFoldersPageTest, ClipboardTakesTheWholeList)
{
    const int before = machine.events.Calls();
    page.btnGBToolbarCopy.UserClicks();
    EXPECT_EQ(machine.clipboard.Text(), u"C:\\W\\a\\\r\nC:\\W\\b\\\r\nC:\\W\\c\\\r\n"_s);
    EXPECT_EQ(Status(), u"Total Directory Copy to clipboard is:  3"_s);
    EXPECT_EQ(machine.events.Calls() - before, 3);
}

TEST_F(EmptyFoldersPageTest, ClipboardCountsIn16Bits)
{
    QStringList items;
    for (int number = 0; number < 32767; ++number)
        items += u"C:\\x\\"_s;
    page.ListRemove.SetItems(items);
    page.btnGBToolbarCopy.Click.Raise();
    EXPECT_EQ(machine.clipboard.Text().size(), 32767 * 7);

    page.ListRemove.AddItem(u"C:\\x\\"_s);
    machine.clipboard.SetText(u"before"_s);
    EXPECT_EQ(NumberThrownBy([&] { page.btnGBToolbarCopy.Click.Raise(); }), FailureNumber::Overflow);
    EXPECT_EQ(machine.clipboard.Text(), u"before"_s);
}

TEST_F(EmptyFoldersPageTest, EachButtonClicksButForTheList)
{
    bench.options.OptSound.Select(0);
    ExpectSelectionBox();
    page.btnGBToolbarOpenDir.UserClicks();
    page.btnGBToolbarCopy.UserClicks();
    AnswerDeleteAll(BoxAnswer::No);
    page.ListRemove.UserSelects(0);
    EXPECT_EQ(machine.journal.Count(u"Play"_s), 3);
}

TEST_F(EmptyFoldersPageTest, ADriveThatIsNotReadyIsFatal)
{
    machine.files.AddDrive(u'D');
    page.DrvListRemove.Refresh();
    machine.files.SetReady(u'D', false);
    EXPECT_EQ(NumberThrownBy([&] { page.DrvListRemove.SetListIndex(1); }), FailureNumber::PathNotFound);
}

} // namespace
