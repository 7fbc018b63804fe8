// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "faces/FrameFace.h"

#include "faces/PageHost.h"

#include <QGroupBox>
#include <QGuiApplication>
#include <QStackedWidget>

namespace tressel {

FrameFace::FrameFace(Frame &control, QWidget &widget, const FaceLooks &faceLooks)
    : Face(control, widget)
    , frame(control)
    , looks(faceLooks)
    , shownColour(NumberOf(SystemColour::ButtonFace))
{
}

void FrameFace::Show()
{
    auto *box = qobject_cast<QGroupBox *>(&Widget());
    if (box && box->title() != frame.Caption())
        box->setTitle(frame.Caption());
    ShowBackColor();
}

void FrameFace::ShowBackColor()
{
    // A ground that was never written is the toolkit's own.
    if (shownColour == frame.BackColor() || !looks.colour)
        return;
    shownColour = frame.BackColor();
    QPalette palette = Widget().palette();
    palette.setColor(QPalette::Window, looks.colour(shownColour, QGuiApplication::palette()));
    Widget().setPalette(palette);
    Widget().setAutoFillBackground(true);
}

void FrameFace::ShowVisible(bool visible)
{
    if (dynamic_cast<const PageHost *>(Widget().parentWidget()))
        return;
    auto *stack = qobject_cast<QStackedWidget *>(Widget().parentWidget());
    if (!stack)
        Face::ShowVisible(visible);
    else if (visible && stack->currentWidget() != &Widget())
        stack->setCurrentWidget(&Widget());
}

} // namespace tressel
