// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/Picture.h"

#include <QColor>
#include <QImage>

namespace tressel {

/// What the program's own pictures are drawn in, besides the one colour that they share on every ground.
struct PictureColours {
    QColor lines;
    QColor paper;
    bool operator==(const PictureColours &) const = default;
};

/// Those that are seen on a ground of that colour under text of the other: the pictures' own on a light one.
PictureColours PictureColoursOn(const QColor &ground, const QColor &text);

/// A control's picture at this size in pixels of the screen, square and with its own proportions kept.
/// Null for no picture and for one that can't be read. Decoded once for each size. The colours are for the
/// program's own pictures alone.
QImage ImageOf(const Picture &picture, int pixels, const PictureColours &colours = {});

} // namespace tressel
