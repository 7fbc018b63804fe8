// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "SideBarFixture.h"
#include "support/Text.h"

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

using SideBarRows = SideBarTest;

TEST_F(SideBarRows, VisibleItemsReadsBackAsWrittenAndWorksWithinTheEntries)
{
    struct Row {
        int written;
        int rows;
    };
    for (const Row &row : {Row{11, 7}, Row{7, 7}, Row{3, 3}, Row{1, 1}, Row{0, 0}, Row{-4, 0}}) {
        bar.SetVisibleItems(row.written);
        EXPECT_EQ(bar.VisibleItems(), row.written);
        EXPECT_EQ(bar.Rows(), row.rows) << row.written;
    }
    bar.SetVisibleItems(11);
    Hide({2, 3});
    EXPECT_EQ(bar.Rows(), 5);
    EXPECT_EQ(bar.RowEntries(), (QList<int>{1, 4, 5, 6, 7}));
    EXPECT_TRUE(bar.RestEntries().isEmpty());
}

TEST_F(SideBarRows, RowsAndRestHoldEachShownEntryOnce)
{
    bar.SetVisibleItems(3);
    Hide({2});
    bar.SetFirstShown(2);
    EXPECT_EQ(bar.RowEntries(), (QList<int>{3, 4, 5}));
    EXPECT_EQ(bar.RestEntries(), (QList<int>{1, 6, 7}));
}

TEST_F(SideBarRows, WithoutRowsAllAreRest)
{
    bar.SetVisibleItems(0);
    bar.SetFirstShown(4);
    EXPECT_EQ(bar.FirstShown(), 1);
    EXPECT_TRUE(bar.RowEntries().isEmpty());
    EXPECT_EQ(bar.RestEntries(), (QList<int>{1, 2, 3, 4, 5, 6, 7}));
    EXPECT_FALSE(bar.CanScrollUp());
    EXPECT_FALSE(bar.CanScrollDown());
}

TEST_F(SideBarRows, ScrollingStopsAtBothEnds)
{
    bar.SetVisibleItems(3);
    EXPECT_FALSE(bar.CanScrollUp());
    bar.UserScrolls(2);
    EXPECT_EQ(bar.FirstShown(), 3);
    EXPECT_TRUE(bar.CanScrollUp());
    bar.UserScrolls(100);
    EXPECT_EQ(bar.FirstShown(), 5);
    EXPECT_FALSE(bar.CanScrollDown());
    bar.UserScrolls(-1);
    EXPECT_EQ(bar.FirstShown(), 4);
    bar.UserScrolls(-100);
    EXPECT_EQ(bar.FirstShown(), 1);
    EXPECT_EQ(Open(), 1);
    EXPECT_TRUE(opened.isEmpty());
}

TEST_F(SideBarRows, MoreRowsOrFewerEntriesScrollBack)
{
    bar.SetVisibleItems(2);
    bar.SetFirstShown(6);
    bar.SetVisibleItems(4);
    EXPECT_EQ(bar.FirstShown(), 1) << "the open entry stays in sight";
    bar.Items()[7].SetSelected(true);
    EXPECT_EQ(bar.FirstShown(), 4);
    Hide({1, 2});
    EXPECT_EQ(bar.FirstShown(), 2);
}

TEST_F(SideBarRows, KeysScrollToTheOpenEntryAndClicksDoNot)
{
    bar.SetVisibleItems(2);
    bar.UserSelects(6);
    EXPECT_EQ(bar.RowEntries(), (QList<int>{1, 2}));
    bar.UserNext();
    EXPECT_EQ(bar.RowEntries(), (QList<int>{6, 7}));
    bar.UserFirst();
    EXPECT_EQ(bar.RowEntries(), (QList<int>{1, 2}));
}

TEST_F(SideBarRows, TheRoomOfTheFaceLimitsTheRows)
{
    bar.TakeRoom(3, 3);
    EXPECT_EQ(bar.Rows(), 3);
    EXPECT_EQ(stripResizes, 1);
    bar.TakeRoom(3, 3);
    EXPECT_EQ(stripResizes, 1);
    bar.SetVisibleItems(5);
    EXPECT_EQ(bar.Rows(), 3);
    EXPECT_EQ(bar.VisibleItems(), 5);
    EXPECT_EQ(stripResizes, 1);
    bar.TakeRoom(7, 7);
    EXPECT_EQ(bar.Rows(), 5);
    EXPECT_EQ(stripResizes, 2);
}

TEST_F(SideBarRows, TheGripSetsTheRowsAndItsUpperEndMeansAll)
{
    bar.SetVisibleItems(11);
    bar.UserSetsVisibleItems(7);
    EXPECT_EQ(bar.VisibleItems(), 7);
    bar.UserSetsVisibleItems(2);
    EXPECT_EQ(bar.VisibleItems(), 2);
    EXPECT_EQ(stripResizes, 1);
    bar.UserSetsVisibleItems(-3);
    EXPECT_EQ(bar.VisibleItems(), 0);
    bar.TakeRoom(4, 4);
    bar.UserSetsVisibleItems(4);
    EXPECT_EQ(bar.VisibleItems(), 7);
    EXPECT_EQ(bar.Rows(), 4);
}

TEST_F(SideBarRows, RowsThatNobodyAskedForLeaveThePagesWhole)
{
    bar.SetVisibleItems(11);
    bar.TakeRoom(5, 2);
    EXPECT_EQ(bar.Rows(), 2);
    bar.UserSetsVisibleItems(4);
    EXPECT_EQ(bar.Rows(), 4);
    bar.UserSetsVisibleItems(5);
    EXPECT_EQ(bar.VisibleItems(), 7);
    EXPECT_EQ(bar.Rows(), 5);
    bar.TakeRoom(6, 0);
    EXPECT_EQ(bar.Rows(), 6);
    bar.SetVisibleItems(11);
    EXPECT_EQ(bar.Rows(), 0);
}

TEST_F(SideBarRows, LayoutEventsWaitForRedrawAndComeOnce)
{
    bar.SetRedraw(false);
    bar.SetVisibleItems(2);
    Hide({3});
    bar.SetVisibleItems(4);
    EXPECT_EQ(stripResizes, 0);
    bar.SetRedraw(true);
    EXPECT_EQ(stripResizes, 1);
    bar.SetRedraw(true);
    EXPECT_EQ(stripResizes, 1);
}

TEST_F(SideBarRows, ARebuildOfTheSameEntriesChangesNoLayout)
{
    bar.SetRedraw(false);
    bar.Items().Clear();
    Fill();
    bar.SetRedraw(true);
    EXPECT_EQ(stripResizes, 0);
}

TEST_F(SideBarRows, WithRedrawOffTheFaceHearsNothing)
{
    bar.SetRedraw(false);
    form.TakeChanged();
    bar.SetTitleColor(1);
    bar.UserSelects(1);
    EXPECT_FALSE(form.TakeChanged().contains(&bar));
    bar.SetRedraw(true);
    EXPECT_TRUE(form.TakeChanged().contains(&bar));
}

TEST_F(SideBarRows, PageRoomRaisesItsEventWhenItDiffers)
{
    bar.TakePageSize(5100, 3000);
    bar.TakePageSize(5100, 3000);
    EXPECT_EQ(pageResizes, 1);
    bar.TakePageSize(5100, 2900);
    EXPECT_EQ(pageResizes, 2);
}

} // namespace
