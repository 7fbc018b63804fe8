// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "machine/posix/PosixFolderReader.h"

#include "machine/NameText.h"
#include "machine/posix/FileKind.h"
#include "machine/posix/SystemError.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>

namespace tressel {

PosixFolderReader::PosixFolderReader(Descriptor folder)
    : stream(fdopendir(folder.Number()))
{
    if (!stream)
        throw Failure(NumberOfError(errno));
    folder.Release();
}

std::optional<FolderEntry> PosixFolderReader::Next()
{
    for (;;) {
        errno = 0;
        const dirent *const entry = readdir(stream.get());
        if (!entry) {
            if (errno != 0)
                throw Failure(NumberOfError(errno));
            return {};
        }
        const char *const name = entry->d_name;
        if (std::strcmp(name, ".") == 0 || std::strcmp(name, "..") == 0)
            continue;
        return FolderEntry{*TextFromUtf8(name, NameBytes::Raw), KindOf(*entry), *name == '.'};
    }
}

EntryKind PosixFolderReader::KindOf(const dirent &entry) const
{
    switch (entry.d_type) {
    case DT_REG:
        return EntryKind::File;
    case DT_DIR:
        return EntryKind::Folder;
    case DT_LNK:
        return EntryKind::Link;
    case DT_UNKNOWN:
        break;
    default:
        return EntryKind::Other;
    }
    struct stat status = {};
    if (fstatat(dirfd(stream.get()), entry.d_name, &status, AT_SYMLINK_NOFOLLOW) != 0)
        return EntryKind::Other;
    return KindOfMode(status.st_mode);
}

} // namespace tressel
