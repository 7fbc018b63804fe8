// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "widgets/looks/Canvas.h"

#include "widgets/SystemColours.h"

#include <QLinearGradient>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace tressel {

QColor AverageColor(const QColor &a, const QColor &b)
{
    return QColor((a.red() + b.red()) / 2, (a.green() + b.green()) / 2, (a.blue() + b.blue()) / 2);
}

QColor ShiftColor(const QColor &colour, int delta)
{
    const auto shifted = [&](int channel) { return std::clamp(channel + delta, 0, 255); };
    return QColor(shifted(colour.red()), shifted(colour.green()), shifted(colour.blue()));
}

QColor MixColor(const QColor &from, const QColor &to, double part)
{
    const auto mixed = [&](int a, int b) { return qRound(a + (b - a) * part); };
    return QColor(mixed(from.red(), to.red()), mixed(from.green(), to.green()),
                  mixed(from.blue(), to.blue()));
}

Canvas::Canvas(QPainter &painter, QSize size, QSize screenSize, qreal scale)
    : painter(painter)
    , size(size)
    , screenSize(screenSize)
    , scale(scale)
{
}

int Canvas::EdgeX(int x) const
{
    if (2 * x <= size.width())
        return qRound(x * scale);
    return screenSize.width() - qRound((size.width() - x) * scale);
}

int Canvas::EdgeY(int y) const
{
    if (2 * y <= size.height())
        return qRound(y * scale);
    return screenSize.height() - qRound((size.height() - y) * scale);
}

QRect Canvas::OnScreen(const QRect &rectangle) const
{
    const QPoint topLeft(EdgeX(rectangle.x()), EdgeY(rectangle.y()));
    const QPoint bottomRight(EdgeX(rectangle.x() + rectangle.width()),
                             EdgeY(rectangle.y() + rectangle.height()));
    return QRect(topLeft, QSize(bottomRight.x() - topLeft.x(), bottomRight.y() - topLeft.y()));
}

void Canvas::DrawLine(int x1, int y1, int x2, int y2, const QColor &colour)
{
    const auto [left, right] = std::minmax(x1, x2);
    const auto [top, bottom] = std::minmax(y1, y2);
    FillBox(left, top, right - left + 1, bottom - top + 1, colour);
}

void Canvas::SetPixel(int x, int y, const QColor &colour)
{
    FillBox(x, y, 1, 1, colour);
}

void Canvas::FillBox(int x, int y, int w, int h, const QColor &colour)
{
    if (w > 0 && h > 0)
        painter.fillRect(OnScreen(QRect(x, y, w, h)), colour);
}

void Canvas::FrameBox(int x, int y, int w, int h, const QColor &colour)
{
    DrawLine(x, y, x + w, y, colour);
    DrawLine(x, y + h, x + w, y + h, colour);
    DrawLine(x, y, x, y + h, colour);
    DrawLine(x + w, y, x + w, y + h, colour);
}

void Canvas::DrawEdgeBox(int x, int y, int w, int h, Edge edge, const QPalette &palette, const QColor &face)
{
    const auto system = [&](int number) { return ColourOf(static_cast<SystemColour>(number), palette); };
    const auto drawRing = [&](int inset, const QColor &topLeft, const QColor &bottomRight) {
        const int right = x + w - 1 - inset;
        const int bottom = y + h - 1 - inset;
        DrawLine(x + inset, y + inset, right, y + inset, topLeft);
        DrawLine(x + inset, y + inset, x + inset, bottom, topLeft);
        DrawLine(x + inset, bottom, right, bottom, bottomRight);
        DrawLine(right, y + inset, right, bottom, bottomRight);
    };
    const QColor light = system(22);
    const QColor brightest = system(20);
    const QColor darkest = system(21);
    const QColor shadow = system(16);
    // No line on a dark face is dark enough to be seen: the dark side gets a light one, and the light side
    // a brighter one still.
    constexpr double brightContrast = 1.7 * edgeContrast;
    const bool darkFace = ContrastOf(Qt::black, face) < edgeContrast;
    const auto outerDark = [&](const QColor &line) { return WithContrast(line, {face}); };
    const auto outerLight = [&](const QColor &line) {
        return LighterBy(line, face, darkFace ? brightContrast : 1);
    };
    switch (edge) {
    case Edge::Raised:
        drawRing(0, outerLight(light), outerDark(darkest));
        drawRing(1, brightest, shadow);
        break;
    case Edge::Sunken:
        drawRing(0, outerDark(shadow), outerLight(brightest));
        drawRing(1, darkest, light);
        break;
    case Edge::RaisedInner:
        drawRing(0, outerLight(brightest), outerDark(shadow));
        break;
    case Edge::SunkenOuter:
        drawRing(0, outerDark(shadow), outerLight(brightest));
        break;
    }
}

void Canvas::GradientFill(const QColor &from, const QColor &to, int x1, int y, int x2, int rows)
{
    if (rows < 1 || x2 < x1)
        return;
    const QRect box = OnScreen(QRect(x1, y + 1, x2 - x1 + 1, rows));
    for (int row = 0; row < box.height(); ++row) {
        const double line = (row + 0.5) * rows / box.height() + 0.5;
        painter.fillRect(QRect(box.x(), box.y() + row, box.width(), 1), MixColor(from, to, line / rows));
    }
}

void Canvas::GradientColumn(const QColor &from, const QColor &to, int x, int y1, int y2)
{
    GradientFill(from, to, x, y1 - 1, x, y2 - y1 + 1);
}

void Canvas::RoundFrame(int x, int y, int w, int h, qreal radius, const QColor &colour)
{
    const QRect outer = OnScreen(QRect(x, y, w + 1, h + 1));
    const QRect inner = OnScreen(QRect(x + 1, y + 1, w - 1, h - 1));
    QPainterPath frame;
    frame.addRoundedRect(outer, radius * scale, radius * scale);
    const qreal innerRadius = std::max(0.0, radius - 1) * scale;
    frame.addRoundedRect(inner, innerRadius, innerRadius);
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.fillPath(frame, colour);
    painter.setRenderHint(QPainter::Antialiasing, false);
}

void Canvas::RoundRim(qreal radius, const Rim &rim)
{
    const int w = size.width();
    const int h = size.height();
    const int reach = static_cast<int>(std::ceil(radius));
    if (w < 2 * reach || h < 2 * reach)
        return;
    painter.save();
    painter.setClipRect(OnScreen(QRect(0, reach, w, h - 2 * reach)));
    GradientColumn(rim.left.first, rim.left.second, 1, 1, h - 2);
    GradientColumn(rim.right.first, rim.right.second, w - 2, 1, h - 2);
    painter.setClipRect(OnScreen(QRect(reach, 0, w - 2 * reach, h)));
    DrawLine(1, 1, w - 2, 1, rim.top);
    DrawLine(1, h - 2, w - 2, h - 2, rim.bottom);

    for (const bool atRight : {false, true}) {
        for (const bool atBottom : {false, true})
            RoundRimCorner(radius, rim, atRight, atBottom);
    }
    painter.restore();
}

void Canvas::RoundRimCorner(qreal radius, const Rim &rim, bool atRight, bool atBottom)
{
    const int w = size.width();
    const int h = size.height();
    const int reach = static_cast<int>(std::ceil(radius));
    const QRect corner = OnScreen(QRect(atRight ? w - reach : 0, atBottom ? h - reach : 0, reach, reach));
    const std::pair<QColor, QColor> &side = atRight ? rim.right : rim.left;
    // From the side's end to that of the level line.
    const QRectF box(corner);
    QLinearGradient passage(QPointF(atRight ? box.right() : box.left(), atBottom ? box.top() : box.bottom()),
                            QPointF(atRight ? box.left() : box.right(), atBottom ? box.bottom() : box.top()));
    passage.setColorAt(0, atBottom ? side.second : side.first);
    passage.setColorAt(1, atBottom ? rim.bottom : rim.top);
    // From the frame's outer border, so that nothing of the face shines through between the two.
    QPainterPath ring;
    ring.addRoundedRect(OnScreen(QRect(0, 0, w, h)), radius * scale, radius * scale);
    ring.addRoundedRect(OnScreen(QRect(2, 2, w - 4, h - 4)), (radius - 2) * scale, (radius - 2) * scale);
    painter.setClipRect(corner);
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.fillPath(ring, passage);
    painter.setRenderHint(QPainter::Antialiasing, false);
}

void Canvas::RoundCorners(qreal radius)
{
    const QRect whole(QPoint(), screenSize);
    QPainterPath corners;
    corners.addRect(whole);
    corners.addRoundedRect(whole, radius * scale, radius * scale);
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationOut);
    painter.fillPath(corners, Qt::black);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.setRenderHint(QPainter::Antialiasing, false);
}

} // namespace tressel
