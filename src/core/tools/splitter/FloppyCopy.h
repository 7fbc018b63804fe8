// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <cstdint>

namespace tressel {

class FileSystem;
class SplitterRun;
class Steps;

/// The end of a split that brings the parts to floppy discs, one on each, and the batch file to the last.
class FloppyCopy {
public:
    /// `disk` holds the number of the disk that the run is at. A copy that fails is told by the handler of
    /// `steps`, which sets `isCopied` to false.
    FloppyCopy(const SplitterRun &run, Steps &steps, std::int16_t &disk, bool &isCopied);

    /// Asks for one disk after the other, until there are no more parts or the user cancels. Kept: each
    /// disk's root is emptied without a question.
    void CopyParts(const QString &name, std::int16_t count);

private:
    bool AsksForDisk();
    bool AsksForAnother();
    bool CopyToDisk(const QString &name, bool isLast);
    void CopyFileToDisk(const QString &name);

    const SplitterRun &run;
    Steps &steps;
    std::int16_t &disk;
    bool &isCopied;
};

/// Deletes the files in the root of drive A:, such as "A:\". False if there is no disk in the drive, if
/// it is write-protected and holds a file, or if it holds a folder, unless the folder's name ends in ".sys".
bool ClearDiskRoot(FileSystem &files, const QString &Path);

} // namespace tressel
