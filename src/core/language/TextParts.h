// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace tressel {

// The small routines on text that all tools share. Positions are counted in 16 bits.

/// The first character in upper case, and the rest. Fails with 5 for an empty text.
QString UpperFirst(const QString &text);

/// What follows the first occurrence of the marker, counted as if the marker were one character long:
/// the tail of a longer one stays in front. The whole text if there is none. Fails with 6 for a text
/// beyond 32767 characters, as the next two do.
QString TextAfter(const QString &text, const QString &marker);

/// What stands before the first occurrence of the marker; the whole text if there is none.
QString TextBefore(const QString &text, const QString &marker);

/// What stands before the last occurrence of the marker; the whole text if there is none.
QString TextBeforeLast(const QString &text, const QString &marker);

/// True if the part occurs in the text, upper and lower case told apart. An empty text contains nothing.
bool TextContains(const QString &text, const QString &part);

} // namespace tressel
