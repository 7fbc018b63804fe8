// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "machine/posix/PosixFileSystem.h"
#include "support/Operation.h"

#include <functional>

namespace tressel {

/// What is about to be done to the real disc.
struct DiscStep {
    Operation operation; ///< WriteBytes, ResizeFile, FlushFile, CloseFile, CommitFile or RemoveFile
    QString path;
    qint64 bytes; ///< to be written at the most, or the new length
};

/// The real disc, where a test looks at, or does, something before each step that changes a file.
class WatchedDisc : public PosixFileSystem {
public:
    std::function<void(const DiscStep &)> before = [](const DiscStep &) {};
    bool hasShortWay = true; ///< OpenFile::TakeFrom goes, as far as it does here

    std::unique_ptr<OpenFile> Open(const QString &path, OpenFor purpose,
                                   Sharing sharing = Sharing::Shared) override;
    std::unique_ptr<ReplacingFile> Replace(const QString &path, IfThere ifThere) override;
    void RemoveFile(const QString &path) override;
};

} // namespace tressel
