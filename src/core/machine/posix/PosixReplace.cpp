// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "machine/posix/PosixReplace.h"

#include "machine/posix/NativePath.h"
#include "machine/posix/PosixOpenFile.h"
#include "machine/posix/SystemError.h"

#include <cerrno>
#include <climits>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>

namespace tressel {

namespace {

constexpr int mostLinks = 40; // as many as the system follows
constexpr int mostTries = 1000;

QByteArray Beside(const NativePath &path, QByteArrayView name)
{
    const QByteArrayView above = path.Above();
    QByteArray bytes = above.toByteArray();
    if (!above.isEmpty() && !above.endsWith('/'))
        bytes += '/';
    return bytes.append(name);
}

/// The path with the links that it ends in followed, to something that is no link or isn't there.
QByteArray BehindLinks(QByteArray whole)
{
    for (int links = 0; links < mostLinks; ++links) {
        const NativePath path{QByteArrayView(whole)};
        path.Demand();
        QByteArray target(PATH_MAX, Qt::Uninitialized);
        const ssize_t length = readlinkat(path.Folder(), path.Rest(), target.data(), PATH_MAX);
        if (length < 0)
            return path.Bytes().toByteArray();
        target.truncate(length);
        whole = target.startsWith('/') ? target : Beside(path, target);
    }
    throw Failure(NumberOfError(ELOOP));
}

/// Rights and owner of the file that is there now, nothing if none is. Fails if it can't be written.
std::optional<struct stat> RightsOf(const NativePath &path)
{
    const Descriptor file(
        openat(path.Folder(), path.Rest(), O_WRONLY | O_NONBLOCK | O_NOFOLLOW | O_NOCTTY | O_CLOEXEC));
    if (!file.IsOpen()) {
        if (errno != ENOENT)
            throw Failure(NumberOfError(errno));
        if (path.NumberOfMissingFile() != FailureNumber::FileNotFound)
            throw Failure(FailureNumber::PathNotFound);
        return {};
    }
    struct stat status = {};
    if (fstat(file.Number(), &status) != 0)
        throw Failure(NumberOfError(errno));
    if (!S_ISREG(status.st_mode))
        throw Failure(FailureNumber::PathFileAccessError);
    return status;
}

/// A new file of a name of its own beside the target.
class FileBeside {
public:
    FileBeside(const NativePath &target, mode_t mode)
    {
        for (int number = 0; number < mostTries; ++number) {
            whole =
                Beside(target, ".tressel-" + QByteArray::number(getpid()) + '-' + QByteArray::number(number));
            const NativePath path{QByteArrayView(whole)};
            path.Demand();
            file =
                Descriptor(openat(path.Folder(), path.Rest(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode));
            if (file.IsOpen())
                return;
            if (errno != EEXIST)
                break;
        }
        throw Failure(NumberOfError(errno));
    }
    ~FileBeside()
    {
        const NativePath path{QByteArrayView(whole)};
        if (!renamed && !path.Problem())
            unlinkat(path.Folder(), path.Rest(), 0);
    }
    FileBeside(const FileBeside &) = delete;
    FileBeside &operator=(const FileBeside &) = delete;

    void TakeRights(const struct stat &rights)
    {
        // Only root may give a file away; the group can be kept by whoever is in it.
        if (fchown(file.Number(), rights.st_uid, rights.st_gid) != 0
            && fchown(file.Number(), static_cast<uid_t>(-1), rights.st_gid) != 0 && errno != EPERM)
            throw Failure(NumberOfError(errno));
        if (fchmod(file.Number(), rights.st_mode & 07777) != 0)
            throw Failure(NumberOfError(errno));
    }

    void Write(const QByteArray &bytes)
    {
        PosixOpenFile writer(std::move(file));
        writer.Write(bytes);
        writer.Flush();
        writer.Close();
    }

    void TakeThePlaceOf(const NativePath &target)
    {
        const NativePath path{QByteArrayView(whole)};
        path.Demand();
        if (renameat(path.Folder(), path.Rest(), target.Folder(), target.Rest()) != 0)
            throw Failure(NumberOfError(errno));
        renamed = true;
    }

private:
    QByteArray whole;
    Descriptor file;
    bool renamed = false;
};

void WriteInPlace(const NativePath &target, const QByteArray &bytes)
{
    Descriptor file(openat(target.Folder(), target.Rest(), O_WRONLY | O_TRUNC | O_CLOEXEC));
    if (!file.IsOpen())
        throw Failure(NumberOfError(errno));
    PosixOpenFile writer(std::move(file));
    writer.Write(bytes);
    writer.Flush();
    writer.Close();
}

} // namespace

void ReplaceContentsAtOnce(const QString &path, const QByteArray &bytes)
{
    const NativePath asked{QStringView(path)};
    asked.Demand();
    const QByteArray whole = BehindLinks(asked.Bytes().toByteArray());
    const NativePath target{QByteArrayView(whole)};
    target.Demand();
    const std::optional<struct stat> rights = RightsOf(target);
    // 0666 as for any new file, of which the user's mask takes its part; hidden from others until it has its
    // rights.
    std::optional<FileBeside> beside;
    try {
        beside.emplace(target, rights ? 0600 : 0666);
    } catch (const Failure &failure) {
        // A file that may be written in a folder that may not: then only the file itself is left.
        if (!rights || failure.number != FailureNumber::PathFileAccessError)
            throw;
        WriteInPlace(target, bytes);
        return;
    }
    if (rights)
        beside->TakeRights(*rights);
    beside->Write(bytes);
    beside->TakeThePlaceOf(target);
}

} // namespace tressel
