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

namespace {

/// The kind by what a listing tells of it, Other if it tells nothing.
EntryKind KindOfType(unsigned char type)
{
    switch (type) {
    case DT_REG:
        return EntryKind::File;
    case DT_DIR:
        return EntryKind::Folder;
    case DT_LNK:
        return EntryKind::Link;
    default:
        return EntryKind::Other;
    }
}

} // namespace

PosixFolderReader::PosixFolderReader(Descriptor folder, Lengths wantedLengths)
    : lengths(wantedLengths)
    , stream(fdopendir(folder.Number()))
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
        return EntryOf(*entry);
    }
}

FolderEntry PosixFolderReader::EntryOf(const dirent &entry) const
{
    FolderEntry known{*TextFromUtf8(entry.d_name, NameBytes::Raw), KindOfType(entry.d_type),
                      *entry.d_name == '.'};
    const bool wantsLength = lengths == Lengths::Wanted && entry.d_type == DT_REG;
    if (!wantsLength && entry.d_type != DT_UNKNOWN)
        return known;
    struct stat status = {};
    if (fstatat(dirfd(stream.get()), entry.d_name, &status, AT_SYMLINK_NOFOLLOW) != 0)
        return known;
    known.kind = KindOfMode(status.st_mode);
    if (lengths == Lengths::Wanted && known.kind == EntryKind::File)
        known.length = status.st_size;
    return known;
}

} // namespace tressel
