// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "machine/MoveFile.h"

#include "base/Steps.h"
#include "machine/FileSystem.h"
#include "machine/Paths.h"

namespace tressel {

namespace {

constexpr qint64 copiedAtOnce = 1 << 20;

void CopyDown(OpenFile &source, OpenFile &target)
{
    for (QByteArray piece = source.Read(copiedAtOnce); !piece.isEmpty(); piece = source.Read(copiedAtOnce))
        target.Write(piece);
    target.TakeAttributesOf(source);
    // What is removed then must be there after a loss of power too.
    target.Flush();
    target.Close();
}

/// Takes away what was made, if that is still possible.
void TakeBack(FileSystem &files, const QString &made)
{
    Steps undoing;
    undoing.Do([&] { files.RemoveFile(made); });
}

} // namespace

void CopyFile(FileSystem &files, const QString &from, const QString &to)
{
    const auto source = files.Open(from, OpenFor::Reading);
    const auto target = files.Open(to, OpenFor::Creating);
    try {
        CopyDown(*source, *target);
    } catch (const Failure &) {
        Steps undoing;
        undoing.Do([&] { target->Close(); });
        TakeBack(files, to);
        throw;
    }
}

void MoveFile(FileSystem &files, const QString &from, const QString &to)
{
    try {
        files.Rename(from, to);
        return;
    } catch (const Failure &failure) {
        // The number for another volume, among other things; a copy finds out.
        if (failure.number != FailureNumber::PathFileAccessError)
            throw;
    }
    const auto hold = files.Hold(FolderOf(files, from));
    const auto status = files.Status(from, Links::Keep);
    if (status && status->kind == EntryKind::Link)
        files.MakeLink(to, files.LinkTarget(from));
    else
        CopyFile(files, from, to);
    try {
        files.RemoveFile(from);
    } catch (const Failure &) {
        TakeBack(files, to);
        throw;
    }
}

} // namespace tressel
