// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "machine/FileSystem.h"
#include "machine/posix/HeldFolders.h"
#include "machine/posix/MountedVolumes.h"

namespace tressel {

/// The disc of a POSIX system, by calls on open folders. Paths may be of any length; names are any bytes.
class PosixFileSystem : public FileSystem {
public:
    QChar Separator() const override { return u'/'; }
    std::unique_ptr<FolderHold> Hold(const QString &folder) override { return held.Hold(folder); }
    std::optional<FileStatus> Status(const QString &path, Links links) override;
    QList<FolderEntry> List(const QString &folder, Lengths lengths = Lengths::LeftOut) override;
    std::unique_ptr<FolderReader> Read(const QString &folder, Lengths lengths = Lengths::LeftOut) override;
    void FlushFolder(const QString &folder) override;
    std::optional<Failure> TryMakeFolder(const QString &path) override;
    bool MadeAtOnce(const QString &path) override { return !TryMakeFolder(path); }
    std::optional<Failure> TryRemoveFolder(const QString &path) override;
    void RemoveFile(const QString &path) override;
    void Rename(const QString &from, const QString &to) override;
    std::unique_ptr<OpenFile> Open(const QString &path, OpenFor purpose,
                                   Sharing sharing = Sharing::Shared) override;
    std::unique_ptr<ReplacingFile> Replace(const QString &path, IfThere ifThere) override;
    QString LinkTarget(const QString &path) override;
    void MakeLink(const QString &path, const QString &target) override;
    void SetReadOnly(const QString &path, bool readOnly) override;
    QList<Volume> Volumes() override { return volumes.All(); }
    QString VolumeLabel(const QString &path) override;
    qint64 FreeSpace(const QString &path) override;

private:
    Descriptor OpenFolder(const QString &folder) const;
    void RenameThoroughly(const QString &from, const QString &to) const;

    HeldFolders held;
    MountedVolumes volumes;
};

} // namespace tressel
