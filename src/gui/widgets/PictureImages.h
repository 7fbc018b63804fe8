// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/Picture.h"

#include <QImage>

namespace tressel {

/// A control's picture at this size in pixels of the screen, square and with its own proportions kept.
/// Null for no picture and for one that can't be read. Decoded once for each size.
QImage ImageOf(const Picture &picture, int pixels);

} // namespace tressel
