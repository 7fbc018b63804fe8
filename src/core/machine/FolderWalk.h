// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

#include <memory>
#include <optional>
#include <vector>

namespace tressel {

class FileSystem;
class FolderHold;

/// The folders below a folder: depth first, a folder before those in it. The caller reads each folder
/// once, as it comes, and tells which folders are in it. Only names on the way are held and nothing
/// recurses, so a tree may be of any size and depth.
class FolderWalk {
public:
    /// `names` are the folders in `folder` itself, which is held as long as the walk goes.
    FolderWalk(FileSystem &files, const QString &folder, const QStringList &names);

    ~FolderWalk();
    FolderWalk(const FolderWalk &) = delete;
    FolderWalk &operator=(const FolderWalk &) = delete;

    /// The path of the next folder, nothing after the last.
    std::optional<QString> Next();
    /// The folders in the one that Next gave last: they come before its neighbours.
    void Enter(const QStringList &names);

private:
    struct Level {
        qsizetype length; ///< characters of `path` that stand before this level's names
        QStringList names;
        qsizetype next = 0;
    };

    std::unique_ptr<FolderHold> hold;
    QChar separator;
    QString path;
    std::vector<Level> levels;
};

} // namespace tressel
