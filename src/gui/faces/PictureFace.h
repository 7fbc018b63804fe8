// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/PictureBox.h"
#include "faces/FrameFace.h"

namespace tressel {

/// A picture box: a frame that tells of the mouse. Where the widget can have the keyboard, Enter and the
/// space bar click it.
///
/// A handler may move the box with each move of the mouse, and the widget follows when its window next
/// takes the box's place over; till then the mouse is told where it is over the box, not over the widget.
class PictureFace : public FrameFace {
public:
    PictureFace(PictureBox &control, QWidget &widget, const FaceLooks &looks);

protected:
    void Show() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    PictureBox &box;
    int shownLeft = 0;
};

} // namespace tressel
