// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "machine/posix/PosixFileSystem.h"

#include "machine/NameText.h"
#include "machine/posix/FileKind.h"
#include "machine/posix/NameOrder.h"
#include "machine/posix/NativePath.h"
#include "machine/posix/PosixFolderReader.h"
#include "machine/posix/PosixOpenFile.h"
#include "machine/posix/PosixRename.h"
#include "machine/posix/PosixReplacingFile.h"
#include "machine/posix/Retried.h"
#include "machine/posix/SystemError.h"

#include <array>
#include <cerrno>
#include <climits>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>
#include <utility>

namespace tressel {

namespace {

constexpr mode_t allMayWrite = S_IWUSR | S_IWGRP | S_IWOTH;
constexpr qint64 millisecondsPerSecond = 1000;
constexpr qint64 nanosecondsPerMillisecond = 1'000'000;

/// For a path of which the last name is a file's.
[[noreturn]] void ThrowFileError(int error, const NativePath &path)
{
    throw Failure(error == ENOENT ? path.NumberOfMissingFile() : NumberOfError(error));
}

QDateTime TimeOf(const timespec &time)
{
    return QDateTime::fromMSecsSinceEpoch(time.tv_sec * millisecondsPerSecond
                                          + time.tv_nsec / nanosecondsPerMillisecond);
}

bool IsHidden(const NativePath &path)
{
    const QByteArrayView name = path.Name();
    return name.startsWith('.') && name != "." && name != "..";
}

int FlagsFor(OpenFor purpose)
{
    switch (purpose) {
    case OpenFor::Reading:
    case OpenFor::Streaming:
        return O_RDONLY;
    case OpenFor::Writing:
        return O_WRONLY | O_CREAT;
    case OpenFor::Appending:
        return O_WRONLY | O_CREAT | O_APPEND;
    case OpenFor::Changing:
        return O_RDWR | O_NOFOLLOW;
    case OpenFor::Creating:
        return O_WRONLY | O_CREAT | O_EXCL;
    }
    return O_RDONLY;
}

/// Takes the file for this process alone. A file system without such locks has nobody to keep out.
void LockAlone(const Descriptor &file)
{
    if (flock(file.Number(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK)
        throw Failure(FailureNumber::PermissionDenied);
}

/// What was opened without waiting is read and written with waiting, as anything else.
void WaitForData(const Descriptor &file)
{
    const int flags = fcntl(file.Number(), F_GETFL);
    if (flags < 0 || fcntl(file.Number(), F_SETFL, flags & ~O_NONBLOCK) != 0)
        throw Failure(NumberOfError(errno));
}

Descriptor OpenAt(const NativePath &path, OpenFor purpose)
{
    // O_NONBLOCK, since a pipe without another end would hold the program up for ever.
    constexpr mode_t newFile = S_IRUSR | S_IWUSR | S_IRGRP | S_IWGRP | S_IROTH | S_IWOTH;
    Descriptor file(Retried([&] {
        return openat(path.Folder(), path.Rest(),
                      FlagsFor(purpose) | path.FlagAgainstLinks() | O_NONBLOCK | O_NOCTTY | O_CLOEXEC,
                      newFile);
    }));
    if (!file.IsOpen() && errno == EEXIST)
        throw Failure(FailureNumber::FileAlreadyExists);
    // A pipe that nobody reads, or a socket.
    if (!file.IsOpen() && errno == ENXIO)
        throw Failure(FailureNumber::PathFileAccessError);
    if (!file.IsOpen())
        ThrowFileError(errno, path);
    return file;
}

/// Looks at what is open now, and makes it ready for its purpose.
void TakeOpened(const Descriptor &file, OpenFor purpose, Sharing sharing)
{
    struct stat status = {};
    if (fstat(file.Number(), &status) != 0)
        throw Failure(NumberOfError(errno));
    const bool isTaken = purpose == OpenFor::Streaming ? !S_ISDIR(status.st_mode) : S_ISREG(status.st_mode);
    if (!isTaken)
        throw Failure(FailureNumber::PathFileAccessError);
    WaitForData(file);
    if (sharing == Sharing::Exclusive)
        LockAlone(file);
    // Emptied only now: a file that another holds stays whole.
    if (purpose == OpenFor::Writing && Retried([&] { return ftruncate(file.Number(), 0); }) != 0)
        throw Failure(NumberOfError(errno));
    if (purpose == OpenFor::Appending)
        lseek(file.Number(), 0, SEEK_END);
}

/// The path itself or the nearest folder above it that is there, to ask its volume something.
Descriptor OpenNearest(const QString &path)
{
    const NativePath whole{QStringView(path)};
    whole.Demand();
    QByteArray nearest = whole.Bytes().toByteArray();
    for (;;) {
        const NativePath place{QByteArrayView(nearest)};
        if (!place.Problem()) {
            Descriptor open(
                Retried([&] { return openat(place.Folder(), place.Rest(), O_PATH | O_CLOEXEC); }));
            if (open.IsOpen())
                return open;
            if (errno != ENOENT && errno != ENOTDIR)
                throw Failure(NumberOfError(errno));
        }
        const QByteArray above = place.Above().isEmpty() ? QByteArray(".") : place.Above().toByteArray();
        if (above == nearest)
            throw Failure(FailureNumber::DiskNotReady);
        nearest = above;
    }
}

} // namespace

Descriptor PosixFileSystem::OpenFolder(const QString &folder) const
{
    const NativePath path = held.PathOf(folder);
    path.Demand();
    Descriptor open(Retried([&] {
        return openat(path.Folder(), path.Rest(),
                      O_RDONLY | O_DIRECTORY | O_CLOEXEC | path.FlagAgainstLinks());
    }));
    if (!open.IsOpen())
        throw Failure(NumberOfError(errno));
    return open;
}

std::optional<FileStatus> PosixFileSystem::Status(const QString &path, Links links)
{
    const NativePath native = held.PathOf(path);
    struct stat status = {};
    const int flags = links == Links::Keep ? AT_SYMLINK_NOFOLLOW : 0;
    if (native.Problem() || fstatat(native.Folder(), native.Rest(), &status, flags) != 0)
        return {};
    const EntryKind kind = KindOfMode(status.st_mode);
    return FileStatus{kind,
                      kind == EntryKind::File ? status.st_size : 0,
                      (status.st_mode & allMayWrite) == 0,
                      IsHidden(native),
                      TimeOf(status.st_mtim),
                      status.st_dev,
                      status.st_nlink};
}

QList<FolderEntry> PosixFileSystem::List(const QString &folder, Lengths lengths)
{
    PosixFolderReader reader(OpenFolder(folder), lengths);
    QList<FolderEntry> entries;
    constexpr qsizetype mostHaveFewer = 128;
    entries.reserve(mostHaveFewer);
    while (std::optional<FolderEntry> entry = reader.Next())
        entries.append(std::move(*entry));
    SortByName(entries);
    return entries;
}

std::unique_ptr<FolderReader> PosixFileSystem::Read(const QString &folder, Lengths lengths)
{
    return std::make_unique<PosixFolderReader>(OpenFolder(folder), lengths);
}

void PosixFileSystem::FlushFolder(const QString &folder)
{
    const Descriptor opened = OpenFolder(folder);
    if (Retried([&] { return fsync(opened.Number()); }) != 0 && errno != EINVAL && errno != EROFS)
        throw Failure(NumberOfError(errno));
}

std::optional<Failure> PosixFileSystem::TryMakeFolder(const QString &path)
{
    const NativePath native = held.PathOf(path);
    if (native.Problem())
        return Failure(*native.Problem());
    if (mkdirat(native.Folder(), native.Rest(), S_IRWXU | S_IRWXG | S_IRWXO) != 0)
        return Failure(NumberOfError(errno));
    held.Forget(path);
    return {};
}

std::optional<Failure> PosixFileSystem::TryRemoveFolder(const QString &path)
{
    const NativePath native = held.PathOf(path);
    if (native.Problem())
        return Failure(*native.Problem());
    if (unlinkat(native.Folder(), native.Rest(), AT_REMOVEDIR) == 0) {
        held.Forget(path);
        return {};
    }
    if (errno == ENOTDIR && Status(path, Links::Keep))
        return Failure(FailureNumber::PathFileAccessError);
    return Failure(NumberOfError(errno));
}

void PosixFileSystem::RemoveFile(const QString &path)
{
    const NativePath native = held.PathOf(path);
    native.Demand();
    if (unlinkat(native.Folder(), native.Rest(), 0) != 0)
        ThrowFileError(errno, native);
}

void PosixFileSystem::Rename(const QString &from, const QString &to)
{
    const auto below = held.BelowOne(from, to);
    // Where it doesn't work, the long way tells why.
    if (!below || !RenamedAtOnce(below->folder, below->one, below->other))
        RenameThoroughly(from, to);
    held.Forget(from);
    held.Forget(to);
}

void PosixFileSystem::RenameThoroughly(const QString &from, const QString &to) const
{
    const NativePath source = held.PathOf(from);
    source.Demand();
    const NativePath target = held.PathOf(to);
    target.Demand();
    if (to.endsWith(Separator()))
        throw Failure(FailureNumber::BadFileName);
    RenameWithoutOverwriting(source, target);
}

std::unique_ptr<OpenFile> PosixFileSystem::Open(const QString &path, OpenFor purpose, Sharing sharing)
{
    const NativePath native = held.PathOf(path);
    native.Demand();
    Descriptor file = OpenAt(native, purpose);
    try {
        TakeOpened(file, purpose, sharing);
    } catch (const Failure &) {
        // It was made a moment ago, and here.
        if (purpose == OpenFor::Creating)
            unlinkat(native.Folder(), native.Rest(), 0);
        throw;
    }
    return std::make_unique<PosixOpenFile>(std::move(file));
}

std::unique_ptr<ReplacingFile> PosixFileSystem::Replace(const QString &path, IfThere ifThere)
{
    return std::make_unique<PosixReplacingFile>(held.PathOf(path), ifThere);
}

QString PosixFileSystem::LinkTarget(const QString &path)
{
    const NativePath native = held.PathOf(path);
    native.Demand();
    std::array<char, PATH_MAX> target{};
    const ssize_t length = readlinkat(native.Folder(), native.Rest(), target.data(), target.size());
    if (length < 0 && errno == EINVAL)
        throw Failure(FailureNumber::PathFileAccessError);
    if (length < 0)
        ThrowFileError(errno, native);
    return *TextFromUtf8({target.data(), length}, NameBytes::Raw);
}

void PosixFileSystem::MakeLink(const QString &path, const QString &target)
{
    const NativePath native = held.PathOf(path);
    native.Demand();
    const NativePath named{QStringView(target)};
    named.Demand();
    if (symlinkat(named.Bytes().toByteArray().constData(), native.Folder(), native.Rest()) == 0)
        return;
    throw Failure(errno == EEXIST ? FailureNumber::FileAlreadyExists : NumberOfError(errno));
}

void PosixFileSystem::SetReadOnly(const QString &path, bool readOnly)
{
    const NativePath native = held.PathOf(path);
    native.Demand();
    struct stat status = {};
    if (fstatat(native.Folder(), native.Rest(), &status, AT_SYMLINK_NOFOLLOW) != 0)
        ThrowFileError(errno, native);
    if (S_ISLNK(status.st_mode))
        return;
    const mode_t mode = status.st_mode & 07777;
    const mode_t wanted = readOnly ? mode & ~allMayWrite : mode | S_IWUSR;
    if (wanted != mode && fchmodat(native.Folder(), native.Rest(), wanted, AT_SYMLINK_NOFOLLOW) != 0)
        ThrowFileError(errno, native);
}

QString PosixFileSystem::VolumeLabel(const QString &path)
{
    struct stat status = {};
    if (fstat(OpenNearest(path).Number(), &status) != 0)
        throw Failure(NumberOfError(errno));
    return volumes.LabelOf(status.st_dev);
}

qint64 PosixFileSystem::FreeSpace(const QString &path)
{
    struct statvfs room = {};
    if (fstatvfs(OpenNearest(path).Number(), &room) != 0)
        throw Failure(NumberOfError(errno));
    return static_cast<qint64>(room.f_bavail) * static_cast<qint64>(room.f_frsize);
}

} // namespace tressel
