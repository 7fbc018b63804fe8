// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "support/Journal.h"

namespace tressel {

using namespace Qt::StringLiterals;

void Journal::Note(const QString &what, const QString &about, const QString &detail, int failure)
{
    entries.append({what, about, detail, failure});
}

QStringList Journal::Lines() const
{
    QStringList lines;
    for (const JournalEntry &entry : entries) {
        QString line = entry.what;
        for (const QString &part : {entry.about, entry.detail}) {
            if (!part.isEmpty())
                line += u' ' + part;
        }
        if (entry.failure != 0)
            line += u" -> %1"_s.arg(entry.failure);
        lines += line;
    }
    return lines;
}

QStringList Journal::About(const QString &what) const
{
    QStringList about;
    for (const JournalEntry &entry : entries) {
        if (entry.what == what)
            about += entry.about;
    }
    return about;
}

int Journal::Count(const QString &what) const
{
    return static_cast<int>(About(what).size());
}

} // namespace tressel
