// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QStringView>

#include <optional>

namespace tressel {

/// How the bytes of names that aren't UTF-8 stand in a text file. In memory such a byte is the lone
/// surrogate U+DC80 + (byte - 0x80).
enum class NameBytes {
    /// Lists, which may come from anywhere: such a byte is written as its surrogate's own three bytes
    /// (ED B2 80 to ED B3 BF), so that one odd name doesn't change how the rest of the file is read;
    /// a file that is not UTF-8 but for those is read as Windows-1252.
    Escaped,
    /// Names themselves, and files that the program itself wrote for others to read: such a byte stands
    /// as it is, and whatever isn't UTF-8 is read back as such bytes.
    Raw,
};

/// Text from UTF-8. With Escaped, nothing if the bytes are neither UTF-8 nor escaped bytes; with Raw any
/// bytes are text, and EncodeText gives the same bytes back.
std::optional<QString> TextFromUtf8(QByteArrayView bytes, NameBytes nameBytes);

/// Writes text as UTF-8 from `to` on, where three bytes must be free for each character, and returns
/// where it ended. Half of a surrogate pair that stands for no byte becomes U+FFFD; `damaged`, if given,
/// is then set to true and else left alone.
char *WriteUtf8(QStringView text, NameBytes nameBytes, char *to, bool *damaged = nullptr);

} // namespace tressel
