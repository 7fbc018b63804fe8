// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/splitter/PartFiles.h"

#include "machine/FileSystem.h"
#include "machine/Paths.h"
#include "tools/splitter/SplitRules.h"

#include <new>

namespace tressel {

namespace {

bool IsWhole(const FileSystem &files, const QString &path)
{
    const bool hasDrive = files.Separator() == u'\\' && path.size() > 1 && path.at(1) == u':';
    return path.startsWith(files.Separator()) || hasDrive;
}

} // namespace

QString PathIn(const FileSystem &files, const QString &folder, const QString &path)
{
    return path.isEmpty() || IsWhole(files, path) ? path : JoinPath(files, folder, path);
}

std::int32_t LengthOf(FileSystem &files, const QString &path)
{
    const auto status = files.Status(path, Links::Follow);
    if (!status)
        throw Failure(FailureNumber::FileNotFound);
    return Length32(status->length);
}

std::unique_ptr<OpenFile> OpenOrMake(FileSystem &files, const QString &path, Links links)
{
    const auto status = files.Status(path, links);
    if (!status)
        return files.Open(path, OpenFor::Creating, Sharing::Exclusive);
    // A pipe would give no end of waiting, and a device no end of bytes.
    if (status->kind != EntryKind::File)
        throw Failure(FailureNumber::PathFileAccessError);
    const auto itself = files.Status(path, Links::Keep);
    if (!itself || itself->kind != EntryKind::Link)
        return files.Open(path, OpenFor::Changing, Sharing::Exclusive);
    // Behind a link nothing is written, but what can't be written is refused as anywhere else.
    if (status->readOnly)
        throw Failure(FailureNumber::PathFileAccessError);
    return files.Open(path, OpenFor::Reading, Sharing::Exclusive);
}

QByteArray MakeRoom(qint64 bytes)
{
    if (bytes < 0)
        throw Failure(FailureNumber::SubscriptOutOfRange);
    try {
        return QByteArray(bytes, Qt::Uninitialized);
    } catch (const std::bad_alloc &) {
        throw Failure(FailureNumber::OutOfMemory);
    }
}

} // namespace tressel
