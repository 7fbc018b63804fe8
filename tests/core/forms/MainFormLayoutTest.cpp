// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "MainFormTest.h"

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

constexpr ColourNumber restColour = 0x8000000F;
constexpr ColourNumber dragColour = 0x80000011;

/// A window on show, 12000 by 9000 twips, the side bar's pages 8000 high and its bar at 6000.
class MainFormLayout : public MainFormTest {
protected:
    MainFormLayout()
    {
        form.Show();
        form.EyeDropper1.TakePageSize(5000, 8000);
        form.PicStrip.SetLeft(6000);
        form.TakeGeometry(0, 0, 12000, 9000, WindowState::Normal);
    }

    void SetPageHeights(int twips)
    {
        form.EyeDropper1.TakePageSize(5000, twips);
        form.LayoutPanes();
    }
    int Height(const QString &name) { return form.Find(name)->Height(); }
};

enum class Side { Left, Top, Width, Height };

struct Expected {
    const char16_t *name;
    Side side;
    int twips;
};

void Expect(const MainForm &form, std::initializer_list<Expected> rows)
{
    for (const Expected &row : rows) {
        const QString name = QStringView(row.name).toString();
        const Control *control = form.Find(name);
        ASSERT_NE(control, nullptr) << name.toStdString();
        const int value = row.side == Side::Left ? control->Left()
            : row.side == Side::Top              ? control->Top()
            : row.side == Side::Width            ? control->Width()
                                                 : control->Height();
        EXPECT_EQ(value, row.twips) << name.toStdString() << ", side " << static_cast<int>(row.side);
    }
}

TEST_F(MainFormTest, TheWindowAsItWasDrawn)
{
    EXPECT_EQ(form.Width(), 13470);
    EXPECT_EQ(form.Height(), 19275);
    Expect(form,
           {{u"FrmeToolbar", Side::Height, 1095},
            {u"PicStatus", Side::Height, 315},
            {u"PicStatus", Side::Top, 19275 - 315},
            {u"PicHold", Side::Width, 105},
            {u"PicHold", Side::Height, 645}});
}

TEST_F(MainFormTest, AWindowThatCannotBeSeenIsNotLaidOut)
{
    form.PicStrip.SetLeft(100);
    form.FormResize();
    EXPECT_EQ(form.PicStrip.Left(), 100);
    EXPECT_EQ(form.area.txtStrtPath.Top(), 0);
    EXPECT_TRUE(form.IsLayoutPending());
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
    EXPECT_EQ(form.area.txtStrtPath.Top(), 95);
}

TEST_F(MainFormLayout, AMinimisedWindowIsNotLaidOut)
{
    form.LayOutPending();
    form.PicStrip.SetLeft(100);
    form.TakeGeometry(0, 0, 100, 100, WindowState::Minimised);
    EXPECT_EQ(form.PicStrip.Left(), 100);
    EXPECT_EQ(form.Width(), 100);
    EXPECT_TRUE(form.IsLayoutPending());
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
        // What is placed follows the size that came out of it.
        EXPECT_EQ(form.area.TVList.Height(), size.heightAfter - 2330);
        EXPECT_EQ(form.area.txtStrtPath.Width(), size.widthAfter - 3900);
    }
}

TEST_F(MainFormLayout, BelowTheToolbar)
{
    form.area.txtStrtPath.SetLeft(1000);
    form.area.lblStatusLine.SetWidth(700);
    form.FormResize();
    Expect(form,
           {{u"txtStrtPath", Side::Top, 1195},
            {u"lblTitle", Side::Top, 1195},
            {u"chkExtension", Side::Top, 1200},
            {u"chkButtonBar", Side::Top, 1200},
            {u"FrmeToolbar", Side::Width, 11880},
            {u"txtStrtPath", Side::Width, 8100},
            {u"chkExtension", Side::Left, 2100},
            {u"chkButtonBar", Side::Left, 3400},
            {u"PicUpdate", Side::Left, 1000},
            {u"Picture3", Side::Height, 8250},
            {u"TVList", Side::Height, 6670},
            {u"EyeDropper1", Side::Height, 6620},
            {u"Picture3", Side::Top, 1595},
            {u"PicStrip", Side::Top, 1595},
            {u"EyeDropper1", Side::Top, 1560},
            {u"TVList", Side::Top, 1560}});
}

TEST_F(MainFormLayout, WithoutTheToolbar)
{
    form.area.chkButtonBar.UserToggles();
    EXPECT_FALSE(form.FrmeToolbar.IsVisible());
    Expect(form,
           {{u"txtStrtPath", Side::Top, 95},
            {u"lblTitle", Side::Top, 95},
            {u"chkExtension", Side::Top, 95},
            {u"chkButtonBar", Side::Top, 95},
            {u"Picture3", Side::Top, 495},
            {u"PicStrip", Side::Top, 495},
            {u"TVList", Side::Top, 495},
            {u"EyeDropper1", Side::Top, 495},
            {u"TVList", Side::Height, 7740},
            {u"EyeDropper1", Side::Height, 7680},
            {u"PicStrip", Side::Height, 7680}});
}

TEST_F(MainFormLayout, HidingTheToolbarMovesTheRowsUpAndShowingItBack)
{
    const int pathTop = form.area.txtStrtPath.Top();
    const int treeTop = form.area.TVList.Top();
    const int treeHeight = form.area.TVList.Height();
    form.area.chkButtonBar.UserToggles();
    EXPECT_EQ(form.area.txtStrtPath.Top(), pathTop - 1100);
    form.area.chkButtonBar.UserToggles();
    EXPECT_TRUE(form.FrmeToolbar.IsVisible());
    EXPECT_EQ(form.area.txtStrtPath.Top(), pathTop);
    EXPECT_EQ(form.area.TVList.Top(), treeTop);
    EXPECT_EQ(form.area.TVList.Height(), treeHeight);
}

TEST_F(MainFormLayout, WhatStandsBesideTheBar)
{
    Expect(form,
           {{u"TVList", Side::Left, 6080},
            {u"TVList", Side::Width, 12000 - 6080 - 20},
            {u"EyeDropper1", Side::Width, 6000},
            {u"PicStrip", Side::Height, 6620}});
}

TEST_F(MainFormLayout, TheTreeEndsInsideTheBorder)
{
    form.TakeBorder(120, 480);
    EXPECT_EQ(form.InnerWidth(), 11880);
    EXPECT_EQ(form.InnerHeight(), 8520);
    form.LayoutPanes();
    EXPECT_EQ(form.area.TVList.Width(), 11880 - 6080 - 20);
}

TEST_F(MainFormLayout, TheGripTakesTheHeightThatTheBarHadBefore)
{
    form.PicStrip.SetHeight(5000);
    form.LayoutPanes();
    EXPECT_EQ(form.PicHold.Top(), 2500);
    EXPECT_EQ(form.PicStrip.Height(), 6620);
    form.FormResize();
    EXPECT_EQ(form.PicHold.Top(), (6620 - 400) / 2);
}

TEST_F(MainFormLayout, WhatFollowsTheBar)
{
    Expect(form,
           {{u"DrvList", Side::Width, 5700},
            {u"DirList", Side::Width, 5700},
            {u"FileList", Side::Width, 5700},
            {u"Picture3", Side::Width, 6020},
            {u"btnGBDelete", Side::Left, 4380},
            {u"btnGBMake", Side::Left, 4380},
            {u"txtFeltDirSub", Side::Width, 3350},
            {u"DrvBox", Side::Width, 5700},
            {u"DirBox", Side::Width, 5700},
            {u"btnGBLoadFile", Side::Left, 3530},
            {u"btnGBSaveFile", Side::Left, 4700},
            {u"lblInfo", Side::Width, 3300},
            {u"btnGBLoadList", Side::Left, 4700},
            {u"btnGBOpenDatabase", Side::Left, 4700},
            {u"lblDatabaseFile", Side::Width, 4300},
            {u"lblstrSQL", Side::Width, 4300},
            {u"lblTable", Side::Width, 4300},
            {u"txtDatabaseFile", Side::Width, 4300},
            {u"ListBox(0)", Side::Width, 4300},
            {u"ListBox(1)", Side::Width, 4300},
            {u"btnGBToolbarSearch", Side::Left, 4700},
            {u"btnGBToolbarOpenDir", Side::Left, 4700},
            {u"btnGBToolbarDelDir", Side::Left, 4700},
            {u"btnGBToolbarDeleteAll", Side::Left, 4700},
            {u"btnGBToolbarCopy", Side::Left, 4700},
            {u"DrvListRemove", Side::Width, 4300},
            {u"DirListRemove", Side::Width, 4300},
            {u"ListRemove", Side::Width, 4300},
            {u"txtCurrentPath", Side::Width, 4700},
            {u"btnGBBrowsePath", Side::Left, 5400},
            {u"fraRenamingCap", Side::Width, 2450},
            {u"fraReplaceType", Side::Width, 2450},
            {u"fraAllExtensions", Side::Width, 2450},
            {u"btnGBExtension", Side::Left, 3600},
            {u"btnGBCancel", Side::Left, 4800},
            {u"ProgressBar", Side::Width, 5700},
            {u"txtExtensionsChangeAllTo", Side::Width, 2200},
            {u"lblExtensionsChangeAllTo", Side::Width, 2200},
            {u"lstErase", Side::Width, 5700},
            {u"lblOverwrite", Side::Width, 5700},
            {u"ProgrBar", Side::Width, 5700},
            {u"PicProgress", Side::Width, 5700},
            {u"btnGBErase", Side::Left, 4700},
            {u"btnGBBrowse", Side::Left, 4700},
            {u"btnGBMakeList", Side::Left, 4700},
            {u"btnGBResult", Side::Left, 4700},
            {u"lblFilePath", Side::Width, 4300},
            {u"lblRSaved", Side::Width, 4300},
            {u"lblWStatus", Side::Width, 4300},
            {u"CboFilePath", Side::Width, 4300},
            {u"txtReport", Side::Width, 4300},
            {u"ProgressBar1", Side::Width, 4300},
            {u"btnGBJoinFile", Side::Left, 4800},
            {u"btnGBSplitFile", Side::Left, 3600},
            {u"cboFileName", Side::Width, 5200},
            {u"btnBrowse", Side::Left, 5400},
            {u"Frame2", Side::Width, 5700},
            {u"Frame1", Side::Width, 5700},
            {u"fraEst", Side::Width, 5700},
            {u"fraStats", Side::Width, 5700},
            {u"ctlProgress1", Side::Width, 5700}});
}

TEST_F(MainFormLayout, ListsOfAHighPageTakeItsHeightButAMargin)
{
    form.erase.lstErase.SetTop(3000);
    SetPageHeights(8001);
    Expect(form,
           {{u"FileList", Side::Height, 4501},
            {u"DirBox", Side::Height, 5501},
            {u"ListBox(0)", Side::Height, 4001},
            {u"ListBox(1)", Side::Height, 4001},
            {u"ListRemove", Side::Height, 4401},
            {u"lstErase", Side::Height, 2501},
            {u"PicProgress", Side::Top, 7800},
            {u"FrameXPMenu(0)", Side::Height, 8001}});
}

TEST_F(MainFormLayout, ListsOfALowPageHaveTheirLeastHeight)
{
    form.erase.lstErase.SetTop(3000);
    // A second layout finds the pages as low as the first.
    for (int round = 1; round <= 2; ++round) {
        SetPageHeights(3999);
        Expect(form,
               {{u"FileList", Side::Height, 2400},
                {u"DirBox", Side::Height, 2400},
                {u"ListBox(0)", Side::Height, 2400},
                {u"ListBox(1)", Side::Height, 2400},
                {u"ListRemove", Side::Height, 2200},
                {u"lstErase", Side::Height, 2400},
                {u"PicProgress", Side::Top, 4100}});
        for (const int page : {0, 2, 4, 5, 6})
            EXPECT_EQ(Height(u"FrameXPMenu(%1)"_s.arg(page)), 4100) << page;
        EXPECT_EQ(Height(u"FrameXPMenu(1)"_s), 3999);
    }
}

TEST_F(MainFormLayout, APageOf4000IsNotLow)
{
    SetPageHeights(4000);
    Expect(form,
           {{u"FileList", Side::Height, 500},
            {u"DirBox", Side::Height, 1500},
            {u"ListBox(0)", Side::Height, 0},
            {u"ListRemove", Side::Height, 400},
            {u"FrameXPMenu(0)", Side::Height, 4000}});
}

TEST_F(MainFormLayout, AListThatCannotTakeItsHeightKeepsTheOldOne)
{
    SetPageHeights(8000);
    SetPageHeights(4000);
    // 4000 less a margin of 5500 is no height.
    EXPECT_EQ(form.erase.lstErase.Height(), 2500);
    EXPECT_EQ(form.splitter.ctlProgress1.Width(), 5700);
}

TEST_F(MainFormLayout, PagesKeepTheirHeightBeforeTheSideBarHasRoom)
{
    form.EyeDropper1.TakePageSize(0, 0);
    form.browse.page.SetHeight(9000);
    form.LayoutPanes();
    EXPECT_EQ(form.browse.FileList.Height(), 5500);
}

TEST_F(MainFormLayout, ThePanesFollowTheSideBarsOwnLayout)
{
    form.PicStrip.SetLeft(100);
    form.EyeDropper1.TakePageSize(5000, 7000);
    EXPECT_EQ(form.PicStrip.Left(), 5100);
    EXPECT_EQ(form.browse.FileList.Height(), 3500);
    form.PicStrip.SetLeft(100);
    form.EyeDropper1.TakeRoom(3);
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
    EXPECT_EQ(form.area.TVList.Left(), 6080);
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
    form.LayOutPending();
    form.area.txtStrtPath.SetTop(1);
    form.PicStrip.UserReleasesMouse();
    EXPECT_EQ(form.area.txtStrtPath.Top(), 1);
    EXPECT_FALSE(form.IsLayoutPending());
    form.PicHold.UserReleasesMouse();
    EXPECT_EQ(form.area.txtStrtPath.Top(), 1195);
    EXPECT_TRUE(form.IsLayoutPending());
}

TEST_F(MainFormLayout, TheTimerLaysOutWhatIsPendingOnce)
{
    ASSERT_TRUE(form.IsLayoutPending());
    form.erase.Timer1.Elapse();
    EXPECT_FALSE(form.IsLayoutPending());
    form.area.txtStrtPath.SetTop(1);
    form.erase.Timer1.Elapse();
    EXPECT_EQ(form.area.txtStrtPath.Top(), 1);
}

TEST_F(MainFormLayout, TheUpdateNoticeStandsRightOfTheStatusText)
{
    form.area.lblStatusLine.SetCaption(u"Wait working..."_s);
    form.area.lblStatusLine.TakeWidth(1234);
    EXPECT_EQ(form.PicUpdate.Left(), 1534);
    form.area.lblStatusLine.SetCaption(u"Finished"_s);
    form.area.lblStatusLine.TakeWidth(600);
    EXPECT_EQ(form.PicUpdate.Left(), 900);
    form.PicUpdate.SetLeft(0);
    form.area.lblStatusLine.SetCaption(u"Another text of the same width"_s);
    EXPECT_EQ(form.PicUpdate.Left(), 900);
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
