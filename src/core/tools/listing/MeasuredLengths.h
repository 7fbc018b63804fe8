// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "machine/FileSystem.h"

#include <QHash>

namespace tressel {

/// The lengths of the files of a tree, kept from the measuring of it to the listing of it, so that each
/// file is looked at once. What would need more than a few megabytes isn't kept and is looked at again.
class MeasuredLengths {
public:
    void Clear();
    /// Keeps the lengths of a folder's entries.
    void Keep(const QString &folder, const QList<FolderEntry> &entries);
    bool Knows(const QString &folder) const { return byFolder.contains(folder); }
    /// Puts the kept lengths into a later listing of the folder and forgets them. False if the folder has
    /// another number of entries by now.
    bool FillIn(const QString &folder, QList<FolderEntry> &entries);

private:
    QHash<QString, QList<qint64>> byFolder;
    qsizetype kept = 0;
};

} // namespace tressel
