// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "SafeName.h"

#include "machine/NameText.h"
#include "machine/TextFile.h"

#include <QHash>

#include <algorithm>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

constexpr char32_t zeroWidthNonJoiner = 0x200C;
constexpr char32_t zeroWidthJoiner = 0x200D;

bool IsUnsafe(char32_t character)
{
    switch (QChar::category(character)) {
    case QChar::Other_Control:
    case QChar::Other_Surrogate:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    case QChar::Other_Format:
        // These two join letters in ordinary words and signs.
        return character != zeroWidthNonJoiner && character != zeroWidthJoiner;
    default:
        return false;
    }
}

/// The bytes of a character as a shell writes them between $' and '.
QString Escaped(const QString &character)
{
    static const QHash<char, QString> named{{'\a', u"\\a"_s}, {'\b', u"\\b"_s}, {'\f', u"\\f"_s},
                                            {'\n', u"\\n"_s}, {'\r', u"\\r"_s}, {'\t', u"\\t"_s},
                                            {'\v', u"\\v"_s}};
    QString escaped;
    for (const char byte : EncodeText(character, NameBytes::Raw)) {
        const auto code = static_cast<unsigned char>(byte);
        escaped += named.value(byte, u'\\' + QString::number(code, 8).rightJustified(3, u'0'));
    }
    return escaped;
}

/// Calls `act` with each character, a pair of surrogates as one, and whether it is unsafe.
template <typename Act> void ForEachCharacter(const QString &text, Act &&act)
{
    for (qsizetype at = 0; at < text.size();) {
        const bool isPair =
            at + 1 < text.size() && text.at(at).isHighSurrogate() && text.at(at + 1).isLowSurrogate();
        const char32_t code =
            isPair ? QChar::surrogateToUcs4(text.at(at), text.at(at + 1)) : char32_t(text.at(at).unicode());
        const qsizetype length = isPair ? 2 : 1;
        act(text.mid(at, length), IsUnsafe(code));
        at += length;
    }
}

bool HasUnsafe(const QString &text)
{
    // Most names have nothing beyond the plain letters.
    if (std::ranges::all_of(text, [](QChar character) { return character >= u' ' && character < u'\x7f'; }))
        return false;
    bool found = false;
    ForEachCharacter(text, [&found](const QString &, bool isUnsafe) { found = found || isUnsafe; });
    return found;
}

} // namespace

QString SafeName(const QString &name)
{
    if (!HasUnsafe(name) && !name.startsWith(u'\''))
        return name;
    QString quoted = u"'"_s;
    bool isEscaping = false;
    ForEachCharacter(name, [&](const QString &character, bool isUnsafe) {
        if (isUnsafe != isEscaping)
            quoted += isUnsafe ? u"'$'"_s : u"''"_s;
        isEscaping = isUnsafe;
        if (isUnsafe)
            quoted += Escaped(character);
        else
            quoted += character == u"'"_s ? u"'\\''"_s : character;
    });
    return quoted + u'\'';
}

QString SafeText(const QString &text)
{
    if (!HasUnsafe(text))
        return text;
    QString safe;
    ForEachCharacter(
        text, [&safe](const QString &character, bool isUnsafe) { safe += isUnsafe ? u"?"_s : character; });
    return safe;
}

} // namespace tressel
