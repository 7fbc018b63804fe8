// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "machine/FileSystem.h"

#include <map>
#include <memory>

namespace tressel {

/// One file, folder or link of the memory file system. A drive's root is a folder without a parent.
struct MemoryNode {
    QString name; ///< as it was written
    EntryKind kind = EntryKind::Folder;
    MemoryNode *parent = nullptr;
    quint64 born = 0; ///< counts up; the order of the file system
    bool hidden = false;
    bool readOnly = false;
    bool heldExclusively = false;
    QDateTime modified;
    QByteArray bytes; ///< of a file
    quint64 names = 1;
    std::optional<QList<Extent>> extents; ///< where the file stands, if that can be told
    bool movesOnWriting = false; ///< each write puts it somewhere else
    bool isInJournal = false; ///< what is written to it goes through a journal
    QString target; ///< of a link
    std::map<QString, std::shared_ptr<MemoryNode>> children; ///< of a folder, by the folded name
};

/// A drive of the memory file system.
struct MemoryDrive {
    std::shared_ptr<MemoryNode> root;
    QString label;
    qint64 freeSpace = 0;
    bool ready = true; ///< false: there is no medium in it
};

/// "c:\a\b": the whole path of a node, folded.
QString FoldedPath(const MemoryNode &node);

} // namespace tressel
