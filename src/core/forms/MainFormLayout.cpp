// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "base/Steps.h"
#include "forms/MainForm.h"

#include <initializer_list>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

constexpr int leastBarLeft = 5100;
constexpr int leastRightOfBar = 3500; ///< from the bar's left edge to the window's right one
constexpr ColourNumber restColour = NumberOf(SystemColour::ButtonFace);
constexpr ColourNumber dragColour = NumberOf(SystemColour::GrayText);

constexpr int lowPage = 4000;
constexpr int leastPageHeight = 4100;

enum class Side { Left, Top, Width, Height };

/// A control, one of its sides, and what that becomes.
struct Placing {
    Control &control;
    Side side;
    int twips;
};

void Place(const Placing &placing)
{
    switch (placing.side) {
    case Side::Left:
        placing.control.SetLeft(placing.twips);
        break;
    case Side::Top:
        placing.control.SetTop(placing.twips);
        break;
    case Side::Width:
        placing.control.SetWidth(placing.twips);
        break;
    case Side::Height:
        placing.control.SetHeight(placing.twips);
        break;
    }
}

/// In their order, passing over those that a control can't take.
void PlaceAll(std::initializer_list<Placing> placings)
{
    Steps steps;
    for (const Placing &placing : placings)
        steps.Do([&] { Place(placing); });
}

/// Fits the lists of a page that grow with it into the page's height. True if the page is too low for
/// them: then they get their least height, and the page its own.
bool FitLists(Control &page, std::initializer_list<Control *> lists, int margin, int leastHeight = 2400)
{
    const bool isLow = page.Height() < lowPage;
    const int height = isLow ? leastHeight : page.Height() - margin;
    for (Control *list : lists)
        PlaceAll({{*list, Side::Height, height}});
    if (isLow)
        PlaceAll({{page, Side::Height, leastPageHeight}});
    return isLow;
}

} // namespace

void MainForm::TieLayout()
{
    Resize.Handle([this] { FormResize(); });
    area.chkButtonBar.Click.Handle([this] { chkButtonBar_Click(); });
    area.lblStatusLine.Change.Handle([this] { PlaceUpdateNotice(); });
    area.lblStatusLine.Resize.Handle([this] { PlaceUpdateNotice(); });
    erase.Timer1.Tick.Also([this] { LayOutPending(); });

    PicStrip.MouseMove.Handle([this](int buttons, int x) { DragBar(buttons, x); });
    PicHold.MouseMove.Handle([this](int buttons, int x) { DragBar(buttons, x); });
    PicStrip.MouseUp.Handle([this] { LayoutPanes(); });
    PicHold.MouseUp.Handle([this] {
        LayoutPanes();
        FormResize();
    });
}

void MainForm::FormResize()
{
    layoutPending = true;
    if (!IsVisible() || State() == WindowState::Minimised || foldsUp)
        return;
    KeepLeastSize();
    if (area.chkButtonBar.IsChecked())
        PlaceWithoutToolbar();
    else
        PlaceUnderToolbar();
    LayoutPanes();
}

void MainForm::LayOutPending()
{
    if (!layoutPending)
        return;
    FormResize();
    layoutPending = false;
}

void MainForm::KeepLeastSize()
{
    if (Height() < LeastHeight())
        SetSize(Width(), LeastHeight());
    if (Width() < LeastWidth())
        SetSize(LeastWidth(), Height());
}

void MainForm::PlaceWithoutToolbar()
{
    const int rowTop = FrmeToolbar.Height() - 1000;
    const int workTop = FrmeToolbar.Height() - 600;
    PlaceAll({
        {area.txtStrtPath, Side::Top, rowTop},
        {area.lblTitle, Side::Top, rowTop},
        {area.chkExtension, Side::Top, rowTop},
        {area.chkButtonBar, Side::Top, rowTop},
        {Picture3, Side::Top, workTop},
        {PicStrip, Side::Top, workTop},
        {area.TVList, Side::Top, workTop},
        {EyeDropper1, Side::Top, workTop},
        {area.TVList, Side::Height, Height() - 1260},
        {EyeDropper1, Side::Height, Height() - 1320},
    });
}

void MainForm::PlaceUnderToolbar()
{
    const int toolbar = FrmeToolbar.Height();
    const int pathLeft = area.txtStrtPath.Left();
    // Kept: the check boxes stand 5 twips lower than the path, and the tree 35 higher than the bar.
    PlaceAll({
        {area.txtStrtPath, Side::Top, toolbar + 100},
        {area.lblTitle, Side::Top, toolbar + 100},
        {area.chkExtension, Side::Top, toolbar + 105},
        {area.chkButtonBar, Side::Top, toolbar + 105},
        {FrmeToolbar, Side::Width, Width() - 120},
        {area.txtStrtPath, Side::Width, Width() - 3900},
        {area.chkExtension, Side::Left, pathLeft + 1100},
        {area.chkButtonBar, Side::Left, pathLeft + 2400},
        {PicUpdate, Side::Left, area.lblStatusLine.Width() + 300},
        {Picture3, Side::Height, Height() - 750},
        // The bar has no border: its inner height is its height.
        {PicStrip, Side::Height, PicStrip.Height() - 400},
        {area.TVList, Side::Width, InnerWidth() - area.TVList.Left()},
        {area.TVList, Side::Height, Height() - 2330},
        {EyeDropper1, Side::Height, Height() - 2380},
        {Picture3, Side::Top, toolbar + 500},
        {PicStrip, Side::Top, toolbar + 500},
        {EyeDropper1, Side::Top, toolbar + 465},
        {area.TVList, Side::Top, toolbar + 465},
    });
}

void MainForm::LayoutPanes()
{
    PlaceBar();
    GivePagesRoom();
    PlaceFolderPages();
    PlaceDatabaseAndEmptyFolders();
    PlaceRenamePage();
    PlaceErasePart();
    PlaceListingPart();
    PlaceSplitterPage();
}

void MainForm::PlaceBar()
{
    if (PicStrip.Left() < leastBarLeft)
        PicStrip.SetLeft(leastBarLeft);
    // In a window too narrow for both limits this one holds, since it comes second.
    if (PicStrip.Left() > Width() - leastRightOfBar)
        PicStrip.SetLeft(Width() - leastRightOfBar);
    PicStrip.SetBackColor(restColour);

    const int left = PicStrip.Left();
    PlaceAll({
        {area.TVList, Side::Left, left + 80},
        {area.TVList, Side::Width, InnerWidth() - (left + 80) - 20},
        {EyeDropper1, Side::Width, left},
        // Kept: the grip stands in the middle of the height that the bar had before.
        {PicHold, Side::Top, PicStrip.Height() / 2},
        {PicStrip, Side::Height, EyeDropper1.Height()},
    });
}

void MainForm::GivePagesRoom()
{
    // What the side bar does for its pages. Before a face told the room they keep the height they have.
    if (EyeDropper1.PageHeight() <= 0)
        return;
    for (Frame *page : FrameXPMenu)
        page->SetHeight(EyeDropper1.PageHeight());
}

void MainForm::PlaceFolderPages()
{
    const int left = PicStrip.Left();
    // Kept: the file list's height is written twice; the second value stays.
    PlaceAll({{browse.FileList, Side::Height, browse.page.Height() - 3600}});
    FitLists(browse.page, {&browse.FileList}, 3500);
    PlaceAll({
        {browse.DrvList, Side::Width, left - 300},
        {browse.DirList, Side::Width, left - 300},
        {browse.FileList, Side::Width, left - 300},
        {Picture3, Side::Width, left + 20},
        {numbered.btnGBDelete, Side::Left, left - 1620},
        {numbered.btnGBMake, Side::Left, left - 1620},
        {numbered.txtFeltDirSub, Side::Width, left - 2650},
        {numbered.DrvBox, Side::Width, left - 300},
        {numbered.DirBox, Side::Width, left - 300},
    });
    FitLists(numbered.page, {&numbered.DirBox}, 2500);
    PlaceAll({
        {textLists.btnGBLoadFile, Side::Left, left - 2470},
        {textLists.btnGBSaveFile, Side::Left, left - 1300},
        {textLists.lblInfo, Side::Width, left - 2700},
    });
}

void MainForm::PlaceDatabaseAndEmptyFolders()
{
    const int left = PicStrip.Left();
    PlaceAll({
        {database.btnGBLoadList, Side::Left, left - 1300},
        {database.btnGBOpenDatabase, Side::Left, left - 1300},
        {database.lblDatabaseFile, Side::Width, left - 1700},
        {database.lblstrSQL, Side::Width, left - 1700},
        {database.lblTable, Side::Width, left - 1700},
        {database.txtDatabaseFile, Side::Width, left - 1700},
        {database.Tables, Side::Width, left - 1700},
        {database.Fields, Side::Width, left - 1700},
    });
    FitLists(database.page, {&database.Tables, &database.Fields}, 4000);
    PlaceAll({
        {emptyFolders.btnGBToolbarSearch, Side::Left, left - 1300},
        {emptyFolders.btnGBToolbarOpenDir, Side::Left, left - 1300},
        {emptyFolders.btnGBToolbarDelDir, Side::Left, left - 1300},
        {emptyFolders.btnGBToolbarDeleteAll, Side::Left, left - 1300},
        {emptyFolders.btnGBToolbarCopy, Side::Left, left - 1300},
        {emptyFolders.DrvListRemove, Side::Width, left - 1700},
        {emptyFolders.DirListRemove, Side::Width, left - 1700},
        {emptyFolders.ListRemove, Side::Width, left - 1700},
    });
    FitLists(emptyFolders.page, {&emptyFolders.ListRemove}, 3600, 2200);
}

void MainForm::PlaceRenamePage()
{
    const int left = PicStrip.Left();
    PlaceAll({
        {rename.txtCurrentPath, Side::Width, left - 1300},
        {rename.btnGBBrowsePath, Side::Left, left - 600},
        {rename.fraRenamingCap, Side::Width, left - 3550},
        {rename.fraReplaceType, Side::Width, left - 3550},
        {rename.fraAllExtensions, Side::Width, left - 3550},
        {rename.btnGBExtension, Side::Left, left - 2400},
        {rename.btnGBCancel, Side::Left, left - 1200},
        {rename.ProgressBar, Side::Width, left - 300},
        {rename.txtExtensionsChangeAllTo, Side::Width, left - 3800},
        {rename.lblExtensionsChangeAllTo, Side::Width, left - 3800},
    });
}

void MainForm::PlaceErasePart()
{
    const int left = PicStrip.Left();
    PlaceAll({
        {erase.lstErase, Side::Width, left - 300},
        {erase.lblOverwrite, Side::Width, left - 300},
        {erase.ProgrBar, Side::Width, left - 300},
        {erase.PicProgress, Side::Width, left - 300},
        {erase.btnGBErase, Side::Left, left - 1300},
    });
    const bool isLow = FitLists(FrameXPMenu6, {&erase.lstErase}, 5500);
    // Kept: neither distance is the list's height.
    erase.PicProgress.SetTop(erase.lstErase.Top() + (isLow ? 1100 : 4800));
}

void MainForm::PlaceListingPart()
{
    const int left = PicStrip.Left();
    PlaceAll({
        {listing.btnGBBrowse, Side::Left, left - 1300},
        {listing.btnGBMakeList, Side::Left, left - 1300},
        {listing.btnGBResult, Side::Left, left - 1300},
        {listing.lblFilePath, Side::Width, left - 1700},
        {listing.lblRSaved, Side::Width, left - 1700},
        {listing.lblWStatus, Side::Width, left - 1700},
        {listing.CboFilePath, Side::Width, left - 1700},
        {listing.txtReport, Side::Width, left - 1700},
        {listing.ProgressBar1, Side::Width, left - 1700},
    });
}

void MainForm::PlaceSplitterPage()
{
    const int left = PicStrip.Left();
    PlaceAll({
        {splitter.btnGBJoinFile, Side::Left, left - 1200},
        {splitter.btnGBSplitFile, Side::Left, left - 2400},
        {splitter.cboFileName, Side::Width, left - 800},
        {splitter.btnBrowse, Side::Left, left - 600},
        {splitter.Frame2, Side::Width, left - 300},
        {splitter.Frame1, Side::Width, left - 300},
        {splitter.fraEst, Side::Width, left - 300},
        {splitter.fraStats, Side::Width, left - 300},
        {splitter.ctlProgress1, Side::Width, left - 300},
    });
}

void MainForm::DragBar(int buttons, int x)
{
    if ((buttons & PictureBox::leftButton) == 0)
        return;
    PicStrip.SetBackColor(dragColour);
    PicStrip.SetLeft(PicStrip.Left() + x);
}

void MainForm::PlaceUpdateNotice()
{
    PicUpdate.SetLeft(area.lblStatusLine.Width() + 300);
}

void MainForm::chkButtonBar_Click()
{
    FrmeToolbar.SetVisible(!area.chkButtonBar.IsChecked());
    FormResize();
}

} // namespace tressel
