// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "widgets/PixelPainting.h"

#include <QPainter>

namespace tressel {

void DrawOnPixels(QPainter &painter, const QRect &place,
                  const std::function<QImage(QSize screenSize, qreal scale)> &draw)
{
    const QTransform toScreen = painter.deviceTransform();
    const QRectF onScreen = toScreen.mapRect(QRectF(place));
    const QPoint corner(qRound(onScreen.left()), qRound(onScreen.top()));
    const QPoint end(qRound(onScreen.right()), qRound(onScreen.bottom()));
    const QImage picture = draw(QSize(end.x() - corner.x(), end.y() - corner.y()), toScreen.m11());
    painter.save();
    painter.setWorldTransform(toScreen.inverted(), true);
    painter.drawImage(corner, picture);
    painter.restore();
}

} // namespace tressel
