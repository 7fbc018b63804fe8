// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/Colours.h"

#include <QColor>
#include <QPalette>

namespace tressel {

/// The colour that a system colour's number stands for in this palette: the one table of it.
/// An invalid colour for a number that has none.
QColor ColourOf(SystemColour colour, const QPalette &palette);

/// A control's colour as it is drawn. An invalid colour for a number that is neither a plain colour nor a
/// system colour.
QColor TranslateColour(ColourNumber number, const QPalette &palette);

} // namespace tressel
