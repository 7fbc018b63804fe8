// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/emptyfolders/EmptyFolderSearch.h"

#include "support/MemoryMachine.h"
#include "support/Text.h"
#include "support/ToolBench.h"
#include "tools/emptyfolders/EmptyFoldersPage.h"

#include <gtest/gtest.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

/// A search below C:\W, started and stopped by the page's one button.
class EmptyFolderSearchTest : public testing::Test {
protected:
    EmptyFolderSearchTest() { machine.files.PutFolder(u"C:\\W"_s); }

    void Search(const QString &root = u"C:\\W"_s)
    {
        page.DirListRemove.SetPath(root);
        page.btnGBToolbarSearch.UserClicks();
    }
    QStringList Found() const { return page.ListRemove.Items(); }
    void ExpectNothingFound()
    {
        machine.dialogs.ExpectBox({u"No empty directories found."_s, u"Finished"_s, BoxIcon::Information});
    }

    MemoryMachine machine;
    ToolBench bench{machine.machine};
    EmptyFoldersPage page{bench.context};
};

TEST_F(EmptyFolderSearchTest, ListsInnermostEmptyFoldersDepthFirst)
{
    for (const QString &folder : {u"C:\\W\\b\\x"_s, u"C:\\W\\a\\b\\c"_s, u"C:\\W\\c"_s})
        machine.files.PutFolder(folder);
    machine.files.PutFile(u"C:\\W\\b\\file"_s);
    Search();
    EXPECT_EQ(Found(), (QStringList{u"C:\\W\\a\\b\\c\\"_s, u"C:\\W\\b\\x\\"_s, u"C:\\W\\c\\"_s}));
}

TEST_F(EmptyFolderSearchTest, AnEmptyStartFolderIsListedItself)
{
    Search();
    EXPECT_EQ(Found(), QStringList{u"C:\\W\\"_s});
}

TEST_F(EmptyFolderSearchTest, ADriveRootGetsNoSecondSeparator)
{
    machine.files.AddDrive(u'D');
    Search(u"D:\\"_s);
    EXPECT_EQ(Found(), QStringList{u"D:\\"_s});
}

TEST_F(EmptyFolderSearchTest, HiddenEntriesAndLinksAreContent)
{
    machine.files.PutFile(u"C:\\W\\hidden\\.x"_s);
    machine.files.SetHidden(u"C:\\W\\hidden\\.x"_s);
    machine.files.PutFolder(u"C:\\W\\linked"_s);
    machine.files.PutFolder(u"C:\\Elsewhere"_s);
    machine.files.PutLink(u"C:\\W\\linked\\link"_s, u"C:\\Elsewhere"_s);
    ExpectNothingFound();
    Search();
    EXPECT_EQ(Found(), QStringList());
    EXPECT_EQ(bench.area.lblStatusLine.Caption(), u"I'm Finished"_s);
}

TEST_F(EmptyFolderSearchTest, AFolderThatCannotBeReadCountsAsEmpty)
{
    machine.files.PutFile(u"C:\\W\\closed\\file"_s);
    machine.files.PutFile(u"C:\\W\\file"_s);
    machine.files.FailAt(Operation::List, u"C:\\W\\closed"_s, 1, FailureNumber::PathFileAccessError);
    Search();
    EXPECT_EQ(Found(), QStringList{u"C:\\W\\closed\\"_s});
}

TEST_F(EmptyFolderSearchTest, BlanksOfANameStay)
{
    machine.files.PutFolder(u"C:\\W\\ a "_s);
    Search();
    EXPECT_EQ(Found(), QStringList{u"C:\\W\\ a \\"_s});
}

TEST_F(EmptyFolderSearchTest, TheButtonIsStopWhileItRuns)
{
    machine.files.PutFolder(u"C:\\W\\a"_s);
    machine.events.At(1, [&] {
        EXPECT_EQ(page.btnGBToolbarSearch.Caption(), u"Stop"_s);
        EXPECT_EQ(bench.area.lblStatusLine.Caption(), u"I'm Working"_s);
        EXPECT_FALSE(page.btnGBToolbarDeleteAll.IsEnabled());
    });
    Search();
    EXPECT_EQ(page.btnGBToolbarSearch.Caption(), u"Find Dir"_s);
    EXPECT_EQ(bench.area.lblStatusLine.Caption(), u"Found 1"_s);
    for (const IsButton *button : {&page.btnGBToolbarOpenDir, &page.btnGBToolbarDelDir,
                                   &page.btnGBToolbarDeleteAll, &page.btnGBToolbarCopy})
        EXPECT_TRUE(button->IsEnabled());
    EXPECT_EQ(page.DirListRemove.Path(), u"C:\\W"_s);
}

TEST_F(EmptyFolderSearchTest, TheFolderListFollowsTheWalk)
{
    machine.files.PutFolder(u"C:\\W\\a"_s);
    machine.files.PutFolder(u"C:\\W\\b"_s);
    QStringList paths;
    page.DirListRemove.Change.Also([&] { paths += page.DirListRemove.Path(); });
    Search();
    EXPECT_EQ(paths, (QStringList{u"C:\\W"_s, u"C:\\W\\a"_s, u"C:\\W\\b"_s, u"C:\\W"_s}));
}

TEST_F(EmptyFolderSearchTest, EventsRunAtEachFolderEntryAndFind)
{
    machine.files.PutFolder(u"C:\\W\\a"_s);
    machine.files.PutFile(u"C:\\W\\file"_s);
    Search();
    // The folder W, its two entries, the folder a, and a's being found.
    EXPECT_EQ(machine.events.Calls(), 5);
}

TEST_F(EmptyFolderSearchTest, StopAtEachPumpKeepsWhatWasFoundAndAddsNoMore)
{
    for (const QString &folder : {u"C:\\W\\a"_s, u"C:\\W\\b"_s, u"C:\\W\\c"_s})
        machine.files.PutFolder(folder);
    Search();
    const int calls = machine.events.Calls();
    for (int call = 1; call <= calls; ++call) {
        QStringList atStop;
        machine.events.At(call, [&] {
            page.btnGBToolbarSearch.UserClicks();
            atStop = Found();
            EXPECT_EQ(bench.area.lblStatusLine.Caption(), u"Found "_s + QString::number(atStop.size()));
            if (atStop.isEmpty())
                ExpectNothingFound();
        });
        Search();
        EXPECT_EQ(Found(), atStop) << call;
        EXPECT_EQ(page.btnGBToolbarSearch.Caption(), u"Find Dir"_s);
        EXPECT_EQ(page.btnGBToolbarOpenDir.IsEnabled(), !atStop.isEmpty());
    }
}

TEST_F(EmptyFolderSearchTest, AnEntryGoneOnTheWayBackEndsItsListing)
{
    for (const QString &folder : {u"C:\\W\\a"_s, u"C:\\W\\b"_s, u"C:\\X"_s})
        machine.files.PutFolder(folder);
    // W, its entry a, then a itself: gone while it is looked at.
    machine.events.At(4, [&] { EXPECT_FALSE(machine.files.TryRemoveFolder(u"C:\\W\\a"_s)); });
    Search();
    EXPECT_EQ(Found(), QStringList{u"C:\\W\\a\\"_s});
}

TEST_F(EmptyFolderSearchTest, AFolderGoneBeforeItsTurnIsNotFound)
{
    machine.files.PutFolder(u"C:\\W\\a"_s);
    machine.events.At(2, [&] { EXPECT_FALSE(machine.files.TryRemoveFolder(u"C:\\W\\a"_s)); });
    ExpectNothingFound();
    Search();
    EXPECT_EQ(Found(), QStringList());
}

TEST_F(EmptyFolderSearchTest, ARootThatCannotBeReadIsTold)
{
    machine.files.FailAt(Operation::ReadFolder, u"C:\\W"_s, 1, FailureNumber::DiskNotReady);
    machine.dialogs.ExpectBox({u"Cannot access C:\\W\\."_s, u"Error accessing drive"_s, BoxIcon::Critical});
    ExpectNothingFound();
    Search();
    EXPECT_EQ(page.btnGBToolbarSearch.Caption(), u"Find Dir"_s);
}

TEST_F(EmptyFolderSearchTest, ARootThatHasGoneIsToldAndThenEndsTheProgram)
{
    page.DirListRemove.SetPath(u"C:\\W"_s);
    machine.files.PutLinkInPlaceOf(u"C:\\W"_s, u"C:\\none"_s);
    machine.dialogs.ExpectBox({u"Cannot access C:\\W\\."_s, u"Error accessing drive"_s, BoxIcon::Critical});
    QList<int> fatal;
    bench.form.SetFatalHandler([&](const Failure &failure) { fatal += failure.Number(); });
    page.btnGBToolbarSearch.UserClicks();
    EXPECT_EQ(fatal, QList<int>{76});
}

TEST_F(EmptyFolderSearchTest, ARootThatGoesMeanwhileEndsTheProgramBehindTheSearch)
{
    machine.files.PutFolder(u"C:\\W\\a"_s);
    machine.events.At(1, [&] { machine.files.PutLinkInPlaceOf(u"C:\\W"_s, u"C:\\none"_s); });
    QList<int> fatal;
    bench.form.SetFatalHandler([&](const Failure &failure) { fatal += failure.Number(); });
    Search();
    EXPECT_EQ(fatal, QList<int>{76});
    EXPECT_EQ(page.btnGBToolbarSearch.Caption(), u"Find Dir"_s);
}

TEST_F(EmptyFolderSearchTest, AParentIsFoundByTheNextSearch)
{
    machine.files.PutFolder(u"C:\\W\\a\\b\\c"_s);
    Search();
    EXPECT_EQ(Found(), QStringList{u"C:\\W\\a\\b\\c\\"_s});
    machine.dialogs.ExpectBox(u"Are you sure you want to delete all empty folders"_s, BoxAnswer::Yes);
    page.btnGBToolbarDeleteAll.UserClicks();
    Search();
    EXPECT_EQ(Found(), QStringList{u"C:\\W\\a\\b\\"_s});
}

} // namespace
