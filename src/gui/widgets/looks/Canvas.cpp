// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "widgets/looks/Canvas.h"

#include "widgets/SystemColours.h"

#include <QPainterPath>

#include <algorithm>

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

void Canvas::DrawEdgeBox(int x, int y, int w, int h, Edge edge, const QPalette &palette)
{
    constexpr auto light = static_cast<SystemColour>(22);
    constexpr auto brightest = static_cast<SystemColour>(20);
    constexpr auto darkest = static_cast<SystemColour>(21);
    const auto drawRing = [&](int inset, SystemColour topLeft, SystemColour bottomRight) {
        const int right = x + w - 1 - inset;
        const int bottom = y + h - 1 - inset;
        DrawLine(x + inset, y + inset, right, y + inset, ColourOf(topLeft, palette));
        DrawLine(x + inset, y + inset, x + inset, bottom, ColourOf(topLeft, palette));
        DrawLine(x + inset, bottom, right, bottom, ColourOf(bottomRight, palette));
        DrawLine(right, y + inset, right, bottom, ColourOf(bottomRight, palette));
    };
    switch (edge) {
    case Edge::Raised:
        drawRing(0, light, darkest);
        drawRing(1, brightest, SystemColour::ButtonShadow);
        break;
    case Edge::Sunken:
        drawRing(0, SystemColour::ButtonShadow, brightest);
        drawRing(1, darkest, light);
        break;
    case Edge::RaisedInner:
        drawRing(0, brightest, SystemColour::ButtonShadow);
        break;
    case Edge::SunkenOuter:
        drawRing(0, SystemColour::ButtonShadow, brightest);
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

void Canvas::DotFrame(int x, int y, int w, int h, const QColor &colour)
{
    const QRect box = OnScreen(QRect(x, y, w + 1, h + 1));
    const int dot = std::max(1, qRound(scale));
    const auto drawDot = [&](int left, int top) {
        painter.fillRect(QRect(left, top, dot, dot) & box, colour);
    };
    for (int left = box.left(); left <= box.right(); left += 2 * dot) {
        drawDot(left, box.top());
        drawDot(left, box.bottom() - dot + 1);
    }
    for (int top = box.top(); top <= box.bottom(); top += 2 * dot) {
        drawDot(box.left(), top);
        drawDot(box.right() - dot + 1, top);
    }
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
