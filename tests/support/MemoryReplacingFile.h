// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "support/MemoryFileSystem.h"

namespace tressel {

/// New contents of a file of the memory file system, which take room beside the old ones.
class MemoryReplacingFile : public ReplacingFile {
public:
    MemoryReplacingFile(MemoryFileSystem &files, QString path, IfThere ifThere);
    ~MemoryReplacingFile() override;
    MemoryReplacingFile(const MemoryReplacingFile &) = delete;
    MemoryReplacingFile &operator=(const MemoryReplacingFile &) = delete;

    void Write(const QByteArray &bytes) override;
    void Commit() override;

private:
    MemoryFileSystem &files;
    QString path;
    IfThere ifThere;
    QByteArray bytes; ///< as far as the drive had room
};

} // namespace tressel
