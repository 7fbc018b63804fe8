// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "CreationCount.h"
#include "ForwardingFiles.h"

namespace tressel {

/// The disc, with an eye on what a creation run does there: the run itself keeps no count.
///
/// A run asks for each entry whether its folder is there, and then makes one path: at once, or level
/// by level from the top. What counts is the answer, and the path. A run that doesn't ask
/// counts too.
class CountingFiles : public ForwardingFiles {
public:
    using ForwardingFiles::ForwardingFiles;

    /// From here on the folders below `destination` are counted.
    void StartCounting(const QString &destination);
    /// The count so far.
    CreationCount Count() const;
    /// The entries that the run got to so far; asks the disc nothing.
    int Tried() const { return done.tried; }

    /// Called before each entry, or more often.
    StepHook onEntry;

    std::optional<FileStatus> Status(const QString &path, Links links) override;
    std::optional<Failure> TryMakeFolder(const QString &path) override;
    bool MadeAtOnce(const QString &path) override;

private:
    void CallHook() const;
    void BeginEntry();
    void NoteLevel(const QString &path, bool made);
    void AddEntry(CreationCount &to) const;

    QString testedBelow; ///< how the path of a test for an entry starts
    CreationCount done; ///< without the present entry, but for the number tried
    bool nextExists = false; ///< what the test for the entry to come said
    bool entryExisted = false;
    bool lastLevelMade = true;
    QString lastLevel;
};

} // namespace tressel
