// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

#include <memory>

namespace tressel {

class FileSystem;
class FolderHold;

/// A folder whose direct children are renamed. What it holds is looked at once, when this is made; what
/// comes, goes or gets other names afterwards isn't noted. The folder is held as long as this lives.
class RenameFolder {
public:
    /// Fails as FileSystem::List does.
    RenameFolder(FileSystem &files, const QString &path);
    ~RenameFolder();
    RenameFolder(const RenameFolder &) = delete;
    RenameFolder &operator=(const RenameFolder &) = delete;

    /// Names of the folders in it, and of the links that lead to folders.
    const QStringList &Folders() const { return folders; }
    /// Names of all else.
    const QStringList &Files() const { return others; }
    /// Both, folders first.
    QStringList All() const { return folders.isEmpty() ? others : folders + others; }

    /// Gives the entry of that path another name, and puts its new path in place of the old one. Never
    /// overwrites: fails with 58 if the name is taken, with 53 if the entry has gone, with 52 for an empty
    /// name. A link is renamed itself.
    void Rename(QString &path, const QString &newName);
    /// True if there is something of that name now that isn't a folder, nor a link to one.
    bool HasFile(const QString &name);
    /// Whether "a" and "A" are two names here, as far as the names that are there can tell: if none of them
    /// has letters, it says yes.
    bool TellsCaseApart();
    /// The whole path of an entry.
    QString PathOf(const QString &name) const { return base + name; }
    /// Writes the whole path of an entry in the place of another, in the same room.
    void PutPath(QString &path, const QString &name) const
    {
        path.truncate(0);
        path.append(base).append(name);
    }

private:
    FileSystem &files;
    QString base; ///< of the paths of all entries: the folder with the separator at its end
    QString newPath; ///< room for the present rename
    std::unique_ptr<FolderHold> hold;
    QStringList folders;
    QStringList others;
};

} // namespace tressel
