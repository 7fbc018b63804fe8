// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "windows/LogoPicture.h"

#include "widgets/ProgramIcons.h"

#include <QPainter>

namespace tressel {

LogoPicture::LogoPicture(const QString &name, bool isPressed)
    : pressed(isPressed)
{
    setObjectName(name);
    resize(extent);
}

void LogoPicture::showEvent(QShowEvent *event)
{
    // The picture that the mouse went down on is hidden now, and the release would go to nobody.
    if (pressed)
        grabMouse();
    QWidget::showEvent(event);
}

void LogoPicture::hideEvent(QHideEvent *event)
{
    if (pressed)
        releaseMouse();
    QWidget::hideEvent(event);
}

/// The picture's ink is dark: a dark window has a light tile behind it.
void LogoPicture::PaintGround(QPainter &painter) const
{
    constexpr int brightMiddle = 128;
    constexpr int roundness = 10;
    if (palette().color(QPalette::Window).lightness() >= brightMiddle)
        return;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0xF5, 0xF5, 0xF5));
    painter.drawRoundedRect(rect(), roundness, roundness);
}

void LogoPicture::paintEvent(QPaintEvent *)
{
    constexpr int edge = 6;
    constexpr int pressedEdge = 11;
    const int around = pressed ? pressedEdge : edge;
    QPainter painter(this);
    PaintGround(painter);
    ProgramIcon(QStringLiteral("tressel"))
        .paint(&painter, rect().adjusted(around, around, -around, -around), Qt::AlignCenter);
}

} // namespace tressel
