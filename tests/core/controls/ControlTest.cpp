// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "controls/Frame.h"
#include "controls/Label.h"
#include "controls/PictureBox.h"

#include <gtest/gtest.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

TEST(Control, TakesNoSizeBelowNothing)
{
    Form form(u"form"_s);
    Frame frame(form, u"frame"_s);
    frame.SetWidth(100);
    frame.SetHeight(0);
    EXPECT_THROW(frame.SetWidth(-1), Failure);
    EXPECT_THROW(frame.SetHeight(-1), Failure);
    EXPECT_EQ(frame.Width(), 100);
    EXPECT_EQ(frame.Height(), 0);
    frame.SetLeft(-5);
    EXPECT_EQ(frame.Left(), -5);
}

TEST(Label, TellsWhenItGrowsWithItsText)
{
    Form form(u"form"_s);
    Label label(form, u"label"_s);
    int resizes = 0;
    label.Resize.Handle([&] { ++resizes; });
    label.TakeWidth(300);
    label.TakeWidth(300);
    EXPECT_EQ(label.Width(), 300);
    EXPECT_EQ(resizes, 1);
}

TEST(PictureBox, TellsOfTheMouseUnlessDisabled)
{
    Form form(u"form"_s);
    PictureBox box(form, u"box"_s);
    QList<int> told;
    box.MouseMove.Handle([&](int buttons, int x) { told += {buttons, x}; });
    box.MouseUp.Handle([&] { told += -1; });
    box.Click.Handle([&] { told += -2; });
    box.UserMovesMouse(PictureBox::leftButton, 40);
    box.UserReleasesMouse();
    box.UserClicks();
    EXPECT_EQ(told, (QList<int>{1, 40, -1, -2}));
    box.SetEnabled(false);
    box.UserMovesMouse(0, 40);
    box.UserReleasesMouse();
    box.UserClicks();
    EXPECT_EQ(told.size(), 4);
}

} // namespace
