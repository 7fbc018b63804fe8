// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "settings/HiveFile.h"

#include "machine/NameText.h"
#include "machine/posix/NativePath.h"
#include "machine/posix/PosixReplacingFile.h"
#include "machine/posix/Retried.h"
#include "machine/posix/SystemError.h"
#include "machine/posix/UserFolders.h"

#include <QDeadlineTimer>
#include <QThread>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

/// A store of all settings has some ten thousand bytes.
constexpr qint64 largestFile = 16 * 1024 * 1024;
constexpr int lockPauseMilliseconds = 5;
constexpr int mostSetAside = 100;

/// One name, so that what a killed process has left is used up by the next one that writes.
constexpr const char *nameBeside = ".tressel-settings.tmp";

HiveFile::Stamp StampOf(const struct stat &status)
{
    return {status.st_dev, status.st_ino, status.st_mtim.tv_sec, status.st_mtim.tv_nsec, status.st_size};
}

Descriptor OpenToRead(const QString &path)
{
    const NativePath native{QStringView(path)};
    if (native.Problem()) {
        errno = ENOENT;
        return {};
    }
    // A pipe in its place would make us wait for its other end.
    return Descriptor(Retried([&] {
        return openat(native.Folder(), native.Rest(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    }));
}

/// Puts contents into the place of a file's, or of none's.
void PutInPlace(const QString &path, IfThere ifThere, const QByteArray &bytes)
{
    PosixReplacingFile file(NativePath(QStringView(path)), ifThere, nameBeside);
    file.Write(bytes);
    file.Commit();
}

/// Makes a file that wasn't there, as a whole or not at all. False if something of that name is there.
bool MakeFile(const QString &path, const QByteArray &bytes)
{
    try {
        PutInPlace(path, IfThere::Refuse, bytes);
        return true;
    } catch (const Failure &failure) {
        if (failure.number != FailureNumber::FileAlreadyExists)
            throw;
        return false;
    }
}

HiveFile::Content ReadFrom(const QString &path)
{
    Descriptor opened = OpenToRead(path);
    if (!opened.IsOpen())
        return {errno == ENOENT || errno == ENOTDIR ? HiveFile::State::Absent : HiveFile::State::Unreadable};
    struct stat status = {};
    if (fstat(opened.Number(), &status) != 0 || !S_ISREG(status.st_mode))
        return {HiveFile::State::Unreadable};
    if (status.st_size > largestFile)
        return {HiveFile::State::TooLarge};
    try {
        PosixOpenFile file(std::move(opened));
        return {HiveFile::State::Readable, file.Read(largestFile)};
    } catch (const Failure &) {
        return {HiveFile::State::Unreadable};
    }
}

} // namespace

HiveFile::HiveFile(QString settingsFolder)
    : folder(std::move(settingsFolder))
{
}

QString HiveFile::Path() const
{
    return folder + u"/settings"_s;
}

std::optional<HiveFile::Stamp> HiveFile::Now() const
{
    const NativePath native{QStringView(Path())};
    struct stat status = {};
    if (folder.isEmpty() || native.Problem() || fstatat(native.Folder(), native.Rest(), &status, 0) != 0)
        return {};
    return StampOf(status);
}

HiveFile::Content HiveFile::Read() const
{
    return folder.isEmpty() ? Content() : ReadFrom(Path());
}

std::optional<Descriptor> HiveFile::Lock(int milliseconds) const
{
    const NativePath native{QStringView(folder)};
    native.Demand();
    MakeUserFolder(native.Bytes().toByteArray());
    Descriptor lock(
        Retried([&] { return openat(native.Folder(), native.Rest(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); }));
    struct stat status = {};
    if (!lock.IsOpen() || fstat(lock.Number(), &status) != 0)
        throw Failure(NumberOfError(errno));
    // Whoever may open the folder could hold the lock for ever.
    if (status.st_uid == geteuid() && (status.st_mode & (S_IRWXG | S_IRWXO)) != 0)
        fchmod(lock.Number(), status.st_mode & S_IRWXU);
    const QDeadlineTimer deadline(milliseconds);
    while (flock(lock.Number(), LOCK_EX | LOCK_NB) != 0) {
        if (errno != EWOULDBLOCK && errno != EINTR)
            break;
        if (deadline.hasExpired())
            return {};
        QThread::msleep(lockPauseMilliseconds);
    }
    return lock;
}

void HiveFile::Replace(const QByteArray &bytes) const
{
    PutInPlace(Path(), IfThere::Replace, bytes);
}

void HiveFile::SetAside(const QByteArray &bytes) const
{
    for (int number = 1; number <= mostSetAside; ++number) {
        const QString path = Path() + u".damaged"_s + (number > 1 ? u"-%1"_s.arg(number) : QString());
        // One of the same bytes is what a flush has left that set the file aside and then failed.
        if (MakeFile(path, bytes) || ReadFrom(path).bytes == bytes)
            return;
    }
    throw Failure(FailureNumber::FileAlreadyExists);
}

} // namespace tressel
