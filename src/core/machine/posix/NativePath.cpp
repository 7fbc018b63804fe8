// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "machine/posix/NativePath.h"

#include "machine/NameText.h"
#include "machine/posix/OpenBeneath.h"
#include "machine/posix/Retried.h"
#include "machine/posix/SystemError.h"

#include <cerrno>
#include <climits>
#include <cstring>
#include <fcntl.h>
#include <string_view>
#include <sys/stat.h>

namespace tressel {

namespace {

/// True if one of the levels is "..".
bool GoesUp(std::string_view path)
{
    for (size_t at = path.find(".."); at != path.npos; at = path.find("..", at + 1)) {
        const bool starts = at == 0 || path[at - 1] == '/';
        const bool ends = at + 2 == path.size() || path[at + 2] == '/';
        if (starts && ends)
            return true;
    }
    return false;
}

} // namespace

NativePath::NativePath(QStringView path)
{
    Convert(path);
    Finish();
    if (!problem)
        Reach();
}

NativePath::NativePath(QByteArrayView path)
{
    bytes.append(path.data(), path.size());
    Finish();
    if (!problem)
        Reach();
}

NativePath::NativePath(int heldFolder, QStringView path)
    : start(heldFolder)
    , isHeld(true)
{
    Convert(path);
    Finish();
    if (!problem)
        ReachBeneath();
}

NativePath::NativePath(FailureNumber whyNot)
    : problem(whyNot)
{
    bytes.append('\0');
}

void NativePath::Convert(QStringView path)
{
    bytes.resize(path.size() * 3 + 1);
    bool damaged = false;
    bytes.resize(WriteUtf8(path, NameBytes::Raw, bytes.data(), &damaged) - bytes.constData());
    // Half of a surrogate pair stands for no bytes: to guess some could name another file.
    if (damaged)
        problem = FailureNumber::InvalidProcedureCall;
}

void NativePath::Finish()
{
    if (bytes.isEmpty())
        problem = FailureNumber::BadFileName;
    else if (std::memchr(bytes.constData(), '\0', static_cast<size_t>(bytes.size())))
        problem = FailureNumber::InvalidProcedureCall;
    while (bytes.size() > 1 && bytes.last() == '/')
        bytes.removeLast();
    bytes.append('\0');
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
        Descriptor next(
            Retried([this] { return openat(Folder(), Rest(), O_PATH | O_DIRECTORY | O_CLOEXEC); }));
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

/// Up to the last name, which then stands alone.
void NativePath::ReachBeneath()
{
    const std::string_view whole(bytes.constData(), static_cast<size_t>(bytes.size() - 1));
    if (GoesUp(whole)) {
        problem = FailureNumber::PathFileAccessError;
        return;
    }
    const size_t lastSeparator = whole.rfind('/');
    if (lastSeparator == whole.npos)
        return;
    const auto last = static_cast<qsizetype>(lastSeparator);
    bytes[last] = '\0';
    Descriptor above = OpenBeneath(start, bytes.constData());
    const int error = errno;
    bytes[last] = '/';
    if (!above.IsOpen()) {
        problem = NumberOfError(error);
        return;
    }
    folder = std::move(above);
    reached = last + 1;
}

void NativePath::Demand() const
{
    if (problem)
        throw Failure(*problem);
}

int NativePath::Folder() const
{
    return folder.IsOpen() ? folder.Number() : start;
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
    if (above.isEmpty() || isHeld)
        return FailureNumber::FileNotFound;
    const NativePath path(above);
    struct stat status = {};
    const bool isThere = !path.Problem() && fstatat(path.Folder(), path.Rest(), &status, 0) == 0;
    return isThere && S_ISDIR(status.st_mode) ? FailureNumber::FileNotFound : FailureNumber::PathNotFound;
}

} // namespace tressel
