// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "base/AsciiCase.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace tressel {

namespace {

/// Letters from `first` to `last` become those of the other case.
QString WithOtherCase(QString text, char16_t first, char16_t last)
{
    constexpr char16_t caseBit = u'a' ^ u'A';
    const auto isMeant = [=](QChar character) {
        return character.unicode() >= first && character.unicode() <= last;
    };
    // Looked at first, so that a text that stays isn't copied.
    if (std::none_of(text.cbegin(), text.cend(), isMeant))
        return text;
    for (QChar &character : text) {
        if (isMeant(character))
            character = QChar(character.unicode() ^ caseBit);
    }
    return text;
}

} // namespace

bool IsAscii(const QString &text)
{
    return std::ranges::all_of(text, [](QChar character) { return character.unicode() < 0x80; });
}

bool IsAsciiWithoutCapitals(QStringView text)
{
    constexpr quint64 each = 0x0001000100010001; // of the four characters in a number
    constexpr quint64 notAscii = each * 0xFF80;
    const QChar *at = text.begin();
    for (quint64 letters = 0; text.end() - at >= 4; at += 4) {
        std::memcpy(&letters, at, sizeof(letters));
        // The bit above ASCII comes to each that is at the least the one letter, and not the other.
        const quint64 fromA = letters + each * (0x80 - u'A');
        const quint64 behindZ = letters + each * (0x80 - u'Z' - 1);
        if (((letters & notAscii) | (fromA & ~behindZ & each * 0x80)) != 0)
            return false;
    }
    return std::all_of(at, text.end(), [](QChar character) {
        return character.unicode() < 0x80 && (character < u'A' || character > u'Z');
    });
}

QString WithAsciiUpper(QString text)
{
    return WithOtherCase(std::move(text), u'a', u'z');
}

QString WithAsciiLower(QString text)
{
    return WithOtherCase(std::move(text), u'A', u'Z');
}

} // namespace tressel
