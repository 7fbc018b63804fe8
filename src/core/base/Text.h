// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace tressel {

/// The first `count` characters; the whole text if it is shorter. Fails with 5 for a negative count.
QString Left(const QString &text, qsizetype count);

/// The last `count` characters; the whole text if it is shorter. Fails with 5 for a negative count.
QString Right(const QString &text, qsizetype count);

/// `count` characters from the 1-based position `start`; empty beyond the end.
/// Fails with 5 for a start below 1 or a negative count.
QString Mid(const QString &text, qsizetype start, qsizetype count);

/// The text without its last `count` characters. Fails with 5 if it has fewer.
QString WithoutLast(const QString &text, qsizetype count);

/// True for an extension of exactly three letters: the fourth character from the end is a dot.
/// Fails with 5 for a text of fewer than four characters.
bool HasThreeLetterExtension(const QString &text);

/// The text, cut at its first NUL character.
QString UpToNul(const QString &text);

} // namespace tressel
