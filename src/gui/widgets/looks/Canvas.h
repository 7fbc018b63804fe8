// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/Colours.h"

#include <QColor>
#include <QPainter>
#include <QPalette>
#include <QRect>
#include <QSize>

#include <utility>

namespace tressel {

/// Per channel (a + b) / 2.
QColor AverageColor(const QColor &a, const QColor &b);
/// Adds delta to red, green and blue, each clamped to 0 to 255.
QColor ShiftColor(const QColor &colour, int delta);
/// From one colour to another, `part` from 0 to 1.
QColor MixColor(const QColor &from, const QColor &to, double part);

/// The edges that DrawEdgeBox draws: a line outside and a line inside it, either of which may be missing.
enum class Edge { RaisedInner = 4, SunkenOuter = 2, Raised = 5, Sunken = 10 };

/// The colours of the lines just within a frame. Those at the sides run from an upper to a lower one.
struct Rim {
    QColor top;
    QColor bottom;
    std::pair<QColor, QColor> left;
    std::pair<QColor, QColor> right;
};

/// A face's drawing surface in pixels of the design, on whatever finer grid the screen has.
///
/// Each line of the design begins and ends on a border between two pixels of the screen, so that nothing
/// is smeared at a fractional scale. The right and the lower half are laid out from their own side, so that
/// a frame is as thick there as on the left and at the top.
class Canvas {
public:
    /// `painter` draws in pixels of the screen, of which `screenSize` holds the whole face.
    Canvas(QPainter &painter, QSize size, QSize screenSize, qreal scale);

    int Width() const { return size.width(); }
    int Height() const { return size.height(); }
    qreal Scale() const { return scale; }
    QPainter &Painter() { return painter; }
    /// The pixels of the screen that this rectangle covers.
    QRect OnScreen(const QRect &rectangle) const;

    /// Both ends belong to the line, which is level or upright.
    void DrawLine(int x1, int y1, int x2, int y2, const QColor &colour);
    void SetPixel(int x, int y, const QColor &colour);
    /// Nothing for a width or height below 1.
    void FillBox(int x, int y, int w, int h, const QColor &colour);
    /// The frame's lines run from (x, y) to (x + w, y + h), both included.
    void FrameBox(int x, int y, int w, int h, const QColor &colour);
    /// An edge around a face of this colour: in the desktop's colours, but no fainter than an edge may be.
    void DrawEdgeBox(int x, int y, int w, int h, Edge edge, const QPalette &palette, const QColor &face);
    /// `rows` lines from (x1, y + 1) to (x2, y + rows); the last one has the colour `to`.
    void GradientFill(const QColor &from, const QColor &to, int x1, int y, int x2, int rows);
    /// A column of such colours between these rows, both included.
    void GradientColumn(const QColor &from, const QColor &to, int x, int y1, int y2);
    /// A frame as FrameBox draws it, whose corners are rounded.
    void RoundFrame(int x, int y, int w, int h, qreal radius, const QColor &colour);
    /// The lines just within a face's frame of this radius, which follow its corners.
    void RoundRim(qreal radius, const Rim &rim);
    /// Makes everything outside of rounded corners transparent.
    void RoundCorners(qreal radius);

private:
    void RoundRimCorner(qreal radius, const Rim &rim, bool atRight, bool atBottom);
    int EdgeX(int x) const;
    int EdgeY(int y) const;

    QPainter &painter;
    QSize size;
    QSize screenSize;
    qreal scale;
};

} // namespace tressel
