// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "machine/FileSystem.h"

#include <functional>

namespace tressel {

/// The disc as it is, for commands that look at or stand in for some of its steps.
class ForwardingFiles : public FileSystem {
public:
    explicit ForwardingFiles(FileSystem &disc)
        : files(disc)
    {
    }

    QChar Separator() const override { return files.Separator(); }
    std::unique_ptr<FolderHold> Hold(const QString &folder) override { return files.Hold(folder); }
    std::optional<FileStatus> Status(const QString &path, Links links) override
    {
        return files.Status(path, links);
    }
    QList<FolderEntry> List(const QString &folder, Lengths lengths) override
    {
        return files.List(folder, lengths);
    }
    std::unique_ptr<FolderReader> Read(const QString &folder, Lengths lengths) override
    {
        return files.Read(folder, lengths);
    }
    std::optional<Failure> TryMakeFolder(const QString &path) override { return files.TryMakeFolder(path); }
    bool MadeAtOnce(const QString &path) override { return files.MadeAtOnce(path); }
    std::optional<Failure> TryRemoveFolder(const QString &path) override
    {
        return files.TryRemoveFolder(path);
    }
    void RemoveFile(const QString &path) override { files.RemoveFile(path); }
    void Rename(const QString &from, const QString &to) override { files.Rename(from, to); }
    std::unique_ptr<OpenFile> Open(const QString &path, OpenFor purpose, Sharing sharing) override
    {
        return files.Open(path, purpose, sharing);
    }
    std::unique_ptr<ReplacingFile> Replace(const QString &path, IfThere ifThere) override
    {
        return files.Replace(path, ifThere);
    }
    QString LinkTarget(const QString &path) override { return files.LinkTarget(path); }
    void MakeLink(const QString &path, const QString &target) override { files.MakeLink(path, target); }
    void SetReadOnly(const QString &path, bool readOnly) override { files.SetReadOnly(path, readOnly); }
    QList<Volume> Volumes() override { return files.Volumes(); }
    QString VolumeLabel(const QString &path) override { return files.VolumeLabel(path); }
    qint64 FreeSpace(const QString &path) override { return files.FreeSpace(path); }

protected:
    FileSystem &files;
};

/// Called by those that look at a run's steps, so that a run without pauses of its own can be shown and
/// interrupted.
using StepHook = std::function<void()>;

} // namespace tressel
