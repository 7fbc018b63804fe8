// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "controls/IsButton.h"
#include "support/Text.h"

#include <gtest/gtest.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

/// A button on a form of its own, with a count of what it raised.
class IsButtonStates : public testing::Test {
protected:
    IsButtonStates()
    {
        button.Click.Handle([this] { ++clicks; });
        button.MouseEnter.Handle([this] { ++enters; });
        button.MouseLeave.Handle([this] { ++leaves; });
        form.TakeChanged();
    }

    bool Repainted() { return form.TakeChanged().contains(&button); }
    void TypeSpace()
    {
        button.UserPressesSpace();
        button.UserTypesSpace();
        button.UserReleasesSpace();
    }
    void ClickWith(MouseButton mouseButton)
    {
        button.UserPressesMouse(mouseButton);
        button.UserReleasesMouse(mouseButton);
        button.UserEndsClick();
    }

    Form form{u"frmTest"_s};
    IsButton button{form, u"btnTest"_s, u"Test"_s};
    int clicks = 0;
    int enters = 0;
    int leaves = 0;
};

TEST_F(IsButtonStates, LeftButtonDownIsPressed)
{
    EXPECT_EQ(button.ShownState(), LookState::Normal);
    button.UserPressesMouse(MouseButton::Left);
    EXPECT_EQ(button.ShownState(), LookState::Pressed);
    EXPECT_TRUE(Repainted());
    EXPECT_EQ(clicks, 0);
}

TEST_F(IsButtonStates, LeftButtonUpIsHoveredAndRemembered)
{
    button.UserPressesMouse(MouseButton::Left);
    button.UserReleasesMouse(MouseButton::Left);
    EXPECT_EQ(button.ShownState(), LookState::Hover);
    EXPECT_EQ(button.LastButton(), MouseButton::Left);
    EXPECT_TRUE(Repainted());
    EXPECT_EQ(clicks, 0);
}

TEST_F(IsButtonStates, LeftButtonUpOnAReleasedCheckButtonStaysPressed)
{
    button.SetButtonType(ButtonKind::Check);
    button.UserPressesMouse(MouseButton::Left);
    button.UserReleasesMouse(MouseButton::Left);
    EXPECT_EQ(button.ShownState(), LookState::Pressed);
    EXPECT_FALSE(button.Value());
}

TEST_F(IsButtonStates, ClickIsRaisedAfterTheLeftButtonOnly)
{
    button.UserEndsClick();
    EXPECT_EQ(clicks, 0);
    ClickWith(MouseButton::Left);
    EXPECT_EQ(clicks, 1);
    ClickWith(MouseButton::Middle);
    EXPECT_EQ(clicks, 1);
}

TEST_F(IsButtonStates, RightClickChangesNoStateAndRaisesNothing)
{
    button.SetButtonType(ButtonKind::Check);
    button.UserPressesMouse(MouseButton::Right);
    EXPECT_EQ(button.ShownState(), LookState::Normal);
    button.UserReleasesMouse(MouseButton::Right);
    button.UserEndsClick();
    EXPECT_EQ(button.ShownState(), LookState::Normal);
    EXPECT_EQ(button.LastButton(), MouseButton::Right);
    EXPECT_FALSE(button.Value());
    EXPECT_EQ(clicks, 0);
}

TEST_F(IsButtonStates, CheckButtonStaysPressedUntilTheNextClick)
{
    button.SetButtonType(ButtonKind::Check);
    bool valueInHandler = false;
    button.Click.Also([&] { valueInHandler = button.Value(); });
    EXPECT_EQ(button.ShownState(), LookState::Normal);
    button.UserPressesMouse(MouseButton::Left);
    EXPECT_EQ(button.ShownState(), LookState::Pressed);
    button.UserReleasesMouse(MouseButton::Left);
    button.UserEndsClick();
    EXPECT_TRUE(valueInHandler);
    EXPECT_EQ(button.ShownState(), LookState::Pressed);
    button.UserLeaves();
    EXPECT_EQ(button.ShownState(), LookState::Pressed);
    button.UserClicks();
    EXPECT_FALSE(valueInHandler);
    EXPECT_EQ(button.ShownState(), LookState::Hover);
}

TEST_F(IsButtonStates, FastSecondClickShowsPressed)
{
    ClickWith(MouseButton::Left);
    button.UserDoubleClicks(MouseButton::Left);
    EXPECT_EQ(button.ShownState(), LookState::Pressed);
    EXPECT_EQ(clicks, 1);
}

TEST_F(IsButtonStates, DoubleClickWithAnotherButtonShowsNothing)
{
    button.UserDoubleClicks(MouseButton::Right);
    EXPECT_EQ(button.ShownState(), LookState::Normal);
}

TEST_F(IsButtonStates, SpaceKeyActsAsTheLeftButton)
{
    button.UserPressesSpace();
    EXPECT_EQ(button.ShownState(), LookState::Pressed);
    EXPECT_TRUE(Repainted());
    button.UserReleasesSpace();
    EXPECT_EQ(button.ShownState(), LookState::Hover);
    EXPECT_EQ(button.LastButton(), MouseButton::Left);
}

TEST_F(IsButtonStates, FirstSpaceRaisesClickOnceAndEachFurtherOneTwice)
{
    TypeSpace();
    EXPECT_EQ(clicks, 1);
    TypeSpace();
    EXPECT_EQ(clicks, 3);
    TypeSpace();
    EXPECT_EQ(clicks, 5);
}

TEST_F(IsButtonStates, SpaceAfterAMouseClickRaisesClickTwice)
{
    ClickWith(MouseButton::Left);
    TypeSpace();
    EXPECT_EQ(clicks, 3);
}

TEST_F(IsButtonStates, SpaceAfterARightClickRaisesClickOnce)
{
    ClickWith(MouseButton::Left);
    ClickWith(MouseButton::Right);
    TypeSpace();
    EXPECT_EQ(clicks, 2);
}

TEST_F(IsButtonStates, FirstSpaceOnACheckButtonLeavesItsValue)
{
    button.SetButtonType(ButtonKind::Check);
    TypeSpace();
    EXPECT_FALSE(button.Value());
    TypeSpace();
    EXPECT_TRUE(button.Value());
}

TEST_F(IsButtonStates, FocusIsAFlagThatRepaints)
{
    button.TakeFocus(true);
    EXPECT_TRUE(button.HasFocus());
    EXPECT_TRUE(Repainted());
    button.TakeFocus(false);
    EXPECT_FALSE(button.HasFocus());
    EXPECT_TRUE(Repainted());
}

TEST_F(IsButtonStates, EnterComesOnceUntilTheLeave)
{
    button.UserMovesMouse();
    EXPECT_EQ(button.ShownState(), LookState::Hover);
    EXPECT_TRUE(Repainted());
    button.UserMovesMouse();
    button.UserMovesMouse();
    EXPECT_EQ(enters, 1);
    EXPECT_FALSE(Repainted());
    button.UserLeaves();
    EXPECT_EQ(leaves, 1);
    EXPECT_EQ(button.ShownState(), LookState::Normal);
    EXPECT_TRUE(Repainted());
    button.UserMovesMouse();
    EXPECT_EQ(enters, 2);
}

TEST_F(IsButtonStates, LeaveWithoutEnterRaisesNothing)
{
    button.UserLeaves();
    EXPECT_EQ(leaves, 0);
}

TEST_F(IsButtonStates, LeavingWhilePressedShowsNormalUntilMouseUp)
{
    button.UserMovesMouse();
    button.UserPressesMouse(MouseButton::Left);
    button.UserLeaves();
    EXPECT_FALSE(button.IsHovered());
    EXPECT_EQ(button.ShownState(), LookState::Normal);
    button.UserReleasesMouse(MouseButton::Left);
    EXPECT_EQ(button.ShownState(), LookState::Hover);
}

TEST_F(IsButtonStates, DisabledUnderThePointerItSeesTheNextEnter)
{
    button.UserMovesMouse();
    button.SetEnabled(false);
    button.UserLeaves();
    button.SetEnabled(true);
    button.UserMovesMouse();
    EXPECT_EQ(enters, 2);
}

TEST_F(IsButtonStates, DisabledButtonTakesNoActs)
{
    button.SetEnabled(false);
    button.UserClicks();
    TypeSpace();
    button.UserMovesMouse();
    EXPECT_EQ(clicks, 0);
    EXPECT_EQ(enters, 0);
    EXPECT_EQ(button.ShownState(), LookState::Disabled);
}

TEST_F(IsButtonStates, DisabledIsShownBeforeAPressedCheckButton)
{
    button.SetButtonType(ButtonKind::Check);
    button.SetValue(true);
    EXPECT_EQ(button.ShownState(), LookState::Pressed);
    button.SetEnabled(false);
    EXPECT_EQ(button.ShownState(), LookState::Disabled);
}

TEST_F(IsButtonStates, ValueOfAPushButtonShowsNothing)
{
    button.SetValue(true);
    EXPECT_EQ(button.ShownState(), LookState::Normal);
}

TEST_F(IsButtonStates, SettingEnabledResetsTheState)
{
    button.UserPressesMouse(MouseButton::Left);
    button.SetEnabled(true);
    EXPECT_EQ(button.ShownState(), LookState::Normal);
}

TEST_F(IsButtonStates, ReadingEnabledRepaints)
{
    EXPECT_TRUE(button.Enabled());
    EXPECT_TRUE(Repainted());
    EXPECT_TRUE(button.IsEnabled());
    EXPECT_FALSE(Repainted());
}

TEST_F(IsButtonStates, DesignTimeShowsHoverButInTheBlueLook)
{
    button.SetDesignTime(true);
    EXPECT_EQ(button.ShownState(), LookState::Normal);
    button.SetStyle(ButtonStyle::Pill);
    EXPECT_EQ(button.ShownState(), LookState::Hover);
    button.UserMovesMouse();
    EXPECT_EQ(enters, 0);
}

TEST_F(IsButtonStates, RefreshRepaints)
{
    button.Refresh();
    EXPECT_TRUE(Repainted());
}

TEST_F(IsButtonStates, ShownTakesTheFormsToolTipAndHiddenHandsItBack)
{
    button.Control::SetToolTip(u" Browse... "_s);
    form.TakeChanged();
    button.FaceShown();
    EXPECT_EQ(button.ToolTip(), u" Browse... "_s);
    EXPECT_EQ(button.Control::ToolTip(), u""_s);
    EXPECT_TRUE(Repainted());
    button.FaceHidden();
    EXPECT_EQ(button.Control::ToolTip(), u" Browse... "_s);
    button.FaceShown();
    EXPECT_EQ(button.ToolTip(), u" Browse... "_s);
    EXPECT_EQ(button.Control::ToolTip(), u""_s);
}

TEST_F(IsButtonStates, ShownKeepsItsOwnToolTipWhereTheFormHasNone)
{
    button.SetToolTip(u"own"_s);
    button.FaceShown();
    EXPECT_EQ(button.ToolTip(), u"own"_s);
}

TEST_F(IsButtonStates, AFailureInItsHandlerReachesTheForm)
{
    int number = 0;
    form.SetFatalHandler([&](const Failure &failure) { number = failure.Number(); });
    button.Click.Also([] { throw Failure(FailureNumber::PathNotFound); });
    button.UserClicks();
    EXPECT_EQ(number, 76);
}

} // namespace
