// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "machine/Paths.h"

#include "machine/FileSystem.h"

namespace tressel {

namespace {

bool HasDriveLetters(const FileSystem &files)
{
    return files.Separator() == u'\\';
}

/// How paths compare: names on drives with letters keep their case and compare without it.
Qt::CaseSensitivity SensitivityOf(const FileSystem &files)
{
    return HasDriveLetters(files) ? Qt::CaseInsensitive : Qt::CaseSensitive;
}

} // namespace

QString WithSeparator(const FileSystem &files, const QString &path)
{
    return path.endsWith(files.Separator()) ? path : path + files.Separator();
}

QString JoinPath(const FileSystem &files, const QString &folder, const QString &name)
{
    return WithSeparator(files, folder) + name;
}

QString EntryToPath(const FileSystem &files, const QString &entry)
{
    QString path = entry;
    return path.replace(u'\\', files.Separator());
}

QString PathToEntry(const FileSystem &files, const QString &path)
{
    QString entry = path;
    if (files.Separator() != u'\\')
        entry.replace(u'\\', u'_');
    return entry.replace(files.Separator(), u'\\');
}

bool FolderExists(FileSystem &files, const QString &path)
{
    const auto status = files.Status(path, Links::Follow);
    return status && status->kind == EntryKind::Folder;
}

bool FileExists(FileSystem &files, const QString &path)
{
    const auto status = files.Status(path, Links::Follow);
    return status && status->kind != EntryKind::Folder;
}

std::optional<QString> FolderBelow(FileSystem &files, const QString &start, const QString &entry)
{
    const QString below = EntryToPath(files, entry);
    // Separators alone name the start folder itself.
    if (start.isEmpty() || below.count(files.Separator()) == below.size())
        return {};
    const auto hold = files.Hold(start);
    const QString path = JoinPath(files, start, below);
    const auto status = files.Status(path, Links::Keep);
    return status && status->kind == EntryKind::Folder ? std::optional(path) : std::nullopt;
}

QString FileNameOf(const FileSystem &files, const QString &path)
{
    return path.mid(path.lastIndexOf(files.Separator()) + 1);
}

QString FolderOf(FileSystem &files, const QString &path)
{
    const qsizetype last = path.lastIndexOf(files.Separator());
    if (last < 0)
        return {};
    const QString root = DriveOf(files, path);
    return last < root.size() ? path.left(last + 1) : path.left(last);
}

QString DriveOf(FileSystem &files, const QString &path)
{
    const QString whole = WithSeparator(files, path);
    QString best;
    const QList<Volume> volumes = files.Volumes();
    for (const Volume &volume : volumes) {
        if (whole.startsWith(volume.root, SensitivityOf(files)) && volume.root.size() > best.size())
            best = volume.root;
    }
    return best.isEmpty() && !volumes.isEmpty() ? volumes.first().root : best;
}

bool IsDriveRoot(FileSystem &files, const QString &path)
{
    return path.endsWith(files.Separator()) && path.compare(DriveOf(files, path), SensitivityOf(files)) == 0;
}

QString OnDriveC(const FileSystem &files, const QString &path)
{
    if (HasDriveLetters(files) || !path.startsWith(QStringLiteral("C:"), Qt::CaseInsensitive))
        return path;
    return EntryToPath(files, path.mid(2));
}

QString OnDriveA(FileSystem &files, const QString &path)
{
    constexpr qsizetype rootLength = 3; // "A:\"
    for (const Volume &volume : files.Volumes()) {
        if (volume.isFloppy)
            return volume.root + path.mid(rootLength);
    }
    throw Failure(FailureNumber::DiskNotReady);
}

} // namespace tressel
