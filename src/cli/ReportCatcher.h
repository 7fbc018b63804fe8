// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ForwardingFiles.h"
#include "ReportOutput.h"

#include <QStringList>

namespace tressel {

/// What a listing run really listed, as it was seen at the disc.
struct ListingCount {
    int folders = 0;
    int files = 0; ///< links and all else that is no folder included
    int unreadable = 0; ///< folders of which only the path is known
};

/// The disc for a listing run whose report goes to an output of its own: a run makes its report in the
/// folder that it lists, and this keeps it, and every other trace of the run, away from there.
///
/// A run first measures the folders and then appends one block to its report for each; a folder counts
/// with its block.
class ReportCatcher : public ForwardingFiles {
public:
    using ForwardingFiles::ForwardingFiles;

    /// From here on nothing is changed on the disc, and what would be written to the report goes to the
    /// output. No file can be read.
    void CatchReport(ReportOutput &to) { output = &to; }
    /// For a run whose progress nobody sees: spares the lengths of the files, and the measuring of the tree.
    /// The first folder that is read then can't be, with which a run leaves the measuring at that; the
    /// root of a drive is never measured.
    void SpareLengths(bool isDriveRoot);
    const ListingCount &Count() const { return count; }

    /// Called before each folder is read.
    StepHook onFolder;
    /// Called with each folder that couldn't be read, and why.
    std::function<void(const QString &, const Failure &)> onUnreadable;

    std::optional<FileStatus> Status(const QString &path, Links links) override;
    QList<FolderEntry> List(const QString &folder, Lengths lengths) override;
    std::unique_ptr<OpenFile> Open(const QString &path, OpenFor purpose, Sharing sharing) override;
    void RemoveFile(const QString &path) override;
    void Rename(const QString &from, const QString &to) override;

private:
    void CountBlock();

    ReportOutput *output = nullptr;
    bool sparesLengths = false;
    bool refusesNext = false; ///< the folder that is read next, which is the first one measured
    QString reportPath; ///< what the run takes for its report's
    ListingCount count;
    QString lastFolder; ///< the one that was read last
    int filesInLast = 0;
    std::optional<Failure> failureOfLast;
};

} // namespace tressel
