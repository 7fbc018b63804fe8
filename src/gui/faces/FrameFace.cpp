// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "faces/FrameFace.h"

#include <QGroupBox>
#include <QStackedWidget>

namespace tressel {

FrameFace::FrameFace(Frame &control, QWidget &widget)
    : Face(control, widget)
    , frame(control)
{
}

void FrameFace::Show()
{
    auto *box = qobject_cast<QGroupBox *>(&Widget());
    if (box && box->title() != frame.Caption())
        box->setTitle(frame.Caption());
}

void FrameFace::ShowVisible(bool visible)
{
    auto *stack = qobject_cast<QStackedWidget *>(Widget().parentWidget());
    if (!stack)
        Face::ShowVisible(visible);
    else if (visible && stack->currentWidget() != &Widget())
        stack->setCurrentWidget(&Widget());
}

} // namespace tressel
