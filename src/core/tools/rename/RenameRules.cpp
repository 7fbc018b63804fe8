// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/rename/RenameRules.h"

#include "base/AsciiCase.h"
#include "language/TextParts.h"

#include <QLocale>

#include <algorithm>
#include <array>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

const QString dot = u"."_s;

/// In the order in which they are looked for.
constexpr std::array<char16_t, 9> illegalCharacters{u'/', u'\\', u':', u'*', u'?', u'"', u'<', u'>', u'|'};

// Not QString's own functions: those put a replacement character for a byte that isn't UTF-8. Most names are
// plain letters, which need no library.

QString Upper(const QString &text)
{
    return IsAscii(text) ? WithAsciiUpper(text) : QLocale::c().toUpper(text);
}

QString Lower(const QString &text)
{
    return IsAscii(text) ? WithAsciiLower(text) : QLocale::c().toLower(text);
}

/// Small letters, and the first character of what stands between white space a capital.
QString ProperCase(const QString &text)
{
    QString proper = Lower(text);
    bool startsWord = true;
    for (QChar &character : proper) {
        if (startsWord)
            character = character.toUpper();
        startsWord = character.isSpace();
    }
    return proper;
}

} // namespace

QString CasedName(const QString &name, const CaseRule &rule)
{
    QString changed = name;
    if (rule.letters == LetterCase::Upper)
        changed = Upper(changed);
    else if (rule.letters == LetterCase::Lower)
        changed = Lower(changed);
    if (rule.firstLetter)
        changed = UpperFirst(changed);
    if (rule.everyWord)
        changed = ProperCase(changed);
    return changed;
}

QString ExtensionOf(const QString &name)
{
    return TextAfter(name, dot);
}

bool HasExtension(const QString &name, const QString &extension)
{
    return Upper(ExtensionOf(name)) == Upper(extension);
}

QString WithExtension(const QString &name, const QString &extension)
{
    return TextBefore(name, dot) + dot + extension;
}

QString ReducedExtension(const QString &text)
{
    return TextAfter(text, dot);
}

QString ReplacedName(const QString &name, const QString &from, const QString &to)
{
    QString changed = name;
    return changed.replace(from, to);
}

bool HasIllegalCharacter(const QString &text)
{
    return std::any_of(illegalCharacters.begin(), illegalCharacters.end(),
                       [&](char16_t character) { return TextContains(text, QChar(character)); });
}

} // namespace tressel
