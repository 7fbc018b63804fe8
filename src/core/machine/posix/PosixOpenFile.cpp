// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "machine/posix/PosixOpenFile.h"

#include "machine/posix/DataJournal.h"
#include "machine/posix/FileRights.h"
#include "machine/posix/Retried.h"
#include "machine/posix/SystemError.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <fcntl.h>
#include <linux/fiemap.h>
#include <linux/fs.h>
#include <new>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <vector>

namespace tressel {

namespace {

/// For files that don't tell their length, such as those of /proc.
constexpr qint64 roomForUnknown = 1 << 16;

/// The medium works on one such run of bytes while the next is written.
constexpr qint64 sentAtOnce = 8 << 20;

/// Bytes that one call writes at the most. Measured: calls for 1 MiB and more take twice the time a byte.
constexpr qint64 writtenAtOnce = 256 << 10;

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
        const auto next = static_cast<size_t>(std::min<qint64>(bytes.size() - put, writtenAtOnce));
        const ssize_t piece = Retried([&] { return write(file.Number(), bytes.constData() + put, next); });
        if (piece < 0)
            ThrowError();
        put += piece;
        NoteWritten(piece);
    } while (put < bytes.size());
}

qint64 PosixOpenFile::TakeFrom(OpenFile &source, qint64 maximum)
{
    const auto *from = dynamic_cast<PosixOpenFile *>(&source);
    if (!from)
        return 0;
    const ssize_t taken = Retried([&] {
        return copy_file_range(from->Number(), nullptr, file.Number(), nullptr, static_cast<size_t>(maximum),
                               0);
    });
    if (taken <= 0)
        return 0;
    NoteWritten(taken);
    return taken;
}

void PosixOpenFile::NoteWritten(qint64 bytes)
{
    writtenOnEnd += bytes;
    if (writtenOnEnd < sentAtOnce)
        return;
    // A wish, like the position here: what can't begin early is written down by the flush.
    const off_t end = lseek(file.Number(), 0, SEEK_CUR);
    if (end >= writtenOnEnd)
        sync_file_range(file.Number(), end - writtenOnEnd, writtenOnEnd, SYNC_FILE_RANGE_WRITE);
    writtenOnEnd = 0;
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
    // What is written over at once need not reach the medium before.
    writtenOnEnd = 0;
}

qint64 PosixOpenFile::Length() const
{
    struct stat status = {};
    if (fstat(file.Number(), &status) != 0)
        ThrowError();
    return status.st_size;
}

void PosixOpenFile::Resize(qint64 length)
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

void PosixOpenFile::ForgetCached()
{
    // A wish: a file system that keeps all in memory has nothing else to read from.
    posix_fadvise(file.Number(), 0, 0, POSIX_FADV_DONTNEED);
}

std::optional<QList<Extent>> PosixOpenFile::Extents() const
{
    // Asked for a few at a time; see Documentation/filesystems/fiemap.rst of the kernel.
    constexpr quint32 atOnce = 128;
    constexpr quint32 notItsOwnBytes = FIEMAP_EXTENT_UNKNOWN | FIEMAP_EXTENT_DELALLOC | FIEMAP_EXTENT_ENCODED
        | FIEMAP_EXTENT_DATA_ENCRYPTED | FIEMAP_EXTENT_NOT_ALIGNED | FIEMAP_EXTENT_DATA_INLINE
        | FIEMAP_EXTENT_DATA_TAIL | FIEMAP_EXTENT_SHARED;
    if (IsInJournal())
        return {};
    std::vector<std::byte> room(sizeof(fiemap) + atOnce * sizeof(fiemap_extent));
    QList<Extent> extents;
    quint64 from = 0;
    for (;;) {
        std::ranges::fill(room, std::byte{0});
        auto *map = reinterpret_cast<fiemap *>(room.data());
        map->fm_start = from;
        map->fm_length = FIEMAP_MAX_OFFSET - from;
        map->fm_flags = FIEMAP_FLAG_SYNC;
        map->fm_extent_count = atOnce;
        if (ioctl(file.Number(), FS_IOC_FIEMAP, map) != 0)
            return {};
        for (quint32 index = 0; index < map->fm_mapped_extents; ++index) {
            const fiemap_extent &extent = map->fm_extents[index];
            if ((extent.fe_flags & notItsOwnBytes) != 0)
                return {};
            extents += {extent.fe_logical, extent.fe_physical, extent.fe_length};
            from = extent.fe_logical + extent.fe_length;
            if ((extent.fe_flags & FIEMAP_EXTENT_LAST) != 0)
                return extents;
        }
        if (map->fm_mapped_extents == 0)
            return extents;
    }
}

bool PosixOpenFile::IsInJournal() const
{
    return HasDataInJournal(file.Number());
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
