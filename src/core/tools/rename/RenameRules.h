// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace tressel {

// What a rename run makes of a name: pure functions, old name to new name. The extension is part of the name
// unless a rule says otherwise. Upper and lower case are those of the text in no particular language, so
// that a name may change its length ("ß" becomes "SS"); a byte that isn't UTF-8 stays as it is.

/// What becomes of the letters of a name before any of them is made a capital.
enum class LetterCase { Unchanged, Upper, Lower };

/// What a case run changes.
struct CaseRule {
    LetterCase letters = LetterCase::Unchanged;
    bool firstLetter = false; ///< the first character becomes a capital
    bool everyWord = false; ///< the first character of each word becomes a capital, and all else small
};

/// The name by the rule. The words come last and so override what is asked besides. Fails with 5 for an
/// empty name whose first letter is to change.
QString CasedName(const QString &name, const CaseRule &rule);

/// What stands behind the first "."; a name without one is its own extension. Fails with 6 for a name of
/// more than 32767 characters, as the two below do.
QString ExtensionOf(const QString &name);

/// True if the name has that extension, whatever the case of both.
bool HasExtension(const QString &name, const QString &extension);

/// The name up to its first ".", and behind it the extension; a name without a "." gets one.
QString WithExtension(const QString &name, const QString &extension);

/// An extension as a person writes it, ".txt" or "*.txt", without what leads to it: what stands behind the
/// first ".".
QString ReducedExtension(const QString &text);

/// The name with each occurrence of one text replaced by the other, upper and lower case told apart.
/// `from` isn't empty.
QString ReplacedName(const QString &name, const QString &from, const QString &to);

/// True if the text holds one of the nine characters that are refused in what a new name is made of:
/// / \ : * ? " < > |
bool HasIllegalCharacter(const QString &text);

} // namespace tressel
