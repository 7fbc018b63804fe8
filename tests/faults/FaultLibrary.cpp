// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

// A library to be loaded before all others (LD_PRELOAD): it stands before the calls to the system that a
// program makes through the C library and lets the one fail that the plan names. Everything that Tressel
// calls on files is here; what it doesn't call isn't.

#include "Strike.h"

#include <array>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <dirent.h>
#include <fcntl.h>
#include <spawn.h>
#include <string>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <sys/syscall.h>
#include <sys/xattr.h>
#include <unistd.h>

using namespace tressel::faults;

namespace {

std::string Setting(const char *name, const char *value)
{
    return std::string(name) + "=" + value;
}

/// The last stream of which a read failed.
FILE *struckStream = nullptr;

mode_t ModeOf(int flags, va_list rest)
{
    const bool hasMode = (flags & O_CREAT) != 0 || (flags & O_TMPFILE) == O_TMPFILE;
    return hasMode ? va_arg(rest, mode_t) : 0;
}

} // namespace

extern "C" {

// Opening and closing

int open(const char *path, int flags, ...)
{
    static const auto next = Next(&open, "open");
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = ModeOf(flags, rest);
    va_end(rest);
    return FailsAt(Kind::Open, "open", AT_FDCWD, path) ? -1 : next(path, flags, mode);
}

int openat(int folder, const char *path, int flags, ...)
{
    static const auto next = Next(&openat, "openat");
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = ModeOf(flags, rest);
    va_end(rest);
    if (plan && plan->isOldSystem && (flags & O_TMPFILE) == O_TMPFILE) {
        errno = EOPNOTSUPP;
        return -1;
    }
    return FailsAt(Kind::Open, "openat", folder, path) ? -1 : next(folder, path, flags, mode);
}

/// openat2 has no name in the C library. All calls that come here have six words at the most.
long syscall(long number, ...) noexcept
{
    std::array<long, 6> word;
    va_list rest;
    va_start(rest, number);
    for (long &each : word)
        each = va_arg(rest, long);
    va_end(rest);
    if (number == SYS_openat2
        && FailsAt(Kind::Open, "openat2", static_cast<int>(word[0]), reinterpret_cast<const char *>(word[1])))
        return -1;
    return Bare(number, word[0], word[1], word[2], word[3], word[4], word[5]);
}

int close(int file)
{
    static const auto next = Next(&close, "close");
    const bool fails = FailsOn(Kind::Close, "close", file);
    const int error = errno;
    // One that fails has closed the file all the same.
    const int result = next(file);
    if (!fails)
        return result;
    errno = error;
    return -1;
}

// Contents

ssize_t read(int file, void *room, size_t length)
{
    static const auto next = Next(&read, "read");
    return FailsOrShortens(Kind::Read, "read", file, length) ? -1 : next(file, room, length);
}

ssize_t pread(int file, void *room, size_t length, off_t position)
{
    static const auto next = Next(&pread, "pread");
    return FailsOrShortens(Kind::Read, "pread", file, length) ? -1 : next(file, room, length, position);
}

ssize_t write(int file, const void *bytes, size_t length)
{
    static const auto next = Next(&write, "write");
    return FailsOrShortens(Kind::Write, "write", file, length) ? -1 : next(file, bytes, length);
}

ssize_t pwrite(int file, const void *bytes, size_t length, off_t position)
{
    static const auto next = Next(&pwrite, "pwrite");
    return FailsOrShortens(Kind::Write, "pwrite", file, length) ? -1 : next(file, bytes, length, position);
}

ssize_t copy_file_range(int from, off64_t *fromPosition, int file, off64_t *position, size_t length,
                        unsigned flags)
{
    static const auto next = Next(&copy_file_range, "copy_file_range");
    return FailsOrShortens(Kind::Write, "copy_file_range", file, length)
        ? -1
        : next(from, fromPosition, file, position, length, flags);
}

off_t lseek(int file, off_t position, int from) noexcept
{
    static const auto next = Next(&lseek, "lseek");
    return FailsOn(Kind::Seek, "lseek", file) ? -1 : next(file, position, from);
}

int ftruncate(int file, off_t length) noexcept
{
    static const auto next = Next(&ftruncate, "ftruncate");
    return FailsOn(Kind::Truncate, "ftruncate", file) ? -1 : next(file, length);
}

int fsync(int file)
{
    static const auto next = Next(&fsync, "fsync");
    return FailsOn(Kind::Sync, "fsync", file) ? -1 : next(file);
}

int fdatasync(int file)
{
    static const auto next = Next(&fdatasync, "fdatasync");
    return FailsOn(Kind::Sync, "fdatasync", file) ? -1 : next(file);
}

int flock(int file, int operation) noexcept
{
    static const auto next = Next(&flock, "flock");
    return FailsOn(Kind::Lock, "flock", file) ? -1 : next(file, operation);
}

// Names

int rename(const char *from, const char *to) noexcept
{
    static const auto next = Next(&rename, "rename");
    return FailsAt(Kind::Rename, "rename", AT_FDCWD, from) ? -1 : next(from, to);
}

int renameat(int folder, const char *from, int toFolder, const char *to) noexcept
{
    static const auto next = Next(&renameat, "renameat");
    return FailsAt(Kind::Rename, "renameat", folder, from) ? -1 : next(folder, from, toFolder, to);
}

int renameat2(int folder, const char *from, int toFolder, const char *to, unsigned flags) noexcept
{
    static const auto next = Next(&renameat2, "renameat2");
    if (plan && plan->isOldSystem && flags != 0) {
        errno = EINVAL;
        return -1;
    }
    return FailsAt(Kind::Rename, "renameat2", folder, from) ? -1 : next(folder, from, toFolder, to, flags);
}

int linkat(int folder, const char *from, int toFolder, const char *to, int flags) noexcept
{
    static const auto next = Next(&linkat, "linkat");
    return FailsAt(Kind::Link, "linkat", toFolder, to) ? -1 : next(folder, from, toFolder, to, flags);
}

int symlinkat(const char *target, int folder, const char *path) noexcept
{
    static const auto next = Next(&symlinkat, "symlinkat");
    return FailsAt(Kind::Symlink, "symlinkat", folder, path) ? -1 : next(target, folder, path);
}

ssize_t readlink(const char *path, char *room, size_t length) noexcept
{
    static const auto next = Next(&readlink, "readlink");
    return FailsAt(Kind::Readlink, "readlink", AT_FDCWD, path) ? -1 : next(path, room, length);
}

ssize_t readlinkat(int folder, const char *path, char *room, size_t length) noexcept
{
    static const auto next = Next(&readlinkat, "readlinkat");
    return FailsAt(Kind::Readlink, "readlinkat", folder, path) ? -1 : next(folder, path, room, length);
}

int unlink(const char *path) noexcept
{
    static const auto next = Next(&unlink, "unlink");
    return FailsAt(Kind::Unlink, "unlink", AT_FDCWD, path) ? -1 : next(path);
}

int unlinkat(int folder, const char *path, int flags) noexcept
{
    static const auto next = Next(&unlinkat, "unlinkat");
    const Kind kind = (flags & AT_REMOVEDIR) != 0 ? Kind::Rmdir : Kind::Unlink;
    return FailsAt(kind, "unlinkat", folder, path) ? -1 : next(folder, path, flags);
}

// Folders

int mkdir(const char *path, mode_t mode) noexcept
{
    static const auto next = Next(&mkdir, "mkdir");
    return FailsAt(Kind::Mkdir, "mkdir", AT_FDCWD, path) ? -1 : next(path, mode);
}

int mkdirat(int folder, const char *path, mode_t mode) noexcept
{
    static const auto next = Next(&mkdirat, "mkdirat");
    return FailsAt(Kind::Mkdir, "mkdirat", folder, path) ? -1 : next(folder, path, mode);
}

int rmdir(const char *path) noexcept
{
    static const auto next = Next(&rmdir, "rmdir");
    return FailsAt(Kind::Rmdir, "rmdir", AT_FDCWD, path) ? -1 : next(path);
}

dirent *readdir(DIR *stream)
{
    static const auto next = Next(&readdir, "readdir");
    return FailsOn(Kind::Readdir, "readdir", dirfd(stream)) ? nullptr : next(stream);
}

// What is known of files

int stat(const char *path, struct stat *status) noexcept
{
    static const auto next = Next<int(const char *, struct stat *)>(nullptr, "stat");
    return FailsAt(Kind::Stat, "stat", AT_FDCWD, path) ? -1 : next(path, status);
}

int fstat(int file, struct stat *status) noexcept
{
    static const auto next = Next(&fstat, "fstat");
    return FailsOn(Kind::Stat, "fstat", file) ? -1 : next(file, status);
}

int fstatat(int folder, const char *path, struct stat *status, int flags) noexcept
{
    static const auto next = Next(&fstatat, "fstatat");
    return FailsAt(Kind::Stat, "fstatat", folder, path) ? -1 : next(folder, path, status, flags);
}

int fstatvfs(int file, struct statvfs *room) noexcept
{
    static const auto next = Next(&fstatvfs, "fstatvfs");
    return FailsOn(Kind::Room, "fstatvfs", file) ? -1 : next(file, room);
}

int fchmod(int file, mode_t mode) noexcept
{
    static const auto next = Next(&fchmod, "fchmod");
    return FailsOn(Kind::Chmod, "fchmod", file) ? -1 : next(file, mode);
}

int fchmodat(int folder, const char *path, mode_t mode, int flags) noexcept
{
    static const auto next = Next(&fchmodat, "fchmodat");
    return FailsAt(Kind::Chmod, "fchmodat", folder, path) ? -1 : next(folder, path, mode, flags);
}

int fchown(int file, uid_t user, gid_t group) noexcept
{
    static const auto next = Next(&fchown, "fchown");
    return FailsOn(Kind::Chown, "fchown", file) ? -1 : next(file, user, group);
}

int futimens(int file, const timespec *times) noexcept
{
    static const auto next = Next(&futimens, "futimens");
    return FailsOn(Kind::Times, "futimens", file) ? -1 : next(file, times);
}

ssize_t fgetxattr(int file, const char *name, void *value, size_t length) noexcept
{
    static const auto next = Next(&fgetxattr, "fgetxattr");
    return FailsOn(Kind::Attribute, "fgetxattr", file) ? -1 : next(file, name, value, length);
}

int fsetxattr(int file, const char *name, const void *value, size_t length, int flags) noexcept
{
    static const auto next = Next(&fsetxattr, "fsetxattr");
    return FailsOn(Kind::Attribute, "fsetxattr", file) ? -1 : next(file, name, value, length, flags);
}

int fremovexattr(int file, const char *name) noexcept
{
    static const auto next = Next(&fremovexattr, "fremovexattr");
    return FailsOn(Kind::Attribute, "fremovexattr", file) ? -1 : next(file, name);
}

// Streams, as libraries use them. They go on by themselves where a call is interrupted or comes short.

FILE *fopen(const char *path, const char *mode)
{
    static const auto next = Next(&fopen, "fopen");
    return FailsAt(Kind::Open, "fopen", AT_FDCWD, path) ? nullptr : next(path, mode);
}

size_t fread(void *room, size_t size, size_t count, FILE *stream)
{
    static const auto next = Next(&fread, "fread");
    const bool goesOn = plan && (plan->outcome == shortened || plan->outcome == EINTR);
    if (goesOn || !FailsOn(Kind::Read, "fread", fileno(stream)))
        return next(room, size, count, stream);
    struckStream = stream;
    return 0;
}

int ferror(FILE *stream) noexcept
{
    static const auto next = Next(&ferror, "ferror");
    return stream == struckStream ? 1 : next(stream);
}

int fseeko(FILE *stream, off_t position, int from)
{
    static const auto next = Next(&fseeko, "fseeko");
    return FailsOn(Kind::Seek, "fseeko", fileno(stream)) ? -1 : next(stream, position, from);
}

// Other programs

/// Nothing of this library gets into a program that is started without the environment, so it is put there.
int posix_spawn(pid_t *process, const char *path, const posix_spawn_file_actions_t *actions,
                const posix_spawnattr_t *attributes, char *const *arguments, char *const *environment)
{
    static const auto next = Next(&posix_spawn, "posix_spawn");
    std::string preload = Setting("LD_PRELOAD", std::getenv("LD_PRELOAD"));
    std::string planPath = Setting(planVariable, std::getenv(planVariable));
    std::string started = Setting(startedVariable, "1");
    const std::array<char *, 4> ours{preload.data(), planPath.data(), started.data(), nullptr};
    return next(process, path, actions, attributes, arguments, *environment ? environment : ours.data());
}

/// Behind this call a process can't ask where its files lead.
int seccomp_load(void *filter)
{
    static const auto next = Next(&seccomp_load, "seccomp_load");
    if (plan)
        NotePaths();
    return next(filter);
}

} // extern "C"
