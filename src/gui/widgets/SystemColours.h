// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/Colours.h"

#include <QColor>
#include <QPalette>

#include <initializer_list>

namespace tressel {

/// The colour that a system colour's number stands for in this palette: the one table of it.
/// An invalid colour for a number that has none.
QColor ColourOf(SystemColour colour, const QPalette &palette);

/// How well two colours are told apart, from 1 to 21: the contrast ratio of the Web Content Accessibility
/// Guidelines 2.1, which ask for 3 where a text is large or a mark.
double ContrastOf(const QColor &a, const QColor &b);

/// How well an edge is told apart from the face within it, at the least.
constexpr double edgeContrast = 2;

/// The colour itself where it is told apart from all these grounds by that ratio, else the nearest one that
/// is, on the way to black or, where even black is too near, to white.
QColor WithContrast(const QColor &colour, std::initializer_list<QColor> grounds, double least = edgeContrast);
/// The same on the way to white alone; the colour itself where even white is too near.
QColor LighterBy(const QColor &colour, const QColor &ground, double least);

/// A control's colour as it is drawn. An invalid colour for a number that is neither a plain colour nor a
/// system colour.
QColor TranslateColour(ColourNumber number, const QPalette &palette);

} // namespace tressel
