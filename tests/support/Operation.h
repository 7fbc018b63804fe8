// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace tressel {

/// What can be asked of the file system, as the journal and the ordered failures name it.
enum class Operation {
    Status,
    List,
    ReadFolder,
    MakeFolder,
    RemoveFolder,
    RemoveFile,
    Rename, ///< about the path it had; the new one is the detail
    OpenForReading,
    OpenForWriting, ///< for whatever else than reading alone; the detail tells for what
    ReadBytes, ///< the detail is how many were wanted
    WriteBytes, ///< the detail is how many
    ResizeFile, ///< the detail is the new length
    FlushFile,
    FlushFolder,
    CloseFile,
    Replace, ///< the start of it; what is written counts as WriteBytes
    CommitFile, ///< the detail is how many bytes
    LinkTarget,
    MakeLink, ///< the detail is where it leads
    SetReadOnly,
    VolumeLabel,
    FreeSpace,
};

/// The operation as the journal spells it, which is as above.
QString OperationName(Operation operation);

} // namespace tressel
