// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "settings/HiveTree.h"

#include <QByteArray>

namespace tressel {

// The hive as a text file that a person can read: UTF-8, one thing a line.
//
//   ; a remark
//   [key\path]                    or ["key\\path"], with escapes, if it holds characters that need them
//   "name"="text"                 \\  \"  \n  \r  \t  and \uXXXX for a 16-bit character
//   "name"=dword:0000001e         a 32-bit number, eight hexadecimal digits
//   "name"=hex(3):00,ff           bytes of another kind, the kind and the bytes in hexadecimal
//
// Whatever a 16-bit text can hold comes back as it was: a NUL, a line break, half of a surrogate pair.

/// What could be read of such a file.
struct HiveReading {
    HiveTree tree; ///< all that was well formed; what stands below a damaged key line isn't taken
    bool isDamaged = false; ///< some line was not well formed
};

QByteArray HiveToText(const HiveTree &tree);
HiveReading HiveFromText(const QByteArray &bytes);

} // namespace tressel
