// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tools/splitter/SplitterRun.h"

#include <span>

namespace tressel {

/// The run that puts a file together from its parts. One object a run.
class FileJoin {
public:
    /// A run that can't read or write puts the files that it keeps open into `leftOpen`.
    FileJoin(const ToolContext &context, SplitterPage &page, LeftOpen &leftOpen,
             RoomMaker makeRoom = MakeRoom);

    /// Writes the parts FileName.1, FileName.2 and so on, up to the first number that is missing, into
    /// FileName. What goes wrong beside opening and writing leaves as a failure.
    void JoinFiles(const QString &FileName);

private:
    bool IsTargetFree();
    void FindParts();
    bool HasPart(const QString &name);
    bool JoinParts();
    bool JoinPart(std::int16_t part);
    void MakeRoomFor(std::int32_t length);
    void WritePart(OpenFile &file, const QString &name, qint64 length);
    bool CopyPart(OpenFile &file, const QString &name, qint64 length);
    bool ReadPiece(OpenFile &file, const QString &name, std::span<char> piece);
    void WriteZeros(qint64 length);
    bool OpenForRun(std::unique_ptr<OpenFile> &file, const QString &path, Links links);
    bool EndAs(const QString &text);
    void DeleteParts();

    SplitterRun run;
    LeftOpen &leftOpen;
    RoomMaker makeRoom;

    QString target;
    std::int16_t count = 0; ///< parts
    QByteArray room; ///< for a whole part; its beginning serves for all of it
    std::unique_ptr<OpenFile> output;
};

} // namespace tressel
