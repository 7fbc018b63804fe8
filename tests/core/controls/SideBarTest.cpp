// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "SideBarFixture.h"
#include "support/Failures.h"
#include "support/Text.h"

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

TEST_F(SideBarTest, IsRegisteredUnderItsName)
{
    EXPECT_EQ(form.Find(u"EyeDropper1"_s), &bar);
}

TEST_F(SideBarTest, EntriesTellWhatTheyWereGiven)
{
    EXPECT_EQ(bar.Items().Count(), 7);
    const SideBarItem &item = bar.Items()[5];
    EXPECT_EQ(item.Key(), u"Item: 5"_s);
    EXPECT_EQ(item.Caption(), u"Load from Database "_s);
    EXPECT_EQ(item.Index(), 5);
    EXPECT_EQ(item.Image(), 5);
    EXPECT_TRUE(item.IsVisible());
    EXPECT_EQ(item.Page(), &pages.at(4));
}

TEST_F(SideBarTest, NumbersOutsideAndTakenKeysFail)
{
    EXPECT_EQ(NumberThrownBy([&] { bar.Items()[0]; }), FailureNumber::SubscriptOutOfRange);
    EXPECT_EQ(NumberThrownBy([&] { bar.Items()[8]; }), FailureNumber::SubscriptOutOfRange);
    EXPECT_EQ(NumberThrownBy([&] { bar.Items().Add(u"Item: 3"_s, u"x"_s); }), FailureNumber{457});
    EXPECT_EQ(bar.Items().Count(), 7);
    EXPECT_EQ(NumberThrownBy([&] {
                  bar.Items().Add({}, u"a"_s);
                  bar.Items().Add({}, u"b"_s);
              }),
              std::nullopt);
}

TEST_F(SideBarTest, WithoutAChoiceTheFirstEntryIsOpen)
{
    EXPECT_EQ(Open(), 1);
    EXPECT_EQ(ShownPages(), QList<int>{1});
    EXPECT_TRUE(opened.isEmpty());
}

TEST_F(SideBarTest, TheProgramOpensWithoutAnEvent)
{
    bar.Items()[5].SetSelected(true);
    EXPECT_EQ(Open(), 5);
    EXPECT_TRUE(bar.Items()[5].IsSelected());
    EXPECT_FALSE(bar.Items()[1].IsSelected());
    EXPECT_EQ(ShownPages(), QList<int>{5});
    EXPECT_TRUE(opened.isEmpty());
    bar.Items()[5].SetSelected(false);
    EXPECT_EQ(Open(), 5);
}

TEST_F(SideBarTest, TheUserOpensWithAnEventThatComesAfterThePageChanged)
{
    QList<int> pagesAtEvent;
    bar.ItemSelected.Also([&](SideBarItem &) { pagesAtEvent = ShownPages(); });
    bar.UserSelects(4);
    bar.UserSelects(4);
    EXPECT_EQ(opened, (QList<int>{4, 4}));
    EXPECT_EQ(pagesAtEvent, QList<int>{4});
}

TEST_F(SideBarTest, ADisabledSideBarTakesNoActs)
{
    bar.SetEnabled(false);
    bar.UserSelects(4);
    bar.UserNext();
    bar.UserCycles(true);
    bar.UserTypes(u"f"_s);
    bar.UserSetsVisibleItems(2);
    EXPECT_EQ(Open(), 1);
    EXPECT_EQ(bar.Rows(), 7);
    EXPECT_TRUE(opened.isEmpty());
}

TEST_F(SideBarTest, HiddenEntriesAndNumbersOutsideCannotBeOpened)
{
    Hide({4});
    bar.Items()[4].SetSelected(true);
    for (const int number : {4, 0, -1, 8})
        bar.UserSelects(number);
    EXPECT_EQ(Open(), 1);
    EXPECT_TRUE(opened.isEmpty());
}

TEST_F(SideBarTest, HidingTheOpenEntryOpensItsNeighbour)
{
    bar.Items()[5].SetSelected(true);
    Hide({5});
    EXPECT_EQ(Open(), 6);
    Hide({7, 6});
    EXPECT_EQ(Open(), 4);
    EXPECT_EQ(ShownPages(), QList<int>{4});
    EXPECT_TRUE(opened.isEmpty());
}

TEST_F(SideBarTest, HidingAnotherEntryKeepsTheOpenOne)
{
    bar.Items()[5].SetSelected(true);
    Hide({4, 6});
    EXPECT_EQ(Open(), 5);
}

TEST_F(SideBarTest, NoneIsOpenOnlyWhileAllAreHidden)
{
    Hide({1, 2, 3, 4, 5, 6, 7});
    EXPECT_EQ(Open(), 0);
    EXPECT_TRUE(ShownPages().isEmpty());
    bar.UserNext();
    bar.UserLast();
    bar.UserCycles(false);
    bar.UserTypes(u"f"_s);
    EXPECT_EQ(Open(), 0);
    bar.Items()[3].SetVisible(true);
    EXPECT_EQ(Open(), 3);
    EXPECT_EQ(ShownPages(), QList<int>{3});
    EXPECT_TRUE(opened.isEmpty());
}

TEST_F(SideBarTest, ClearHidesThePagesAndTheNextEntriesStartAnew)
{
    bar.Items()[5].SetSelected(true);
    bar.SetVisibleItems(2);
    bar.SetFirstShown(4);
    bar.Items().Clear();
    EXPECT_EQ(bar.Items().Count(), 0);
    EXPECT_EQ(Open(), 0);
    EXPECT_EQ(bar.FirstShown(), 1);
    EXPECT_TRUE(ShownPages().isEmpty());
    Fill();
    EXPECT_EQ(Open(), 1);
    EXPECT_EQ(ShownPages(), QList<int>{1});
}

TEST_F(SideBarTest, AnotherPageForTheOpenEntryTakesThePlaceOfTheFirst)
{
    Frame other{form, u"other"_s};
    bar.Items()[1].SetPage(other);
    EXPECT_TRUE(other.IsVisible());
    EXPECT_TRUE(ShownPages().isEmpty());
    bar.UserSelects(2);
    EXPECT_FALSE(other.IsVisible());
}

TEST_F(SideBarTest, ArrowsSkipHiddenEntriesAndStopAtTheEnds)
{
    Hide({2, 3, 7});
    bar.UserPrevious();
    EXPECT_TRUE(opened.isEmpty());
    bar.UserNext();
    bar.UserNext();
    bar.UserNext();
    bar.UserNext();
    EXPECT_EQ(opened, (QList<int>{4, 5, 6}));
    bar.UserPrevious();
    EXPECT_EQ(Open(), 5);
}

TEST_F(SideBarTest, HomeAndEndGoToTheOutermostShownEntries)
{
    Hide({1, 7});
    bar.UserLast();
    bar.UserLast();
    bar.UserFirst();
    EXPECT_EQ(opened, (QList<int>{6, 2}));
}

TEST_F(SideBarTest, CyclingGoesRoundTheEnds)
{
    Hide({1});
    bar.UserCycles(false);
    bar.UserCycles(true);
    bar.UserCycles(true);
    EXPECT_EQ(opened, (QList<int>{7, 2, 3}));
}

TEST_F(SideBarTest, CyclingWithOneEntryIsNoAct)
{
    Hide({1, 2, 3, 4, 5, 6});
    bar.UserCycles(true);
    EXPECT_TRUE(opened.isEmpty());
}

TEST_F(SideBarTest, FirstLettersGoToTheNextEntryThatStartsSo)
{
    bar.UserTypes(u"f"_s);
    bar.UserTypes(u"F"_s);
    bar.UserTypes(u"f"_s);
    bar.UserTypes(u"z"_s);
    bar.UserTypes(u"g"_s);
    bar.UserTypes(u"g"_s);
    EXPECT_EQ(opened, (QList<int>{4, 7, 4, 2}));
    Hide({4});
    bar.UserTypes(u"f"_s);
    EXPECT_EQ(Open(), 7);
}

TEST_F(SideBarTest, TheMenuHidesEntriesOnlyWhileItIsOn)
{
    bar.UserShowsItem(2, false);
    EXPECT_TRUE(bar.Items()[2].IsVisible());
    bar.SetShowMenu(true);
    bar.UserShowsItem(1, false);
    EXPECT_FALSE(bar.Items()[1].IsVisible());
    EXPECT_EQ(Open(), 2);
    bar.UserShowsItem(1, true);
    EXPECT_TRUE(bar.Items()[1].IsVisible());
    EXPECT_EQ(Open(), 2);
    bar.UserShowsItem(0, false);
    bar.UserShowsItem(8, false);
    EXPECT_EQ(bar.ShownCount(), 7);
    EXPECT_TRUE(opened.isEmpty());
}

TEST_F(SideBarTest, APaletteShowsAtOnceAndCanBeSwitchedOff)
{
    EXPECT_FALSE(bar.OutlookColors());
    EXPECT_FALSE(bar.Colors());
    SideBarColours palette;
    for (std::size_t slot = 0; slot < palette.size(); ++slot)
        palette[slot] = static_cast<quint32>(slot) * 0x010101;
    bar.SetOutlookColors(false);
    bar.SetColors(palette);
    EXPECT_TRUE(bar.OutlookColors());
    EXPECT_EQ(bar.Colors(), palette);
    bar.SetOutlookColors(false);
    EXPECT_EQ(bar.Colors(), palette);
}

TEST_F(SideBarTest, FontsCarryTheirColours)
{
    bar.SetTitleFont({{u"DejaVu Sans"_s, 12, true, false, true, false}, 0x112233});
    EXPECT_EQ(bar.TitleColor(), 0x112233U);
    bar.SetTitleColor(0x445566);
    EXPECT_EQ(bar.TitleFont().colour, 0x445566U);
    EXPECT_EQ(bar.TitleFont().family, u"DejaVu Sans"_s);
    bar.SetCaptionFont({{u"DejaVu Serif"_s, 14, false, true, false, false}, 0x778899});
    EXPECT_EQ(bar.CaptionColor(), 0x778899U);
    bar.SetCaptionColor(5);
    EXPECT_EQ(bar.CaptionFont().points, 14);
    EXPECT_EQ(bar.CaptionFont().colour, 5U);
}

TEST_F(SideBarTest, ResetClearsTheAppearanceAndKeepsTheEntries)
{
    bar.Items()[3].SetSelected(true);
    Hide({6});
    bar.SetImageList(u"ImageList1"_s);
    bar.SetRightToLeft(true);
    bar.SetTitleFont({{u"DejaVu Sans"_s, 30}});
    bar.SetCaptionFont({{u"DejaVu Sans"_s, 30}});
    bar.SetColors({});
    bar.SetPageBackColor(7);
    bar.SetShowMenu(true);
    bar.SetVisibleItems(2);
    bar.SetRedraw(false);
    bar.Reset();
    EXPECT_TRUE(bar.ImageList().isEmpty());
    EXPECT_FALSE(bar.RightToLeft());
    EXPECT_EQ(bar.TitleFont().points, 10);
    EXPECT_TRUE(bar.CaptionFont().family.isEmpty());
    EXPECT_FALSE(bar.OutlookColors());
    EXPECT_FALSE(bar.Colors());
    EXPECT_EQ(bar.PageBackColor(), 0x00F5F5F5U);
    EXPECT_FALSE(bar.ShowMenu());
    EXPECT_EQ(bar.Rows(), 6);
    EXPECT_EQ(bar.FirstShown(), 1);
    EXPECT_TRUE(bar.Redraw());
    EXPECT_EQ(Open(), 3);
    EXPECT_FALSE(bar.Items()[6].IsVisible());
}

} // namespace
