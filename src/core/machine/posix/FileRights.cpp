// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "machine/posix/FileRights.h"

#include "machine/posix/SystemError.h"

#include <cerrno>
#include <sys/xattr.h>
#include <unistd.h>

namespace tressel {

namespace {

constexpr const char *listName = "system.posix_acl_access";
constexpr mode_t plainRights = S_IRWXU | S_IRWXG | S_IRWXO;

/// For a file without a list, and for a file system that knows none.
bool MeansNoList(int error)
{
    return error == ENODATA || error == EOPNOTSUPP;
}

void SetMode(int file, mode_t mode)
{
    if (fchmod(file, mode) != 0)
        throw Failure(NumberOfError(errno));
}

} // namespace

FileRights::FileRights(int file)
{
    if (fstat(file, &status) != 0)
        throw Failure(NumberOfError(errno));
    const ssize_t length = fgetxattr(file, listName, nullptr, 0);
    if (length > 0) {
        accessList.resize(length);
        isListKnown = fgetxattr(file, listName, accessList.data(), static_cast<size_t>(length)) == length;
    } else if (length < 0) {
        isListKnown = MeansNoList(errno);
    }
}

bool FileRights::GiveTo(int file) const
{
    // Nobody but the owner until all is settled. Only root may give a file away; a group can be kept by
    // whoever is in it.
    SetMode(file, S_IRUSR | S_IWUSR);
    if (fchown(file, status.st_uid, status.st_gid) == 0 && isListKnown) {
        SetMode(file, status.st_mode & plainRights);
        if (GiveListTo(file))
            return true;
    }
    SetMode(file, status.st_mode & S_IRWXU);
    return false;
}

bool FileRights::GiveListTo(int file) const
{
    if (!accessList.isEmpty())
        return fsetxattr(file, listName, accessList.constData(), static_cast<size_t>(accessList.size()), 0)
            == 0;
    // The folder may have given the new file a list of its own.
    if (fremovexattr(file, listName) != 0)
        return MeansNoList(errno);
    SetMode(file, status.st_mode & plainRights);
    return true;
}

void TakeSpecialRights(int file)
{
    struct stat status = {};
    if (fstat(file, &status) != 0)
        throw Failure(NumberOfError(errno));
    // The system has taken them from whoever isn't root.
    if ((status.st_mode & (S_ISUID | S_ISGID)) != 0)
        SetMode(file, status.st_mode & plainRights);
}

} // namespace tressel
