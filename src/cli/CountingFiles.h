// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "machine/FileSystem.h"

namespace tressel {

/// What a creation run really did, as it was seen at the disc.
struct CreationCount {
    int made = 0; ///< folders that came into being
    int alreadyThere = 0; ///< entries whose folder existed before
    int failed = 0; ///< entries that have no folder now
    int tried = 0; ///< entries that the run got to
};

/// The disc, with an eye on what a creation run does there: the run itself keeps no count.
///
/// A run asks for each entry whether its folder is there, and then makes one path level by level from
/// the top. What counts is the answer, and the last level of the path.
class CountingFiles : public FileSystem {
public:
    explicit CountingFiles(FileSystem &files);

    /// From here on the folders below `destination` are counted.
    void StartCounting(const QString &destination);
    /// The count so far.
    CreationCount Count() const;

    QChar Separator() const override { return files.Separator(); }
    std::optional<FileStatus> Status(const QString &path, Links links) override;
    QList<FolderEntry> List(const QString &folder, Lengths lengths) override
    {
        return files.List(folder, lengths);
    }
    std::unique_ptr<FolderReader> Read(const QString &folder, Lengths lengths) override
    {
        return files.Read(folder, lengths);
    }
    std::optional<Failure> TryMakeFolder(const QString &path) override;
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
    void ReplaceContents(const QString &path, const QByteArray &bytes) override
    {
        files.ReplaceContents(path, bytes);
    }
    void SetReadOnly(const QString &path, bool readOnly) override { files.SetReadOnly(path, readOnly); }
    QList<Volume> Volumes() override { return files.Volumes(); }
    QString VolumeLabel(const QString &path) override { return files.VolumeLabel(path); }
    qint64 FreeSpace(const QString &path) override { return files.FreeSpace(path); }

private:
    void AddEntry(CreationCount &to) const;

    FileSystem &files;
    QString testedBelow; ///< how the path of a test for an entry starts
    CreationCount done; ///< without the present entry
    bool nextExists = false; ///< what the test for the entry to come said
    bool entryExisted = false;
    bool lastLevelMade = true;
    QString lastLevel;
};

} // namespace tressel
