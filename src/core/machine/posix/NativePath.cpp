// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "machine/posix/NativePath.h"

#include "machine/NameText.h"
#include "machine/posix/SystemError.h"

#include <cerrno>
#include <climits>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>

namespace tressel {

NativePath::NativePath(QStringView path)
{
    bytes.resize(path.size() * 3 + 1);
    bool damaged = false;
    bytes.resize(WriteUtf8(path, NameBytes::Raw, bytes.data(), &damaged) - bytes.constData());
    // Half of a surrogate pair stands for no bytes: to guess some could name another file.
    if (damaged)
        problem = FailureNumber::InvalidProcedureCall;
    FinishAndReach();
}

NativePath::NativePath(QByteArrayView path)
{
    bytes.append(path.data(), path.size());
    FinishAndReach();
}

void NativePath::FinishAndReach()
{
    if (bytes.isEmpty())
        problem = FailureNumber::BadFileName;
    else if (std::memchr(bytes.constData(), '\0', static_cast<size_t>(bytes.size())))
        problem = FailureNumber::InvalidProcedureCall;
    while (bytes.size() > 1 && bytes.last() == '/')
        bytes.removeLast();
    bytes.append('\0');
    if (!problem)
        Reach();
}

void NativePath::Reach()
{
    while (bytes.size() - reached > PATH_MAX) {
        qsizetype end = reached + PATH_MAX - 1;
        while (end > reached && bytes.at(end) != '/')
            --end;
        if (end == reached) {
            problem = NumberOfError(ENAMETOOLONG);
            return;
        }
        bytes[end] = '\0';
        Descriptor next(openat(Folder(), Rest(), O_PATH | O_DIRECTORY | O_CLOEXEC));
        const int error = errno;
        bytes[end] = '/';
        if (!next.IsOpen()) {
            problem = NumberOfError(error);
            return;
        }
        folder = std::move(next);
        reached = end;
        while (bytes.at(reached) == '/')
            ++reached;
    }
}

void NativePath::Demand() const
{
    if (problem)
        throw Failure(*problem);
}

int NativePath::Folder() const
{
    return folder.IsOpen() ? folder.Number() : AT_FDCWD;
}

QByteArrayView NativePath::Name() const
{
    return Bytes().sliced(Bytes().lastIndexOf('/') + 1);
}

QByteArrayView NativePath::Above() const
{
    const qsizetype last = Bytes().lastIndexOf('/');
    return Bytes().first(last == 0 ? 1 : std::max<qsizetype>(last, 0));
}

FailureNumber NativePath::NumberOfMissingFile() const
{
    const QByteArrayView above = Above();
    if (above.isEmpty())
        return FailureNumber::FileNotFound;
    const NativePath path(above);
    struct stat status = {};
    const bool isThere = !path.Problem() && fstatat(path.Folder(), path.Rest(), &status, 0) == 0;
    return isThere && S_ISDIR(status.st_mode) ? FailureNumber::FileNotFound : FailureNumber::PathNotFound;
}

} // namespace tressel
