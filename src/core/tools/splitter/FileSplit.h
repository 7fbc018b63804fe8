// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/Steps.h"
#include "tools/splitter/SplitterRun.h"

namespace tressel {

/// The run that cuts one file into parts beside it, and leaves a batch file there that joins them. One object
/// a run.
class FileSplit {
public:
    /// A run that fails at writing puts the files that it keeps open into `leftOpen`.
    FileSplit(const ToolContext &context, SplitterPage &page, LeftOpen &leftOpen,
              RoomMaker makeRoom = MakeRoom);

    /// Cuts the file into parts of ChunkSize bytes. True once statistics have been shown; false if the user
    /// refused, the file couldn't be opened or a part not be written.
    bool SplitFiles(const QString &fileName, std::int32_t chunkSize);

private:
    void PlanParts();
    bool IsWanted();
    void GoToFolder();
    bool OpenSource();
    bool WriteParts();
    void ReadChunk();
    bool WritePart();
    /// Has the system bring the chunk that was just read, which it still has at hand, into the part: cheaper
    /// than from the room. How much of it; the rest is to be written.
    qint64 TakeChunk(OpenFile &file);
    void WriteBatchFile();
    bool EndAsUnread();
    bool EndAsUnwritten(const Failure &failure);
    void EndAsFinished();
    void TellFailure(const Failure &failure);

    SplitterRun run;
    LeftOpen &leftOpen;
    RoomMaker makeRoom;
    Steps steps;

    QString FileName; ///< without its folder, once that is the current one
    std::int32_t ChunkSize = 0;
    std::int32_t length = 0;
    std::int32_t count = 0; ///< planned parts
    std::int16_t part = 0; ///< the part, and later the disk, that the run is at
    QByteArray room; ///< for a whole part
    bool hasRoom = false;
    qint64 got = 0; ///< bytes of the last read
    bool isCopied = true; ///< no step has failed since the last copy to a disk began
    std::unique_ptr<OpenFile> source;
};

} // namespace tressel
