// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/Colours.h"

#include <QColor>
#include <QPalette>

namespace tressel {

/// The colour that a system colour's number stands for in this palette: the one table of it.
/// An invalid colour for a number that has none. The grey of disabled text is made readable where the
/// palette's own is too faint on its buttons.
QColor ColourOf(SystemColour colour, const QPalette &palette);

/// How well two colours are told apart, from 1 to 21: the contrast ratio of the Web Content Accessibility
/// Guidelines 2.1, which ask for 3 where a text is large or a mark.
double ContrastOf(const QColor &a, const QColor &b);

/// A control's colour as it is drawn. An invalid colour for a number that is neither a plain colour nor a
/// system colour.
QColor TranslateColour(ColourNumber number, const QPalette &palette);

} // namespace tressel
