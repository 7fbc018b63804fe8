// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "faces/PictureFace.h"

#include "base/Twips.h"
#include "faces/Keys.h"

#include <QMouseEvent>

namespace tressel {

PictureFace::PictureFace(PictureBox &control, QWidget &widget, const FaceLooks &looks)
    : FrameFace(control, widget, looks)
    , box(control)
{
}

void PictureFace::Show()
{
    shownLeft = box.Left();
    if (box.HasHandPointer())
        Widget().setCursor(Qt::PointingHandCursor);
    FrameFace::Show();
}

bool PictureFace::eventFilter(QObject *watched, QEvent *event)
{
    // What the mouse does here isn't told to a box below as well.
    if (event->type() == QEvent::MouseMove) {
        const auto *move = static_cast<QMouseEvent *>(event);
        const int x = ToTwips(move->position().toPoint().x()) - (box.Left() - shownLeft);
        const int buttons = move->buttons() & Qt::LeftButton ? PictureBox::leftButton : 0;
        Hand([&] { box.UserMovesMouse(buttons, x); });
        return true;
    }
    if (event->type() == QEvent::MouseButtonPress
        && static_cast<QMouseEvent *>(event)->button() == Qt::LeftButton)
        Hand([this] { box.UserPressesMouse(); });
    if (event->type() == QEvent::MouseButtonRelease) {
        const auto *release = static_cast<QMouseEvent *>(event);
        const bool isClick =
            release->button() == Qt::LeftButton && Widget().rect().contains(release->position().toPoint());
        Hand([&] {
            box.UserReleasesMouse();
            if (isClick)
                box.UserClicks();
        });
        return true;
    }
    if (IsEnter(*event) || IsKey(*event, Qt::Key_Space)) {
        Hand([this] { box.UserClicks(); });
        return true;
    }
    return FrameFace::eventFilter(watched, event);
}

} // namespace tressel
