// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "machine/NameText.h"

namespace tressel {

namespace {

using Byte = unsigned char;

constexpr char16_t firstByteMark = 0xDC80;
constexpr char16_t lastByteMark = 0xDCFF;

bool IsByteMark(char32_t character)
{
    return character >= firstByteMark && character <= lastByteMark;
}

struct Character {
    char32_t code = 0;
    int length = 0; ///< bytes; 0 where no character of UTF-8 starts
};

bool IsContinuation(Byte byte)
{
    return (byte & 0xC0) == 0x80;
}

/// The character at `at`, taken to be of the three-byte pattern even where it is a surrogate.
Character CharacterAt(const Byte *at, const Byte *end)
{
    const Byte lead = *at;
    int length = 0;
    char32_t code = 0;
    char32_t least = 0;
    if (lead >= 0xC2 && lead <= 0xDF) {
        length = 2;
        code = lead & 0x1F;
        least = 0x80;
    } else if (lead >= 0xE0 && lead <= 0xEF) {
        length = 3;
        code = lead & 0x0F;
        least = 0x800;
    } else if (lead >= 0xF0 && lead <= 0xF4) {
        length = 4;
        code = lead & 0x07;
        least = 0x10000;
    }
    if (length == 0 || end - at < length)
        return {};
    for (int index = 1; index < length; ++index) {
        if (!IsContinuation(at[index]))
            return {};
        code = (code << 6) | (at[index] & 0x3F);
    }
    return code < least || code > 0x10FFFF ? Character{} : Character{code, length};
}

char *WriteThree(char32_t code, char *to)
{
    *to++ = static_cast<char>(0xE0 | (code >> 12));
    *to++ = static_cast<char>(0x80 | ((code >> 6) & 0x3F));
    *to++ = static_cast<char>(0x80 | (code & 0x3F));
    return to;
}

char *WriteFour(char32_t code, char *to)
{
    *to++ = static_cast<char>(0xF0 | (code >> 18));
    *to++ = static_cast<char>(0x80 | ((code >> 12) & 0x3F));
    *to++ = static_cast<char>(0x80 | ((code >> 6) & 0x3F));
    *to++ = static_cast<char>(0x80 | (code & 0x3F));
    return to;
}

/// Copies ASCII, which is the same on both sides, as long as a whole block of it comes: most names are
/// nothing else.
template <typename From, typename To> void CopyBlocks(const From *&at, const From *end, To *&to)
{
    constexpr qsizetype block = 8;
    while (end - at >= block) {
        From bits = 0;
        for (qsizetype index = 0; index < block; ++index)
            bits |= at[index];
        if (bits >= 0x80)
            return;
        for (qsizetype index = 0; index < block; ++index)
            to[index] = static_cast<To>(at[index]);
        at += block;
        to += block;
    }
}

} // namespace

std::optional<QString> TextFromUtf8(QByteArrayView bytes, NameBytes nameBytes)
{
    // No byte gives more than one 16-bit character.
    QString text(bytes.size(), Qt::Uninitialized);
    char16_t *const start = reinterpret_cast<char16_t *>(text.data());
    char16_t *to = start;
    const Byte *at = reinterpret_cast<const Byte *>(bytes.data());
    const Byte *const end = at + bytes.size();
    CopyBlocks(at, end, to);
    while (at < end) {
        if (*at < 0x80) {
            *to++ = *at++;
            continue;
        }
        const Character character = CharacterAt(at, end);
        const bool isSurrogate = character.code >= 0xD800 && character.code <= 0xDFFF;
        const bool isEscaped = nameBytes == NameBytes::Escaped && IsByteMark(character.code);
        if (character.length == 0 || (isSurrogate && !isEscaped)) {
            if (nameBytes == NameBytes::Escaped)
                return {};
            *to++ = static_cast<char16_t>(firstByteMark + (*at++ - 0x80));
            continue;
        }
        if (character.code >= 0x10000) {
            *to++ = QChar::highSurrogate(character.code);
            *to++ = QChar::lowSurrogate(character.code);
        } else {
            *to++ = static_cast<char16_t>(character.code);
        }
        at += character.length;
    }
    text.truncate(to - start);
    return text;
}

char *WriteUtf8(QStringView text, NameBytes nameBytes, char *to, bool *damaged)
{
    const char16_t *at = text.utf16();
    const char16_t *const end = at + text.size();
    CopyBlocks(at, end, to);
    while (at < end) {
        const char16_t unit = *at++;
        if (unit < 0x80) {
            *to++ = static_cast<char>(unit);
        } else if (unit < 0x800) {
            *to++ = static_cast<char>(0xC0 | (unit >> 6));
            *to++ = static_cast<char>(0x80 | (unit & 0x3F));
        } else if (!QChar::isSurrogate(unit)) {
            to = WriteThree(unit, to);
        } else if (QChar::isHighSurrogate(unit) && at < end && QChar::isLowSurrogate(*at)) {
            to = WriteFour(QChar::surrogateToUcs4(unit, *at++), to);
        } else if (!IsByteMark(unit)) {
            to = WriteThree(QChar::ReplacementCharacter, to);
            if (damaged)
                *damaged = true;
        } else if (nameBytes == NameBytes::Raw) {
            *to++ = static_cast<char>(unit - firstByteMark + 0x80);
        } else {
            to = WriteThree(unit, to);
        }
    }
    return to;
}

} // namespace tressel
