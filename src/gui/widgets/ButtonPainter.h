// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QFont>
#include <QImage>
#include <QPalette>
#include <QRegion>
#include <QSize>

class QStyle;
class QWidget;

namespace tressel {

class IsButton;

/// What a button is drawn into: the desktop's palette, style and scale.
struct ButtonSurroundings {
    QPalette palette;
    QFont font; ///< for a button without one of its own
    const QStyle *style = nullptr;
    const QWidget *widget = nullptr; ///< the button's own, null where there is none
    qreal scale = 1; ///< pixels of the screen to a pixel of the design
    QSize screenSize; ///< pixels of the screen that the button covers; empty: its size times the scale
    bool marksFocus = false; ///< the focus must be seen, whether or not the button's design shows it
    bool underlinesMnemonic = true;
};

/// The whole button as a picture in pixels of the screen, transparent outside its rounded corners. A button
/// whose theme can't be drawn gives it up and is drawn in the look that takes its place.
QImage DrawButton(IsButton &button, const ButtonSurroundings &around);

/// The pixels of the design that belong to a button; none if all do. On a finer grid, whose edges are soft,
/// those that an edge touches belong to it, too.
QRegion ShapeOf(const IsButton &button, qreal scale = 1);

/// Whether the caption fits into its box, so that no ellipsis stands for a part of it.
bool ShowsWholeCaption(const IsButton &button, const QFont &containersFont);

} // namespace tressel
