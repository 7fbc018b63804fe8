// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "support/StartedProgram.h"
#include "support/Text.h"

#include <gtest/gtest.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

class FolderTreeView : public testing::Test, protected StartedProgram {
protected:
    FolderTreeView() { Start(); }

    QStringList Texts()
    {
        QStringList texts;
        for (const TreeNode &node : Area().TVList.Nodes())
            texts += node.text;
        return texts;
    }
    QStringList TextsOf(const QStringList &entries)
    {
        Area().LstItem.SetItems(entries);
        Form().tree.RefreshFolderTree();
        return Texts().mid(1);
    }
};

TEST_F(FolderTreeView, EmptyListGivesTheRootAloneExpanded)
{
    Form().tree.RefreshFolderTree();
    EXPECT_EQ(Texts(), QStringList{u"Create 0 Main Folders"_s});
    EXPECT_TRUE(Area().TVList.IsExpanded(0));
    EXPECT_EQ(Area().TVList.Nodes().at(0).key, u"main"_s);
    EXPECT_EQ(Area().TVList.Nodes().at(0).image, 4);
}

TEST_F(FolderTreeView, ExtensionsOfThreeLettersGo)
{
    Area().chkExtension.SetChecked(true);
    EXPECT_EQ(TextsOf({u"report.txt"_s, u"archive.tar.gz"_s, u"notes"_s, u".txt"_s, u"photo.jpeg"_s}),
              (QStringList{u"report"_s, u"archive.tar.gz"_s, u"notes"_s, u""_s, u"photo.jpeg"_s}));
}

TEST_F(FolderTreeView, ShortEntryAfterADotTakesTheNameBeforeIt)
{
    Area().chkExtension.SetChecked(true);
    EXPECT_EQ(TextsOf({u"abc"_s, u"report.txt"_s, u"xy"_s, u"notes"_s, u"z"_s}),
              (QStringList{u"abc"_s, u"report"_s, u"report"_s, u"notes"_s, u"z"_s}));
}

TEST_F(FolderTreeView, NamesAreMended)
{
    EXPECT_EQ(TextsOf({u"What?"_s, u"a\\b"_s}), (QStringList{u"What_"_s, u"a\\b"_s}));
    EXPECT_EQ(application.session.LastFixedName, u"a\\b"_s);
}

TEST_F(FolderTreeView, RefreshTellsItsStepsAndTheOthersDoNot)
{
    QStringList texts;
    Area().lblStatusLine.Change.Also([&] { texts += Status(); });
    machine.journal.Clear();
    Form().tree.RefreshFolderTree();
    EXPECT_EQ(texts, (QStringList{u"Read list Wait..."_s, u"Finished"_s}));
    EXPECT_EQ(machine.journal.About(u"BusyPointer"_s), (QStringList{u"on"_s, u"off"_s}));

    texts.clear();
    machine.journal.Clear();
    Form().tree.FillFolderTree();
    Form().tree.ShowCreatedTree();
    EXPECT_TRUE(texts.isEmpty());
    EXPECT_EQ(machine.journal.Count(u"BusyPointer"_s), 0);
}

TEST_F(FolderTreeView, ImagesTellPlannedFromCreated)
{
    List({u"a"_s});
    Form().tree.FillFolderTree();
    EXPECT_EQ(Area().TVList.Nodes().at(1).image, 5);
    EXPECT_EQ(Texts().first(), u"Create 1 Main Folders"_s);
    Form().tree.ShowCreatedTree();
    EXPECT_EQ(Area().TVList.Nodes().at(1).image, 6);
    EXPECT_EQ(Texts().first(), u"Total 1 Main Folders Created"_s);
}

TEST_F(FolderTreeView, EventsRunForEachEntry)
{
    List({u"a"_s, u"b"_s});
    const int before = machine.events.Calls();
    Form().tree.FillFolderTree();
    // The rule that mends a name lets them run nine times.
    EXPECT_EQ(machine.events.Calls() - before, 2 * 9);
}

TEST_F(FolderTreeView, ClickNamesTheNodeAndOpensItsFolder)
{
    machine.files.PutFolder(u"C:\\Work\\Sales\\2004"_s);
    List({u"Sales\\2004"_s});
    Form().tree.RefreshFolderTree();
    Area().TVList.UserClicks(1);
    EXPECT_EQ(Form().Caption(), u"Sales\\2004"_s);
    const QStringList lines = machine.journal.Lines();
    EXPECT_TRUE(lines.contains(u"Open C:\\Work\\Sales\\2004 C:\\Work"_s)) << lines.last().toStdString();
}

TEST_F(FolderTreeView, ClickOpensNothingButAFolderBelowTheStart)
{
    machine.files.PutFolder(u"C:\\Outside"_s);
    machine.files.PutFile(u"C:\\Work\\start.desktop"_s);
    machine.files.PutLink(u"C:\\Work\\link"_s, u"C:\\Outside"_s);
    const QStringList entries{u"\\Outside"_s, u"C:\\Outside"_s, u"..\\Outside"_s, u"start.desktop"_s,
                              u"link"_s,      u"none"_s,        u"\\"_s};
    List(entries);
    Form().tree.RefreshFolderTree();
    for (int node = 0; node <= entries.size(); ++node)
        Area().TVList.UserClicks(node);
    EXPECT_EQ(machine.journal.About(u"Open"_s), QStringList());
}

TEST_F(FolderTreeView, NodeThatCannotBeOpenedIsNotTold)
{
    machine.shell.canStart = false;
    Form().tree.RefreshFolderTree();
    Area().TVList.UserClicks(0);
    EXPECT_EQ(Form().Caption(), u"Create 0 Main Folders"_s);
}

TEST_F(FolderTreeView, TreeShowsNoMoreThan16BitsCount)
{
    Area().LstItem.SetItems(QStringList(32768, u"x"_s));
    Form().tree.FillFolderTree();
    EXPECT_EQ(Texts().first(), u"Create 32767 Main Folders"_s);
    EXPECT_EQ(Area().TVList.Nodes().size(), 32768);
}

} // namespace
