// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "machine/posix/PosixOpenFile.h"

#include "machine/posix/FileRights.h"
#include "machine/posix/Retried.h"
#include "machine/posix/SystemError.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <new>
#include <sys/stat.h>

namespace tressel {

namespace {

/// For files that don't tell their length, such as those of /proc.
constexpr qint64 roomForUnknown = 1 << 16;

[[noreturn]] void ThrowError()
{
    throw Failure(NumberOfError(errno));
}

QByteArray Room(qint64 length)
{
    try {
        return QByteArray(length, Qt::Uninitialized);
    } catch (const std::bad_alloc &) {
        throw Failure(FailureNumber::OutOfMemory);
    }
}

} // namespace

qint64 PosixOpenFile::RoomFor(qint64 maximum) const
{
    struct stat status = {};
    const off_t position = lseek(file.Number(), 0, SEEK_CUR);
    if (position < 0 || fstat(file.Number(), &status) != 0 || status.st_size <= position)
        return std::min(maximum, roomForUnknown);
    return std::min<qint64>(maximum, status.st_size - position);
}

QByteArray PosixOpenFile::Read(qint64 maximum)
{
    if (maximum < 0)
        throw Failure(FailureNumber::InvalidProcedureCall);
    QByteArray bytes = Room(RoomFor(maximum));
    bytes.truncate(ReadInto({bytes.data(), static_cast<size_t>(bytes.size())}));
    return bytes;
}

qint64 PosixOpenFile::ReadInto(std::span<char> room)
{
    size_t got = 0;
    while (got < room.size()) {
        const ssize_t piece =
            Retried([&] { return read(file.Number(), room.data() + got, room.size() - got); });
        if (piece < 0)
            ThrowError();
        if (piece == 0)
            break;
        got += static_cast<size_t>(piece);
    }
    return static_cast<qint64>(got);
}

void PosixOpenFile::Write(const QByteArray &bytes)
{
    qsizetype put = 0;
    do {
        const ssize_t piece = Retried([&] {
            return write(file.Number(), bytes.constData() + put, static_cast<size_t>(bytes.size() - put));
        });
        if (piece < 0)
            ThrowError();
        put += piece;
    } while (put < bytes.size());
}

qint64 PosixOpenFile::Position() const
{
    const off_t position = lseek(file.Number(), 0, SEEK_CUR);
    if (position < 0)
        ThrowError();
    return position;
}

void PosixOpenFile::Seek(qint64 position)
{
    if (lseek(file.Number(), position, SEEK_SET) < 0)
        ThrowError();
}

qint64 PosixOpenFile::Length() const
{
    struct stat status = {};
    if (fstat(file.Number(), &status) != 0)
        ThrowError();
    return status.st_size;
}

void PosixOpenFile::CutTo(qint64 length)
{
    if (Retried([&] { return ftruncate(file.Number(), length); }) != 0)
        ThrowError();
}

void PosixOpenFile::Flush()
{
    // A pipe or device has nothing to write down.
    if (Retried([&] { return fsync(file.Number()); }) != 0 && errno != EINVAL && errno != EROFS)
        ThrowError();
}

void PosixOpenFile::Close()
{
    if (!file.IsOpen())
        return;
    // An interrupted close has closed the file all the same.
    if (close(file.Release()) != 0 && errno != EINTR)
        ThrowError();
}

void PosixOpenFile::TakeAttributesOf(const OpenFile &other)
{
    const auto &from = dynamic_cast<const PosixOpenFile &>(other);
    const FileRights rights(from.Number());
    rights.GiveTo(file.Number());
    const std::array<timespec, 2> times{rights.Status().st_atim, rights.Status().st_mtim};
    if (futimens(file.Number(), times.data()) != 0)
        ThrowError();
}

} // namespace tressel
