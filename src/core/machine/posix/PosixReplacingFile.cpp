// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "machine/posix/PosixReplacingFile.h"

#include "machine/posix/NativePath.h"
#include "machine/posix/PosixRename.h"
#include "machine/posix/Retried.h"
#include "machine/posix/SomeName.h"
#include "machine/posix/SystemError.h"

#include <algorithm>
#include <array>
#include <climits>
#include <fcntl.h>
#include <new>

namespace tressel {

namespace {

constexpr int mostTries = 100;
constexpr qint64 copiedAtOnce = 1 << 20;
constexpr mode_t rightsOfNew = S_IRUSR | S_IWUSR | S_IRGRP | S_IWGRP | S_IROTH | S_IWOTH;

[[noreturn]] void ThrowError()
{
    throw Failure(NumberOfError(errno));
}

/// For errors by which a folder says that it takes no file, or lets none go; not those of a disc or a
/// process that is full.
bool MeansRefusal(int error)
{
    return error == EACCES || error == EPERM || error == EROFS || error == EBUSY || error == EXDEV;
}

/// For errors of a process or a system that has no more to give.
bool MeansFull(int error)
{
    return error == EMFILE || error == ENFILE || error == ENOMEM;
}

bool IsSameFile(const struct stat &one, const struct stat &other)
{
    return one.st_dev == other.st_dev && one.st_ino == other.st_ino;
}

/// A link of the system's that leads to an open file.
QByteArray LinkTo(int file)
{
    return "/proc/self/fd/" + QByteArray::number(file);
}

/// Where the system says that an open file is; empty if it can't tell.
QByteArray PathOf(int file)
{
    std::array<char, PATH_MAX> path{};
    const ssize_t length = readlink(LinkTo(file).constData(), path.data(), path.size());
    return length > 0 && path.front() == '/' ? QByteArray(path.data(), length) : QByteArray();
}

} // namespace

PosixReplacingFile::PosixReplacingFile(const NativePath &path, IfThere whatIfThere,
                                       const QByteArray &nameBeside)
    : ifThere(whatIfThere)
{
    path.Demand();
    OpenOld(path);
    FindPlace(path);
    MakeBeside(nameBeside);
}

PosixReplacingFile::~PosixReplacingFile()
{
    RemoveBeside();
    struct stat now = {};
    if (madeOld && fstatat(folder.Number(), name.constData(), &now, AT_SYMLINK_NOFOLLOW) == 0
        && IsSameFile(now, oldRights->Status()) && now.st_size == 0)
        unlinkat(folder.Number(), name.constData(), 0);
}

/// The system itself follows links here, so that its rules about links of others hold.
void PosixReplacingFile::OpenOld(const NativePath &path)
{
    struct stat status = {};
    const bool isThere = fstatat(path.Folder(), path.Rest(), &status, AT_SYMLINK_NOFOLLOW) == 0;
    if (!isThere && errno != ENOENT)
        ThrowError();
    if (isThere && ifThere == IfThere::Refuse)
        throw Failure(FailureNumber::FileAlreadyExists);
    if (!isThere) {
        if (path.NumberOfMissingFile() != FailureNumber::FileNotFound)
            throw Failure(FailureNumber::PathNotFound);
        return;
    }
    const auto open = [&](int flags) {
        return Descriptor(Retried([&] {
            return openat(path.Folder(), path.Rest(),
                          flags | path.FlagAgainstLinks() | O_NONBLOCK | O_NOCTTY | O_CLOEXEC, rightsOfNew);
        }));
    };
    Descriptor file = open(O_RDWR);
    oldIsReadable = file.IsOpen();
    if (!file.IsOpen() && errno == EACCES)
        file = open(O_WRONLY);
    if (!file.IsOpen() && errno == ENOENT && S_ISLNK(status.st_mode)) {
        file = open(O_RDWR | O_CREAT);
        madeOld = oldIsReadable = file.IsOpen();
    }
    if (!file.IsOpen())
        ThrowError();
    oldRights.emplace(file.Number());
    if (!S_ISREG(oldRights->Status().st_mode))
        throw Failure(FailureNumber::PathFileAccessError);
    madeOld = madeOld && oldRights->Status().st_size == 0;
    old.emplace(std::move(file));
}

void PosixReplacingFile::FindPlace(const NativePath &path)
{
    name = path.Name().toByteArray();
    if (path.IsHeld())
        OpenFolder(path.Folder(), ".");
    else
        OpenFolder(NativePath(path.Above().isEmpty() ? QByteArrayView(".") : path.Above()));
    if (!old || IsPlaceOfOld())
        return;
    // The path ends in a link.
    const QByteArray end = PathOf(old->Number());
    name = end.sliced(end.lastIndexOf('/') + 1);
    OpenFolder(NativePath(QByteArrayView(end).first(std::max<qsizetype>(0, end.lastIndexOf('/')))));
    if (end.isEmpty() || !IsPlaceOfOld()) {
        folder = Descriptor();
        madeOld = false;
    }
}

bool PosixReplacingFile::IsPlaceOfOld() const
{
    struct stat status = {};
    return folder.IsOpen() && fstatat(folder.Number(), name.constData(), &status, AT_SYMLINK_NOFOLLOW) == 0
        && IsSameFile(status, oldRights->Status());
}

void PosixReplacingFile::OpenFolder(const NativePath &path)
{
    if (!path.Problem())
        OpenFolder(path.Folder(), path.Rest());
    else if (!old)
        path.Demand();
}

void PosixReplacingFile::OpenFolder(int from, const char *path)
{
    const auto open = [&](int flags) {
        return Descriptor(Retried([&] { return openat(from, path, flags | O_DIRECTORY | O_CLOEXEC); }));
    };
    folder = open(O_RDONLY);
    folderCanSync = folder.IsOpen();
    // A folder that may be entered and not be read.
    if (!folder.IsOpen() && errno == EACCES)
        folder = open(O_PATH);
    if (!folder.IsOpen() && (!old || MeansFull(errno)))
        ThrowError();
}

void PosixReplacingFile::MakeBeside(const QByteArray &wantedName)
{
    if (!folder.IsOpen() || (wantedName.isEmpty() && MakeNameless()))
        return;
    for (int number = 0; number < mostTries; ++number) {
        const QByteArray tried = wantedName.isEmpty() ? SomeName() : wantedName;
        Descriptor file(Retried([&] {
            return openat(folder.Number(), tried.constData(),
                          O_RDWR | O_CREAT | O_EXCL | O_NOCTTY | O_CLOEXEC, RightsBeside());
        }));
        if (file.IsOpen()) {
            besideName = tried;
            beside.emplace(std::move(file));
            return;
        }
        if (errno != EEXIST)
            break;
        if (!wantedName.isEmpty() && unlinkat(folder.Number(), tried.constData(), 0) != 0)
            break;
    }
    if (!old || !oldIsReadable || !MeansRefusal(errno))
        ThrowError();
}

/// False where the system knows no files without a name, or couldn't give them one later.
bool PosixReplacingFile::MakeNameless()
{
    Descriptor file(Retried(
        [&] { return openat(folder.Number(), ".", O_TMPFILE | O_RDWR | O_CLOEXEC, RightsBeside()); }));
    if (!file.IsOpen() || access(LinkTo(file.Number()).constData(), F_OK) != 0)
        return false;
    beside.emplace(std::move(file));
    return true;
}

mode_t PosixReplacingFile::RightsBeside() const
{
    return oldRights ? S_IRUSR | S_IWUSR : rightsOfNew;
}

/// False, with errno set, if that can't be.
bool PosixReplacingFile::GiveName(int file, const QByteArray &given) const
{
    return linkat(AT_FDCWD, LinkTo(file).constData(), folder.Number(), given.constData(), AT_SYMLINK_FOLLOW)
        == 0;
}

/// The name that the file has until it takes another's place.
void PosixReplacingFile::GiveSomeName(int file)
{
    for (int number = 0; number < mostTries; ++number) {
        const QByteArray tried = SomeName();
        if (GiveName(file, tried)) {
            besideName = tried;
            return;
        }
        if (errno != EEXIST)
            break;
    }
    ThrowError();
}

void PosixReplacingFile::Write(const QByteArray &bytes)
{
    if (beside) {
        beside->Write(bytes);
        return;
    }
    try {
        gathered += bytes;
    } catch (const std::bad_alloc &) {
        throw Failure(FailureNumber::OutOfMemory);
    }
}

qint64 PosixReplacingFile::TakeFrom(OpenFile &source, qint64 maximum)
{
    return beside ? beside->TakeFrom(source, maximum) : 0;
}

void PosixReplacingFile::Commit()
{
    const bool mayTakeName = MayTakeName();
    if (beside)
        SettleBeside();
    if (!mayTakeName || !TakesName())
        CopyIntoOld();
    madeOld = false;
}

/// Down on the medium and closed, as far as a file without a name can be.
void PosixReplacingFile::SettleBeside()
{
    beside->Flush();
    if (besideName.isEmpty()) {
        nameless = Descriptor(fcntl(beside->Number(), F_DUPFD_CLOEXEC, 0));
        if (!nameless.IsOpen())
            ThrowError();
    }
    beside->Close();
}

/// Whether the file beside can take the old one's place and nothing is lost by it.
bool PosixReplacingFile::MayTakeName()
{
    if (!beside || !old)
        return beside.has_value();
    const bool hasSameRights = oldRights->GiveTo(beside->Number());
    // What can't be read can't be held; then the rights have been cut.
    return !oldIsReadable || (hasSameRights && oldRights->Status().st_nlink == 1);
}

/// Where nothing is in its way, a file without a name gets its own at once.
bool PosixReplacingFile::TakesFreeName()
{
    if (old)
        return false;
    if (GiveName(nameless.Number(), name)) {
        SyncFolder();
        return true;
    }
    if (errno == EEXIST && ifThere == IfThere::Refuse)
        throw Failure(FailureNumber::FileAlreadyExists);
    return false;
}

bool PosixReplacingFile::TakesName()
{
    if (nameless.IsOpen() && TakesFreeName())
        return true;
    if (nameless.IsOpen())
        GiveSomeName(nameless.Number());
    const EntryPlace from{folder.Number(), besideName.constData()};
    const EntryPlace to{folder.Number(), name.constData()};
    const int error = ifThere == IfThere::Refuse ? RenameToNew(from, to) : RenameOver(from, to);
    if (error == EEXIST && ifThere == IfThere::Refuse)
        throw Failure(FailureNumber::FileAlreadyExists);
    if (error != 0 && old && oldIsReadable && MeansRefusal(error))
        return false;
    if (error != 0)
        throw Failure(NumberOfError(error));
    besideName.clear();
    SyncFolder();
    return true;
}

void PosixReplacingFile::SyncFolder() const
{
    // There are file systems that keep nothing back and know no such call.
    if (folderCanSync && Retried([&] { return fsync(folder.Number()); }) != 0 && errno != EINVAL)
        ThrowError();
}

void PosixReplacingFile::CopyIntoOld()
{
    if (beside)
        ReopenBeside();
    old->Seek(0);
    const QByteArray before = old->Read(old->Length());
    old->Seek(0);
    try {
        qint64 position = 0;
        for (QByteArray piece = NextOfNew(0); !piece.isEmpty(); piece = NextOfNew(position)) {
            old->Write(piece);
            position += piece.size();
        }
        old->Resize(position);
        old->Flush();
    } catch (const Failure &) {
        PutBack(before);
        throw;
    }
    TakeSpecialRights(old->Number());
    old->Close();
    RemoveBeside();
}

void PosixReplacingFile::ReopenBeside()
{
    if (nameless.IsOpen()) {
        beside.emplace(std::move(nameless));
        return;
    }
    Descriptor file(Retried(
        [&] { return openat(folder.Number(), besideName.constData(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC); }));
    if (!file.IsOpen())
        ThrowError();
    beside.emplace(std::move(file));
}

QByteArray PosixReplacingFile::NextOfNew(qint64 position)
{
    if (!beside)
        return gathered.mid(position, copiedAtOnce);
    beside->Seek(position);
    return beside->Read(copiedAtOnce);
}

void PosixReplacingFile::PutBack(const QByteArray &before)
{
    try {
        old->Seek(0);
        old->Write(before);
        old->Resize(before.size());
        old->Flush();
    } catch (const Failure &) {
        KeepBeside();
    }
}

/// Neither of the two is whole in place: then the new contents stay beside it.
void PosixReplacingFile::KeepBeside()
{
    if (beside && besideName.isEmpty())
        GiveSomeName(beside->Number());
    besideName.clear();
}

void PosixReplacingFile::RemoveBeside()
{
    if (!besideName.isEmpty())
        unlinkat(folder.Number(), besideName.constData(), 0);
    besideName.clear();
}

} // namespace tressel
