// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "base/Steps.h"
#include "forms/MainForm.h"
#include "machine/Screen.h"

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

constexpr int leastBarLeft = 5100;
constexpr int leastRightOfBar = 3500; ///< from the bar's left edge to the window's right one
constexpr ColourNumber restColour = NumberOf(SystemColour::ButtonFace);
constexpr ColourNumber dragColour = NumberOf(SystemColour::GrayText);

} // namespace

void MainForm::TieLayout()
{
    Resize.Handle([this] { FormResize(); });
    area.chkButtonBar.Click.Handle([this] { chkButtonBar_Click(); });
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

void MainForm::LayoutPanes()
{
    if (PicStrip.Left() < leastBarLeft)
        PicStrip.SetLeft(leastBarLeft);
    // In a window too narrow for both limits this one holds, since it comes second.
    if (PicStrip.Left() > Width() - leastRightOfBar)
        PicStrip.SetLeft(Width() - leastRightOfBar);
    PicStrip.SetBackColor(restColour);
    Steps steps;
    steps.Do([this] { EyeDropper1.SetWidth(PicStrip.Left()); });
}

int MainForm::CentredLeft(int width) const
{
    return machine.screen.Left() + (machine.screen.Width() - width) / 2;
}

int MainForm::CentredTop(int height) const
{
    return machine.screen.Top() + (machine.screen.Height() - height) / 2;
}

void MainForm::DragBar(int buttons, int x)
{
    if ((buttons & PictureBox::leftButton) == 0)
        return;
    PicStrip.SetBackColor(dragColour);
    PicStrip.SetLeft(PicStrip.Left() + x);
}

void MainForm::chkButtonBar_Click()
{
    FrmeToolbar.SetVisible(!area.chkButtonBar.IsChecked());
    FormResize();
}

} // namespace tressel
