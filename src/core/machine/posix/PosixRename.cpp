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
#include <unistd.h>

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

EntryPlace PlaceOf(const NativePath &path)
{
    return {path.Folder(), path.Rest()};
}

/// For errors by which the system says that it can't refuse to overwrite, or knows no second names.
bool MeansUnknownThere(int error)
{
    return error == ENOSYS || error == EINVAL || error == EOPNOTSUPP;
}

bool IsThere(const EntryPlace &place)
{
    struct stat status = {};
    return fstatat(place.folder, place.name, &status, AT_SYMLINK_NOFOLLOW) == 0;
}

int LinkThenUnlink(const EntryPlace &from, const EntryPlace &to)
{
    if (linkat(from.folder, from.name, to.folder, to.name, 0) != 0)
        return errno;
    if (unlinkat(from.folder, from.name, 0) == 0)
        return 0;
    const int error = errno;
    unlinkat(to.folder, to.name, 0);
    return error;
}

int LookThenRename(const EntryPlace &from, const EntryPlace &to)
{
    return IsThere(from) && IsThere(to) ? EEXIST : RenameOver(from, to);
}

int RenameToNewBySmallerSteps(const EntryPlace &from, const EntryPlace &to)
{
    const int error = LinkThenUnlink(from, to);
    // A folder has no second name, and some file systems know none at all.
    return MeansUnknownThere(error) || error == EPERM || error == EMLINK ? LookThenRename(from, to) : error;
}

} // namespace

void RenameWithoutOverwriting(const NativePath &from, const NativePath &to)
{
    const auto [fromFolder, fromName] = PlaceOf(from);
    const auto [toFolder, toName] = PlaceOf(to);
    if (renameat2(fromFolder, fromName, toFolder, toName, RENAME_NOREPLACE) == 0)
        return;
    const int error = errno;
    if (MeansUnknownThere(error) || (error == EEXIST && IsOtherSpelling(from, to)))
        RenameBySmallerSteps(from, to);
    else
        ThrowRenameError(error, from);
}

void RenameBySmallerSteps(const NativePath &from, const NativePath &to)
{
    const int error = IsOtherSpelling(from, to) ? RenameOver(PlaceOf(from), PlaceOf(to))
                                                : RenameToNewBySmallerSteps(PlaceOf(from), PlaceOf(to));
    if (error != 0)
        ThrowRenameError(error, from);
}

int RenameOver(const EntryPlace &from, const EntryPlace &to)
{
    return renameat(from.folder, from.name, to.folder, to.name) == 0 ? 0 : errno;
}

int RenameToNew(const EntryPlace &from, const EntryPlace &to)
{
    if (renameat2(from.folder, from.name, to.folder, to.name, RENAME_NOREPLACE) == 0)
        return 0;
    return MeansUnknownThere(errno) ? RenameToNewBySmallerSteps(from, to) : errno;
}

} // namespace tressel
