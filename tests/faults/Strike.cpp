// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "Strike.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <string_view>
#include <sys/mman.h>
#include <sys/syscall.h>

namespace tressel::faults {

namespace {

/// By the bare calls, since those with names lead back to this library.
FaultPlan *OpenPlan()
{
    const char *path = std::getenv(planVariable);
    if (!path)
        return nullptr;
    const auto file = static_cast<int>(Bare(SYS_openat, AT_FDCWD, path, O_RDWR | O_CLOEXEC));
    void *memory = mmap(nullptr, sizeof(FaultPlan), PROT_READ | PROT_WRITE, MAP_SHARED, file, 0);
    Bare(SYS_close, file);
    return memory == MAP_FAILED ? nullptr : static_cast<FaultPlan *>(memory);
}

/// None for a program that the faults aren't for.
FaultPlan *PlanForThis()
{
    FaultPlan *const opened = OpenPlan();
    const bool isStarted = std::getenv(startedVariable) != nullptr;
    return opened && opened->inStarted == isStarted ? opened : nullptr;
}

} // namespace

FaultPlan *const plan = PlanForThis();

namespace {

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

/// Where the open files lead, from the moment on when the process can't ask any more.
constexpr int mostNoted = 16;
std::array<PathRoom, mostNoted> notedPaths;
bool hasNotedPaths = false;

std::string_view PathOf(int file, PathRoom &room)
{
    if (hasNotedPaths)
        return file >= 0 && file < mostNoted ? notedPaths.at(static_cast<std::size_t>(file)).data() : "";
    std::array<char, 32> link;
    std::snprintf(link.data(), link.size(), "/proc/self/fd/%d", file);
    return PathBehind(link.data(), room);
}

std::string_view FolderOf(int folder, PathRoom &room)
{
    return folder == AT_FDCWD ? PathBehind("/proc/self/cwd", room) : PathOf(folder, room);
}

/// The first of those that are struck.
void Note(const char *call, std::string_view path)
{
    if (plan->struck)
        return;
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
    if (plan->outcome == killed)
        Bare(SYS_kill, Bare(SYS_getpid), SIGKILL);
    return true;
}

/// True if the call fails, with errno set.
bool Fails(Kind kind, const char *call, std::string_view path)
{
    if (!IsStruck(kind, call, path) || plan->outcome == shortened)
        return false;
    errno = plan->outcome;
    return true;
}

} // namespace

bool FailsAt(Kind kind, const char *call, int folder, const char *path)
{
    PathRoom room;
    if (!plan)
        return false;
    if (std::string_view(path).starts_with("/proc/self/fd/"))
        return Fails(kind, call, PathBehind(path, room));
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

void NotePaths()
{
    for (int file = 0; file < mostNoted; ++file) {
        PathRoom room;
        PathRoom &noted = notedPaths.at(static_cast<std::size_t>(file));
        const std::size_t length = PathOf(file, room).copy(noted.data(), noted.size() - 1);
        noted.at(length) = '\0';
    }
    hasNotedPaths = true;
}

bool FailsOrShortens(Kind kind, const char *call, int file, std::size_t &length)
{
    PathRoom room;
    if (!plan || !IsStruck(kind, call, PathOf(file, room)))
        return false;
    if (plan->outcome == shortened) {
        length = std::min(length, std::max<std::size_t>(1, length / 2));
        return false;
    }
    errno = plan->outcome;
    return true;
}

} // namespace tressel::faults
