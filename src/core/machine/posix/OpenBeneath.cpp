// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "machine/posix/OpenBeneath.h"

#include "machine/posix/Retried.h"

#include <QByteArrayList>
#include <QByteArrayView>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <linux/openat2.h>
#include <sys/stat.h>
#include <sys/syscall.h>

namespace tressel {

namespace {

constexpr int asPlace = O_PATH | O_DIRECTORY | O_CLOEXEC;

int OpenInOneStep(int folder, const char *path)
{
    open_how how{};
    how.flags = asPlace;
    how.resolve = RESOLVE_BENEATH | RESOLVE_NO_SYMLINKS;
    return Retried([&] { return static_cast<int>(syscall(SYS_openat2, folder, path, &how, sizeof how)); });
}

/// A system that doesn't know the step, or that keeps programs from it, and paths that are too long for it.
bool NeedsSmallerSteps(int error)
{
    return error == ENOSYS || error == EPERM || error == ENAMETOOLONG;
}

Descriptor OpenLevel(int folder, const QByteArray &name)
{
    if (name == "..") {
        errno = EXDEV;
        return {};
    }
    Descriptor level(Retried([&] { return openat(folder, name.constData(), asPlace | O_NOFOLLOW); }));
    struct stat status = {};
    // A link is told as what is no folder.
    if (!level.IsOpen() && errno == ENOTDIR) {
        const bool isLink =
            fstatat(folder, name.constData(), &status, AT_SYMLINK_NOFOLLOW) == 0 && S_ISLNK(status.st_mode);
        errno = isLink ? ELOOP : ENOTDIR;
    }
    return level;
}

} // namespace

Descriptor OpenBeneath(int folder, const char *path)
{
    Descriptor open(OpenInOneStep(folder, path));
    return open.IsOpen() || !NeedsSmallerSteps(errno) ? std::move(open) : OpenLevelByLevel(folder, path);
}

Descriptor OpenLevelByLevel(int folder, const char *path)
{
    Descriptor reached(Retried([&] { return openat(folder, ".", asPlace); }));
    for (const QByteArray &name : QByteArray(path).split('/')) {
        if (reached.IsOpen() && !name.isEmpty())
            reached = OpenLevel(reached.Number(), name);
    }
    return reached;
}

} // namespace tressel
