// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "windows/WorkPanes.h"

#include "base/Twips.h"
#include "windows/SplitBar.h"

namespace tressel {

WorkPanes::WorkPanes(const PictureBox &stripControl, const SideBar &barControl, QWidget *leftPane,
                     SplitBar *splitBar, QWidget *rightPane)
    : strip(stripControl)
    , bar(barControl)
    , left(*leftPane)
    , split(*splitBar)
    , right(*rightPane)
{
    left.setParent(this);
    split.setParent(this);
    right.setParent(this);
}

void WorkPanes::TakeOver()
{
    shownStripLeft = strip.Left();
    Place();
}

QSize WorkPanes::minimumSizeHint() const
{
    return QSize(left.minimumSizeHint().width() + splitWidth + right.minimumSizeHint().width(),
                 std::max(left.minimumSizeHint().height(), right.minimumSizeHint().height()));
}

void WorkPanes::resizeEvent(QResizeEvent *)
{
    Place();
}

void WorkPanes::Place()
{
    const int paneWidth = std::clamp(ToPixels(bar.Width()), 0, std::max(width() - splitWidth, 0));
    left.setGeometry(0, 0, paneWidth, height());
    right.setGeometry(paneWidth + splitWidth, 0, width() - paneWidth - splitWidth, height());
    const int splitShown = std::min(ToPixels(strip.Width()), splitWidth);
    split.setGeometry(ToPixels(shownStripLeft), 0, splitShown, height());
    split.raise();
}

} // namespace tressel
