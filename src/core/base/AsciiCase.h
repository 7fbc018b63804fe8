// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringView>

namespace tressel {

// The case of texts of ASCII letters, as most names are, many times as quick as that of any text.

bool IsAscii(const QString &text);
/// ASCII that WithAsciiLower leaves as it is.
bool IsAsciiWithoutCapitals(QStringView text);
/// All other characters stay.
QString WithAsciiUpper(QString text);
QString WithAsciiLower(QString text);

} // namespace tressel
