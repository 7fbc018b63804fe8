// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QRect>

#include <functional>

class QPainter;

namespace tressel {

/// Draws a picture pixel on pixel: `draw` is asked for one of that size in pixels of the screen, with the
/// number of those to a pixel of the design. The toolkit's own scaling would smear it where its place falls
/// between two pixels of the screen.
void DrawOnPixels(QPainter &painter, const QRect &place,
                  const std::function<QImage(QSize screenSize, qreal scale)> &draw);

} // namespace tressel
