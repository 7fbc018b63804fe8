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
    for (QChar &character : text)
        character = QChar(character.unicode() ^ (isMeant(character) ? caseBit : 0));
    return text;
}

} // namespace

bool IsAscii(QStringView text)
{
    // Without a way out in the middle, so that the machine can look at many characters at once.
    char16_t bits = 0;
    for (const QChar character : text)
        bits |= character.unicode();
    return bits < 0x80;
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
