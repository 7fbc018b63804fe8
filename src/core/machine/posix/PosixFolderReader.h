// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "machine/FileSystem.h"
#include "machine/posix/Descriptor.h"

#include <dirent.h>
#include <memory>

namespace tressel {

/// An open folder of the system. Fails with the number of the system's error, at the end or on the way.
class PosixFolderReader : public FolderReader {
public:
    explicit PosixFolderReader(Descriptor folder);
    std::optional<FolderEntry> Next() override;

private:
    struct Closer {
        void operator()(DIR *stream) const { closedir(stream); }
    };
    EntryKind KindOf(const dirent &entry) const;

    std::unique_ptr<DIR, Closer> stream;
};

} // namespace tressel
