// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "machine/FileSystem.h"
#include "tools/ToolContext.h"

#include <QByteArray>

#include <cstdint>
#include <map>
#include <memory>

namespace tressel {

class ErasePage;

/// Bytes that are overwritten at once.
constexpr qint64 eraseBlock = 4096;

/// How many blocks a file of so many bytes is overwritten with: the last one is always written whole, and one
/// more where the length is a multiple of a block. Fails with 6 beyond 32 bits.
std::int32_t BlocksToErase(qint64 length);

/// The run that overwrites the files of the list and deletes them.
class FileErasure {
public:
    FileErasure(const ToolContext &context, ErasePage &page);

    /// Erases the files of the list from the first on; each leaves the list whatever became of it. Nothing
    /// keeps a second run from starting in the middle of this one.
    void EraseList();

    /// Overwrites a file block by block with two patterns, cuts it down to two lines and deletes it. Never
    /// fails: a folder, link or anything else that is no regular file gets a box, all other failures are
    /// silent. A file that failed stays, as far as it was overwritten.
    void WipeFileClean(const QString &FileName);

private:
    void Overwrite(OpenFile &file, std::int32_t blocks);
    void LeaveTwoLines(const QString &FileName);
    void TellFailure(const QString &FileName, const Failure &failure);
    int FreeNumber() const;

    ErasePage &page;
    const Machine machine;
    const ClickSound &clickSound;
    RunWatch &watch;
    /// Open files by their numbers. Kept: a file that failed is never closed, and so takes its number out of
    /// use; once it is number 2, no file can be cut and deleted any more.
    std::map<int, std::unique_ptr<OpenFile>> openFiles;
};

} // namespace tressel
