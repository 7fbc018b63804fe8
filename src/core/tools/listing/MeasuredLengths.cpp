// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/listing/MeasuredLengths.h"

namespace tressel {

namespace {

constexpr qsizetype mostKept = 1 << 20;

} // namespace

void MeasuredLengths::Clear()
{
    byFolder.clear();
    kept = 0;
}

void MeasuredLengths::Keep(const QString &folder, const QList<FolderEntry> &entries)
{
    // A folder counts too: its path takes room.
    kept += entries.size() + folder.size();
    if (kept > mostKept)
        return;
    QList<qint64> lengths;
    lengths.reserve(entries.size());
    for (const FolderEntry &entry : entries)
        lengths.append(entry.length);
    byFolder.insert(folder, lengths);
}

bool MeasuredLengths::FillIn(const QString &folder, QList<FolderEntry> &entries)
{
    const QList<qint64> lengths = byFolder.take(folder);
    if (lengths.size() != entries.size())
        return false;
    for (qsizetype index = 0; index < entries.size(); ++index)
        entries[index].length = lengths.at(index);
    return true;
}

} // namespace tressel
