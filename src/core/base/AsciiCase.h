// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringView>

namespace tressel {

// The case of texts of ASCII letters, as most names are, many times as quick as that of any text.

bool IsAscii(QStringView text);

/// All other characters stay.
inline char16_t AsciiLower(QChar character)
{
    const char16_t code = character.unicode();
    return code >= u'A' && code <= u'Z' ? code ^ (u'a' ^ u'A') : code;
}
QString WithAsciiUpper(QString text);
QString WithAsciiLower(QString text);

} // namespace tressel
