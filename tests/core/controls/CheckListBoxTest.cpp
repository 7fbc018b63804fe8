// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "controls/CheckListBox.h"

#include <gtest/gtest.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

class CheckListBoxTest : public testing::Test {
protected:
    CheckListBoxTest()
    {
        list.SetItems({u"a"_s, u"b"_s, u"c"_s});
        list.ItemCheck.Handle([this](int index) { raised.append(index); });
    }

    Form form{u"form"_s};
    CheckListBox list{form, u"ListBox(0)"_s};
    QList<int> raised;
};

TEST_F(CheckListBoxTest, NewEntriesHaveNoMark)
{
    EXPECT_FALSE(list.IsChecked(0));
    EXPECT_FALSE(list.IsChecked(2));
}

TEST_F(CheckListBoxTest, AnotherMarkRaisesItemCheckAndTheSameNothing)
{
    list.SetChecked(1, true);
    list.SetChecked(1, true);
    list.SetChecked(2, false);
    EXPECT_EQ(raised, QList<int>{1});
    EXPECT_TRUE(list.IsChecked(1));
}

TEST_F(CheckListBoxTest, TheUserSetsAMarkAndTakesItAway)
{
    list.UserToggles(2);
    EXPECT_TRUE(list.IsChecked(2));
    list.UserToggles(2);
    EXPECT_FALSE(list.IsChecked(2));
    list.UserToggles(3);
    list.UserToggles(-1);
    EXPECT_EQ(raised, (QList<int>{2, 2}));
}

TEST_F(CheckListBoxTest, ADisabledListKeepsItsMarks)
{
    list.SetEnabled(false);
    list.UserToggles(0);
    EXPECT_FALSE(list.IsChecked(0));
}

TEST_F(CheckListBoxTest, MarksStayWithTheirEntries)
{
    list.SetChecked(2, true);
    list.RemoveItem(0);
    EXPECT_FALSE(list.IsChecked(0));
    EXPECT_TRUE(list.IsChecked(1));
}

TEST_F(CheckListBoxTest, OtherEntriesComeWithoutMarks)
{
    list.SetChecked(0, true);
    list.SetItems({u"x"_s});
    EXPECT_FALSE(list.IsChecked(0));
    list.SetChecked(0, true);
    list.Clear();
    list.AddItem(u"y"_s);
    EXPECT_FALSE(list.IsChecked(0));
}

TEST_F(CheckListBoxTest, AnEntryOutsideIsAFailure)
{
    EXPECT_THROW(list.IsChecked(3), Failure);
    EXPECT_THROW(list.SetChecked(-1, true), Failure);
}

} // namespace
