// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "machine/WholeFile.h"

#include "machine/FileSystem.h"

#include <algorithm>
#include <new>

namespace tressel {

namespace {

constexpr qint64 readAtOnce = 1 << 20;

} // namespace

QByteArray ReadWhole(FileSystem &files, const QString &path, qint64 largest, OpenFor purpose)
{
    const auto file = files.Open(path, purpose);
    QByteArray bytes;
    try {
        bytes.reserve(std::min(file->Length(), largest));
        // What has no length, as a pipe, shows only here that it has no end.
        for (QByteArray piece = file->Read(readAtOnce); !piece.isEmpty(); piece = file->Read(readAtOnce)) {
            bytes += piece;
            if (bytes.size() > largest) {
                throw Failure(FailureNumber::OutOfMemory,
                              QStringLiteral("The file is larger than %1 MiB").arg(largest >> 20));
            }
        }
    } catch (const std::bad_alloc &) {
        throw Failure(FailureNumber::OutOfMemory);
    }
    return bytes;
}

void ReplaceContents(FileSystem &files, const QString &path, const QByteArray &bytes)
{
    const auto file = files.Replace(path, IfThere::Replace);
    file->Write(bytes);
    file->Commit();
}

} // namespace tressel
