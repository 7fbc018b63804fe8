// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "base/AsciiCase.h"

#include <algorithm>
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

QString WithAsciiUpper(QString text)
{
    return WithOtherCase(std::move(text), u'a', u'z');
}

QString WithAsciiLower(QString text)
{
    return WithOtherCase(std::move(text), u'A', u'Z');
}

} // namespace tressel
