// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "widgets/looks/PillColours.h"

#include <QImage>

#include <array>

namespace tressel {

/// Width of a corner's picture, and heights of the upper and the lower ones, in pixels of the design.
constexpr int pillCornerWidth = 18;
constexpr int pillTopHeight = 11;
constexpr int pillBottomHeight = 12;

/// The four rounded corners of a pill, each derived from the lines that meet in it.
struct PillCorners {
    QImage topLeft;
    QImage topRight;
    QImage bottomLeft;
    QImage bottomRight;
};

/// The corners in these colours for this scale of the screen, built at the first call.
const PillCorners &CornersOf(const PillColours &colours, qreal scale);

} // namespace tressel
