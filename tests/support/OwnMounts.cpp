// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "support/OwnMounts.h"

#include <fcntl.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tressel {

namespace {

enum Ending { Holds, HoldsNot, NotPermitted };

bool Write(const char *path, const QByteArray &text)
{
    const int file = open(path, O_WRONLY | O_CLOEXEC);
    const bool isWritten = file >= 0 && write(file, text.constData(), static_cast<size_t>(text.size())) > 0;
    close(file);
    return isWritten;
}

/// A user who isn't root is root among users of their own.
bool LeaveMounts()
{
    const QByteArray user = QByteArray::number(geteuid());
    if (geteuid() != 0) {
        if (unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0 || !Write("/proc/self/uid_map", "0 " + user + " 1"))
            return false;
    } else if (unshare(CLONE_NEWNS) != 0) {
        return false;
    }
    return mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
}

[[noreturn]] void RunInChild(const std::function<bool()> &check)
{
    if (!LeaveMounts())
        _exit(NotPermitted);
    try {
        _exit(check() ? Holds : HoldsNot);
    } catch (...) {
        _exit(HoldsNot);
    }
}

} // namespace

std::optional<bool> HoldsAmongOwnMounts(const std::function<bool()> &check)
{
    const pid_t child = fork();
    if (child == 0)
        RunInChild(check);
    int status = 0;
    const bool hasEnded = child > 0 && waitpid(child, &status, 0) == child && WIFEXITED(status);
    if (hasEnded && WEXITSTATUS(status) == NotPermitted)
        return {};
    return hasEnded && WEXITSTATUS(status) == Holds;
}

bool MountMemory(const QByteArray &folder, qint64 bytes)
{
    const QByteArray size = "size=" + QByteArray::number(bytes);
    return mount("none", folder.constData(), "tmpfs", 0, size.constData()) == 0;
}

} // namespace tressel
