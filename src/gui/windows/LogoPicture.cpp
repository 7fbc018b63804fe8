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

void LogoPicture::paintEvent(QPaintEvent *)
{
    constexpr int edge = 4;
    constexpr int pressedEdge = 9;
    const int around = pressed ? pressedEdge : edge;
    QPainter painter(this);
    ProgramIcon(QStringLiteral("tressel"))
        .paint(&painter, rect().adjusted(around, around, -around, -around), Qt::AlignCenter);
}

} // namespace tressel
