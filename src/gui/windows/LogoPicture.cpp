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
