// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "machine/posix/PosixRename.h"

#include "machine/NameText.h"
#include "machine/posix/NativePath.h"
#include "machine/posix/SomeName.h"
#include "machine/posix/SystemError.h"

#include <QString>

#include <array>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>

namespace tressel {

namespace {

/// A path as the system takes it, if it is nothing but the name of an entry.
class NativeName {
public:
    explicit NativeName(QStringView name)
    {
        if (name.isEmpty() || name.size() > NAME_MAX || name == u"..")
            return;
        bool damaged = false;
        char *const end = WriteUtf8(name, NameBytes::Raw, bytes.data(), &damaged);
        *end = '\0';
        isUsable = !damaged && !Holds('/', end) && !Holds('\0', end);
    }

    bool IsUsable() const { return isUsable; }
    const char *Bytes() const { return bytes.data(); }

private:
    bool Holds(char wanted, const char *end) const
    {
        return std::memchr(bytes.data(), wanted, static_cast<size_t>(end - bytes.data())) != nullptr;
    }

    std::array<char, 3 * NAME_MAX + 1> bytes; ///< left as they are where no name is
    bool isUsable = false;
};

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

bool AreOneEntry(const NativePath &from, const NativePath &to)
{
    const auto one = StatusOf(from);
    const auto other = StatusOf(to);
    // Two names of one file have the same number too, but then its count of names tells.
    return one && other && one->st_dev == other->st_dev && one->st_ino == other->st_ino
        && (S_ISDIR(one->st_mode) || one->st_nlink == 1);
}

/// The folder that the last name of a path stands in, and a name in it.
QByteArray Beside(const EntryPlace &place, const QByteArray &name)
{
    const QByteArrayView path(place.name);
    return path.first(path.lastIndexOf('/') + 1).toByteArray() + name;
}

/// Whether the folder tells of an entry that is written in just this way. Yes if it can't be asked.
bool IsListed(const NativePath &path)
{
    const QByteArray folder = Beside(PlaceOf(path), ".");
    const int open = openat(path.Folder(), folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    const std::unique_ptr<DIR, int (*)(DIR *)> stream(open < 0 ? nullptr : fdopendir(open), closedir);
    if (!stream)
        return true;
    const QByteArray name = path.Name().toByteArray();
    while (const dirent *const entry = readdir(stream.get())) {
        if (name == entry->d_name)
            return true;
    }
    return false;
}

/// A new spelling of a name is no overwriting where the file system compares names without case. EEXIST if
/// the two names are of two entries.
int RenameInOtherSpelling(const NativePath &from, const NativePath &to)
{
    if (from.Bytes() == to.Bytes() || Folded(from) != Folded(to))
        return EEXIST;
    if (AreOneEntry(from, to))
        return RenameOver(PlaceOf(from), PlaceOf(to));
    // Some file systems give each spelling a number of its own, and put in place of the other it is gone.
    return IsListed(to) ? EEXIST : RenameByDetour(PlaceOf(from), PlaceOf(to));
}

/// What becomes of a rename that came to this error, or to 0.
void EndRename(int error, const NativePath &from, const NativePath &to)
{
    if (error == EEXIST)
        error = RenameInOtherSpelling(from, to);
    if (error != 0)
        ThrowRenameError(error, from);
}

} // namespace

void RenameWithoutOverwriting(const NativePath &from, const NativePath &to)
{
    const auto [fromFolder, fromName] = PlaceOf(from);
    const auto [toFolder, toName] = PlaceOf(to);
    if (renameat2(fromFolder, fromName, toFolder, toName, RENAME_NOREPLACE) == 0)
        return;
    if (MeansUnknownThere(errno))
        RenameBySmallerSteps(from, to);
    else
        EndRename(errno, from, to);
}

bool RenamedAtOnce(int folder, QStringView from, QStringView to)
{
    const NativeName oldName(from);
    const NativeName newName(to);
    return oldName.IsUsable() && newName.IsUsable()
        && renameat2(folder, oldName.Bytes(), folder, newName.Bytes(), RENAME_NOREPLACE) == 0;
}

void RenameBySmallerSteps(const NativePath &from, const NativePath &to)
{
    EndRename(RenameToNewBySmallerSteps(PlaceOf(from), PlaceOf(to)), from, to);
}

int RenameByDetour(const EntryPlace &from, const EntryPlace &to)
{
    const QByteArray aside = Beside(to, SomeName());
    const EntryPlace between{to.folder, aside.constData()};
    if (const int error = RenameToNew(from, between))
        return error;
    const int error = RenameToNew(between, to);
    if (error != 0)
        RenameToNew(between, from);
    return error;
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
