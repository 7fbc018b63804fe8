// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace tressel {

/// One thing that was asked of the memory machine.
struct JournalEntry {
    QString what; ///< "MakeFolder", "WriteSetting", "Play", "Box" ...
    QString about; ///< the path, the key, the text of a box ...
    QString detail; ///< the target of a rename, the value of a setting, the length of a write ...
    int failure = 0; ///< the number it failed with, 0 for none
};

/// What was asked of a memory machine, all its parts together, in the order in which it was asked.
class Journal {
public:
    void Note(const QString &what, const QString &about = {}, const QString &detail = {}, int failure = 0);

    const QList<JournalEntry> &Entries() const { return entries; }
    /// The entries as lines: "what about detail", and " -> number" behind one that failed.
    QStringList Lines() const;
    /// What the entries of one kind are about, in order; those that failed too.
    QStringList About(const QString &what) const;
    int Count(const QString &what) const;
    void Clear() { entries.clear(); }

private:
    QList<JournalEntry> entries;
};

} // namespace tressel
