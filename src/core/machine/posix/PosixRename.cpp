// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "machine/posix/PosixRename.h"

#include "machine/NameText.h"
#include "machine/posix/NativePath.h"
#include "machine/posix/SystemError.h"

#include <QString>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <optional>
#include <sys/stat.h>

namespace tressel {

namespace {

std::optional<struct stat> StatusOf(const NativePath &path)
{
    struct stat status = {};
    if (fstatat(path.Folder(), path.Rest(), &status, AT_SYMLINK_NOFOLLOW) != 0)
        return {};
    return status;
}

QString Folded(const NativePath &path)
{
    return TextFromUtf8(path.Bytes(), NameBytes::Raw)->toCaseFolded();
}

/// True if the two are one entry of a file system that compares names without case: a new spelling of a
/// name is no overwriting.
bool IsOtherSpelling(const NativePath &from, const NativePath &to)
{
    if (from.Bytes() == to.Bytes() || Folded(from) != Folded(to))
        return false;
    const auto one = StatusOf(from);
    const auto other = StatusOf(to);
    // Two names of one file have the same number too, but then its count of names tells.
    return one && other && one->st_dev == other->st_dev && one->st_ino == other->st_ino
        && (S_ISDIR(one->st_mode) || one->st_nlink == 1);
}

[[noreturn]] void ThrowRenameError(int error, const NativePath &from)
{
    if (error == EEXIST || error == ENOTEMPTY)
        throw Failure(FailureNumber::FileAlreadyExists);
    if (error == ENOENT && !StatusOf(from))
        throw Failure(from.NumberOfMissingFile());
    throw Failure(NumberOfError(error));
}

void RenameEvenOver(const NativePath &from, const NativePath &to)
{
    if (renameat(from.Folder(), from.Rest(), to.Folder(), to.Rest()) != 0)
        ThrowRenameError(errno, from);
}

} // namespace

void RenameWithoutOverwriting(const NativePath &from, const NativePath &to)
{
    if (renameat2(from.Folder(), from.Rest(), to.Folder(), to.Rest(), RENAME_NOREPLACE) == 0)
        return;
    const int error = errno;
    if (error == ENOSYS || error == EINVAL || (error == EEXIST && IsOtherSpelling(from, to)))
        LookThenRename(from, to);
    else
        ThrowRenameError(error, from);
}

void LookThenRename(const NativePath &from, const NativePath &to)
{
    if (StatusOf(from) && StatusOf(to) && !IsOtherSpelling(from, to))
        throw Failure(FailureNumber::FileAlreadyExists);
    RenameEvenOver(from, to);
}

} // namespace tressel
