// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "widgets/looks/PillColours.h"

#include <QImage>

#include <array>

namespace tressel {

/// The four rounded corners of a pill, each derived from the lines that meet in it. Their innermost columns
/// are cuts through the lines above and below, and, on a finer grid than the design's, their innermost rows
/// through those at the sides.
struct PillCorners {
    QImage topLeft;
    QImage topRight;
    QImage bottomLeft;
    QImage bottomRight;
};

/// The corners in these colours for this scale of the screen, built at the first call.
const PillCorners &CornersOf(const PillColours &colours, qreal scale);

} // namespace tressel
