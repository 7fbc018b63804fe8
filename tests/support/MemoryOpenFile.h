// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "support/MemoryFileSystem.h"

namespace tressel {

/// A file of the memory file system that is open.
class MemoryOpenFile : public OpenFile {
public:
    MemoryOpenFile(MemoryFileSystem &files, std::shared_ptr<MemoryNode> node, QString path, OpenFor purpose,
                   Sharing sharing);
    ~MemoryOpenFile() override;
    MemoryOpenFile(const MemoryOpenFile &) = delete;
    MemoryOpenFile &operator=(const MemoryOpenFile &) = delete;

    QByteArray Read(qint64 maximum) override;
    void Write(const QByteArray &bytes) override;
    qint64 Position() const override;
    void Seek(qint64 newPosition) override;
    qint64 Length() const override;
    void Resize(qint64 length) override;
    void Flush() override;
    std::optional<QList<Extent>> Extents() const override { return node->extents; }
    bool IsInJournal() const override { return node->isInJournal; }
    void Close() override;
    void TakeAttributesOf(const OpenFile &other) override;

private:
    /// Fails with 52 once the file is closed.
    void NeedOpen() const;
    void LetGo();
    void Put(const QByteArray &bytes);

    MemoryFileSystem &files;
    std::shared_ptr<MemoryNode> node; ///< none once it is closed
    QString path;
    OpenFor purpose;
    bool holds;
    qint64 position = 0;
};

} // namespace tressel
