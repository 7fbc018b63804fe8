// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "machine/FileSystem.h"
#include "machine/posix/Descriptor.h"

namespace tressel {

/// An open file of the system.
class PosixOpenFile : public OpenFile {
public:
    explicit PosixOpenFile(Descriptor file)
        : file(std::move(file))
    {
    }

    QByteArray Read(qint64 maximum) override;
    qint64 ReadInto(std::span<char> room) override;
    void Write(const QByteArray &bytes) override;
    qint64 TakeFrom(OpenFile &source, qint64 maximum) override;
    qint64 Position() const override;
    void Seek(qint64 position) override;
    qint64 Length() const override;
    void Resize(qint64 length) override;
    void Flush() override;
    void ForgetCached() override;
    std::optional<QList<Extent>> Extents() const override;
    bool IsInJournal() const override;
    void Close() override;
    void TakeAttributesOf(const OpenFile &other) override;

    /// What the system knows it by, -1 once it is closed.
    int Number() const { return file.Number(); }

private:
    /// How many bytes to make room for, to read at most so many.
    qint64 RoomFor(qint64 maximum) const;
    /// Sends long runs of written bytes on their way to the medium, so that a flush finds little left.
    void NoteWritten(qint64 bytes);

    Descriptor file;
    qint64 writtenOnEnd = 0; ///< bytes that were written in a row and not sent on their way yet
};

} // namespace tressel
