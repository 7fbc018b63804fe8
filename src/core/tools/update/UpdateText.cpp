// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/update/UpdateText.h"

#include "base/Text.h"

namespace tressel {

using namespace Qt::StringLiterals;

bool TellsNewerVersion(const QString &text, int revision)
{
    constexpr int buildLength = 4;
    return Right(text, buildLength).compare(QString::number(revision), Qt::CaseInsensitive) > 0;
}

QString NewVersionNotice(const QString &text)
{
    constexpr int versionLength = 6;
    return u" (New version "_s + Right(text, versionLength) + u" is available)"_s;
}

} // namespace tressel
