// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

// A library to be loaded before all others (LD_PRELOAD): it stands before the calls to the system that a
// program makes through the C library and lets the one fail that the plan names. Everything that Tressel
// calls on files is here; what it doesn't call isn't.

#include "FaultPlan.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <string_view>
#include <sys/file.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <sys/syscall.h>
#include <sys/xattr.h>
#include <unistd.h>

using tressel::faults::FaultPlan;
using tressel::faults::Kind;

namespace {

/// The call behind ours, in the C library.
template <typename Call> Call *Next(Call * /*ours*/, const char *name)
{
    return reinterpret_cast<Call *>(dlsym(RTLD_NEXT, name));
}

/// A bare call to the system.
template <typename... Words> long Bare(long number, Words... words)
{
    // Found when it is first needed: other libraries may call before this one is set up.
    static const auto next = Next(&syscall, "syscall");
    return next(number, words...);
}

/// By the bare calls, since those with names lead back to this library.
FaultPlan *OpenPlan()
{
    const char *path = std::getenv(tressel::faults::planVariable);
    if (!path)
        return nullptr;
    const auto file = static_cast<int>(Bare(SYS_openat, AT_FDCWD, path, O_RDWR | O_CLOEXEC));
    void *memory = mmap(nullptr, sizeof(FaultPlan), PROT_READ | PROT_WRITE, MAP_SHARED, file, 0);
    Bare(SYS_close, file);
    return memory == MAP_FAILED ? nullptr : static_cast<FaultPlan *>(memory);
}

FaultPlan *const plan = OpenPlan();

bool IsBelowRoot(std::string_view path)
{
    const std::string_view root = plan->root.data();
    return path.starts_with(root) && (path.size() == root.size() || path[root.size()] == '/');
}

using PathRoom = std::array<char, PATH_MAX>;

/// The path of what a link of /proc leads to, in the room.
std::string_view PathBehind(const char *link, PathRoom &room)
{
    const long length = Bare(SYS_readlink, link, room.data(), room.size());
    return {room.data(), static_cast<std::size_t>(std::max(length, 0L))};
}

std::string_view PathOf(int file, PathRoom &room)
{
    std::array<char, 32> link;
    std::snprintf(link.data(), link.size(), "/proc/self/fd/%d", file);
    return PathBehind(link.data(), room);
}

std::string_view FolderOf(int folder, PathRoom &room)
{
    return folder == AT_FDCWD ? PathBehind("/proc/self/cwd", room) : PathOf(folder, room);
}

void Note(const char *call, std::string_view path)
{
    std::snprintf(plan->call.data(), plan->call.size(), "%s", call);
    const int most = static_cast<int>(std::min(path.size(), plan->path.size() - 1));
    std::snprintf(plan->path.data(), plan->path.size(), "%.*s", most, path.data());
    plan->struck = true;
}

/// Counts a call that is about the path and tells whether it is to be struck.
bool IsStruck(Kind kind, const char *call, std::string_view path)
{
    if ((plan->kind != kind && plan->kind != Kind::Any) || !IsBelowRoot(path))
        return false;
    const int number = ++plan->calls;
    const bool strikes =
        number == plan->number || (plan->lasts && plan->number != 0 && number > plan->number);
    if (!strikes)
        return false;
    Note(call, path);
    if (plan->outcome == tressel::faults::killed)
        Bare(SYS_kill, Bare(SYS_getpid), SIGKILL);
    return true;
}

/// True if the call fails, with errno set.
bool Fails(Kind kind, const char *call, std::string_view path)
{
    if (!IsStruck(kind, call, path) || plan->outcome == tressel::faults::shortened)
        return false;
    errno = plan->outcome;
    return true;
}

bool FailsAt(Kind kind, const char *call, int folder, const char *path)
{
    PathRoom room;
    if (!plan)
        return false;
    if (*path == '/')
        return Fails(kind, call, path);
    const std::string_view above = FolderOf(folder, room);
    PathRoom whole;
    const int length = std::snprintf(whole.data(), whole.size(), "%.*s/%s", static_cast<int>(above.size()),
                                     above.data(), path);
    return Fails(kind, call, {whole.data(), std::min(static_cast<std::size_t>(length), whole.size() - 1)});
}

bool FailsOn(Kind kind, const char *call, int file)
{
    PathRoom room;
    return plan && Fails(kind, call, PathOf(file, room));
}

/// The bytes that a call which reads or writes is carried out for; nothing goes if it fails.
bool FailsOrShortens(Kind kind, const char *call, int file, std::size_t &length)
{
    PathRoom room;
    if (!plan || !IsStruck(kind, call, PathOf(file, room)))
        return false;
    if (plan->outcome == tressel::faults::shortened) {
        length = std::min(length, std::max<std::size_t>(1, length / 2));
        return false;
    }
    errno = plan->outcome;
    return true;
}

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

} // extern "C"
