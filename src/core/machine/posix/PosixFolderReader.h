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
    explicit PosixFolderReader(Descriptor folder, Lengths lengths = Lengths::LeftOut);
    std::optional<FolderEntry> Next() override;

private:
    struct Closer {
        void operator()(DIR *stream) const { closedir(stream); }
    };
    FolderEntry EntryOf(const dirent &entry) const;

    Lengths lengths;
    std::unique_ptr<DIR, Closer> stream;
};

} // namespace tressel
