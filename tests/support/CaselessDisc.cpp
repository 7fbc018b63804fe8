// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "support/CaselessDisc.h"

#include "support/OwnMounts.h"

#include <QByteArrayList>

#include <fcntl.h>
#include <linux/fs.h>
#include <spawn.h>
#include <sys/ioctl.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace tressel {

namespace {

/// Runs a program that says nothing. True if it is there and did what it was to do.
bool Succeeds(const QByteArrayList &command)
{
    std::vector<char *> words;
    for (const QByteArray &word : command)
        words.push_back(const_cast<char *>(word.constData()));
    words.push_back(nullptr);
    posix_spawn_file_actions_t silent;
    posix_spawn_file_actions_init(&silent);
    for (const int descriptor : {STDOUT_FILENO, STDERR_FILENO})
        posix_spawn_file_actions_addopen(&silent, descriptor, "/dev/null", O_WRONLY, 0);
    pid_t child = -1;
    const int error = posix_spawnp(&child, words.front(), &silent, nullptr, words.data(), environ);
    posix_spawn_file_actions_destroy(&silent);
    int status = 0;
    return error == 0 && waitpid(child, &status, 0) == child && status == 0;
}

bool MountInMemory(const QByteArray &folder)
{
    if (mount("none", folder.constData(), "tmpfs", 0, "casefold") != 0)
        return false;
    const int root = open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    int flags = FS_CASEFOLD_FL;
    const bool folds = root >= 0 && ioctl(root, FS_IOC_SETFLAGS, &flags) == 0;
    close(root);
    return folds;
}

/// The file is gone again from its folder as soon as it is mounted.
bool MountFat(const QByteArray &folder, const QByteArrayList &mountCommand)
{
    const QByteArray image = folder + ".image";
    const bool isMounted = Succeeds({"/usr/sbin/mkfs.vfat", "-C", image, "2048"})
        && Succeeds(mountCommand + QByteArrayList{image, folder});
    unlink(image.constData());
    return isMounted;
}

bool Mount(CaselessDisc kind, const QByteArray &folder)
{
    switch (kind) {
    case CaselessDisc::InMemory:
        return MountInMemory(folder);
    case CaselessDisc::Fat:
        return MountFat(folder, {"mount", "-t", "vfat", "-o", "loop"});
    case CaselessDisc::FatInUserSpace:
        return MountFat(folder, {"fusefat", "-o", "rw+"});
    }
    return false;
}

bool FoldsCase(const QByteArray &folder)
{
    const QByteArray small = folder + "/x";
    const int file = open(small.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
    close(file);
    struct stat status = {};
    const bool folds = file >= 0 && stat((folder + "/X").constData(), &status) == 0;
    unlink(small.constData());
    return folds;
}

/// Such a disc, for as long as this lives.
class MountedDisc {
public:
    MountedDisc(CaselessDisc kind, const QByteArray &mountFolder)
        : folder(mountFolder)
        , folds(Mount(kind, folder) && FoldsCase(folder))
    {
    }
    ~MountedDisc() { umount2(folder.constData(), MNT_DETACH); }
    MountedDisc(const MountedDisc &) = delete;
    MountedDisc &operator=(const MountedDisc &) = delete;

    bool IsThere() const { return folds; }

private:
    QByteArray folder;
    bool folds;
};

} // namespace

std::optional<bool> HoldsWithoutCase(CaselessDisc kind, const QByteArray &folder,
                                     const std::function<bool()> &check)
{
    const auto canMount = HoldsAmongOwnMounts([&] { return MountedDisc(kind, folder).IsThere(); });
    if (!canMount.value_or(false))
        return {};
    return HoldsAmongOwnMounts([&] {
        const MountedDisc disc(kind, folder);
        return disc.IsThere() && check();
    });
}

} // namespace tressel
