// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "MainFormTest.h"

#include <limits>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

constexpr ColourNumber restColour = 0x8000000F;
constexpr ColourNumber dragColour = 0x80000011;

/// A window on show, 12000 by 9000 twips, its bar at 6000.
class MainFormLayout : public MainFormTest {
protected:
    MainFormLayout()
    {
        form.Show();
        form.PicStrip.SetLeft(6000);
        form.TakeGeometry(0, 0, 12000, 9000, WindowState::Normal);
    }
};

TEST_F(MainFormTest, TheWindowAsItWasDrawn)
{
    EXPECT_EQ(form.Width(), 13470);
    EXPECT_EQ(form.Height(), 19275);
}

TEST_F(MainFormTest, NoWindowIsSmallerThanNothing)
{
    form.SetSize(std::numeric_limits<int>::min(), -1);
    EXPECT_EQ(form.Width(), 0);
    EXPECT_EQ(form.Height(), 0);
}

TEST_F(MainFormTest, AWindowThatCannotBeSeenIsNotLaidOut)
{
    form.PicStrip.SetLeft(100);
    form.FormResize();
    EXPECT_EQ(form.PicStrip.Left(), 100);
    form.Show();
    form.PicStrip.SetLeft(100);
    form.LayOutPending();
    EXPECT_EQ(form.PicStrip.Left(), 5100);
}

TEST_F(MainFormTest, TheStoredDefaultOfTheBarIsRaisedByTheFirstLayout)
{
    form.Show();
    EXPECT_EQ(form.PicStrip.Left(), 2880);
    form.erase.Timer1.Elapse();
    EXPECT_EQ(form.PicStrip.Left(), 5100);
}

TEST_F(MainFormTest, TheBarStandsWhereItWasStored)
{
    settings.Write(keys::TabStrip, 6100);
    form.Show();
    form.FormResize();
    EXPECT_EQ(form.PicStrip.Left(), 6100);
    form.PicStrip.SetLeft(6200);
    EXPECT_THROW(form.Unload(), ProcessEnded);
    EXPECT_EQ(settings.ReadInt32(keys::TabStrip), 6200);
}

TEST_F(MainFormTest, AHiddenToolbarStaysHiddenAtTheNextStart)
{
    settings.Write(keys::ButtonBar, u"1"_s);
    form.Show();
    form.FormResize();
    EXPECT_FALSE(form.FrmeToolbar.IsVisible());
}

TEST_F(MainFormLayout, AMinimisedWindowIsNotLaidOut)
{
    form.LayOutPending();
    form.PicStrip.SetLeft(100);
    form.TakeGeometry(0, 0, 100, 100, WindowState::Minimised);
    EXPECT_EQ(form.PicStrip.Left(), 100);
    EXPECT_EQ(form.Width(), 100);
    form.TakeGeometry(0, 0, 12000, 9000, WindowState::Normal);
    EXPECT_EQ(form.PicStrip.Left(), 5100);
}

TEST_F(MainFormLayout, NoSizeIsBelowTheLeast)
{
    struct {
        int width;
        int height;
        int widthAfter;
        int heightAfter;
    } const cases[] = {
        {8120, 6825, 8120, 6825}, {8119, 6825, 8120, 6825},  {8120, 6824, 8120, 6825},
        {1, 1, 8120, 6825},       {20000, 100, 20000, 6825}, {100, 20000, 8120, 20000},
    };
    for (const auto &size : cases) {
        form.TakeGeometry(0, 0, size.width, size.height, WindowState::Normal);
        EXPECT_EQ(form.Width(), size.widthAfter);
        EXPECT_EQ(form.Height(), size.heightAfter);
    }
}

TEST_F(MainFormLayout, HidingTheToolbarAndShowingItBackLaysOut)
{
    for (const bool isHidden : {true, false}) {
        form.PicStrip.SetLeft(100);
        form.area.chkButtonBar.UserToggles();
        EXPECT_EQ(form.FrmeToolbar.IsVisible(), !isHidden);
        EXPECT_EQ(form.PicStrip.Left(), 5100);
    }
}

TEST_F(MainFormLayout, TheSideBarHasTheRoomLeftOfTheBar)
{
    EXPECT_EQ(form.EyeDropper1.Width(), 6000);
}

TEST_F(MainFormLayout, ThePanesFollowTheSideBarsOwnLayout)
{
    form.PicStrip.SetLeft(100);
    form.EyeDropper1.TakePageSize(5000, 7000);
    EXPECT_EQ(form.PicStrip.Left(), 5100);
    form.PicStrip.SetLeft(100);
    form.EyeDropper1.TakeRoom(3, 3);
    EXPECT_EQ(form.PicStrip.Left(), 5100);
}

TEST_F(MainFormLayout, TheBarFollowsTheMouseAndNothingElseDoes)
{
    form.PicStrip.UserMovesMouse(PictureBox::leftButton, 250);
    EXPECT_EQ(form.PicStrip.Left(), 6250);
    EXPECT_EQ(form.PicStrip.BackColor(), dragColour);
    form.PicHold.UserMovesMouse(PictureBox::leftButton, -50);
    EXPECT_EQ(form.PicStrip.Left(), 6200);
    EXPECT_EQ(form.EyeDropper1.Width(), 6000);
}

TEST_F(MainFormLayout, AMouseWithoutItsLeftButtonMovesNoBar)
{
    for (const int buttons : {0, 2, 4}) {
        form.PicStrip.UserMovesMouse(buttons, 250);
        form.PicHold.UserMovesMouse(buttons, 250);
    }
    EXPECT_EQ(form.PicStrip.Left(), 6000);
    EXPECT_EQ(form.PicStrip.BackColor(), restColour);
}

TEST_F(MainFormLayout, ABarDraggedTooFarGoesBackToItsLimitOnRelease)
{
    form.PicStrip.UserMovesMouse(PictureBox::leftButton, -6500);
    EXPECT_EQ(form.PicStrip.Left(), -500);
    form.PicStrip.UserReleasesMouse();
    EXPECT_EQ(form.PicStrip.Left(), 5100);
    EXPECT_EQ(form.PicStrip.BackColor(), restColour);

    form.PicStrip.UserMovesMouse(PictureBox::leftButton, 20000);
    form.PicStrip.UserReleasesMouse();
    EXPECT_EQ(form.PicStrip.Left(), 8500);
    EXPECT_EQ(form.EyeDropper1.Width(), 8500);
}

TEST_F(MainFormLayout, InANarrowWindowTheRightLimitHolds)
{
    form.TakeGeometry(0, 0, 8120, 9000, WindowState::Normal);
    EXPECT_EQ(form.PicStrip.Left(), 4620);
}

TEST_F(MainFormLayout, OnlyAReleaseFromTheGripLaysTheWholeWindowOut)
{
    const auto isPending = [this] {
        form.PicStrip.SetLeft(100);
        form.LayOutPending();
        return form.PicStrip.Left() != 100;
    };
    isPending();
    form.PicStrip.UserReleasesMouse();
    EXPECT_FALSE(isPending());
    form.PicHold.UserReleasesMouse();
    EXPECT_TRUE(isPending());
}

TEST_F(MainFormLayout, TheTimerLaysOutWhatIsPendingOnce)
{
    form.PicStrip.SetLeft(100);
    form.erase.Timer1.Elapse();
    EXPECT_EQ(form.PicStrip.Left(), 5100);
    form.PicStrip.SetLeft(100);
    form.erase.Timer1.Elapse();
    EXPECT_EQ(form.PicStrip.Left(), 100);
}

TEST_F(MainFormLayout, AWindowThatFoldsUpMayGetSmallerThanItsLeastSize)
{
    options.ChkAnimOption.SetValue(1);
    const int callsBefore = machine.events.Calls();
    EXPECT_THROW(form.Unload(), ProcessEnded);
    // 9000 down to 420 by 500, then 12000 down to 1700 by 200.
    EXPECT_EQ(machine.events.Calls() - callsBefore, 18 + 52);
    EXPECT_EQ(form.Height(), 0);
    EXPECT_EQ(form.Width(), 1600);
}

} // namespace
