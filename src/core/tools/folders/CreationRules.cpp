// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/folders/CreationRules.h"

#include "base/Text.h"

namespace tressel {

using namespace Qt::StringLiterals;

QString WithoutShortExtension(const QString &name)
{
    return HasThreeLetterExtension(name) ? WithoutLast(name, 4) : name;
}

std::optional<QString> EntryOfLine(const QString &line, bool removeExtension)
{
    if (line.isEmpty() || line.startsWith(u';'))
        return {};
    return removeExtension ? WithoutShortExtension(line) : line;
}

QString CreatedName(const QString &entry, bool removeExtension)
{
    // Kept: the last four characters go whatever they are, where the list and the tree look for a dot.
    return removeExtension ? WithoutLast(entry, 4) : entry;
}

QString SuffixedName(const QString &lastFixedName, std::int32_t runNumber)
{
    return lastFixedName + u" ("_s + QString::number(runNumber) + u')';
}

} // namespace tressel
