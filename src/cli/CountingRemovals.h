// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ForwardingFiles.h"

namespace tressel {

/// What a run that removes folders really did, as it was seen at the disc.
struct RemovalCount {
    int removed = 0; ///< folders that went, those above a target included
    int kept = 0; ///< targets that are still there because they hold something
    int missing = 0; ///< targets that weren't there
    int failed = 0; ///< targets that are still there though they hold nothing, or are no folder
    int tried = 0; ///< targets that the run got to
};

/// The disc, with an eye on what a removing run does there: the run itself keeps no count.
///
/// A run goes for each target level by level from the top. The last level of the path is the target.
class CountingRemovals : public ForwardingFiles {
public:
    using ForwardingFiles::ForwardingFiles;

    /// The count so far.
    RemovalCount Count() const;
    /// The targets that the run got to so far; asks the disc nothing.
    int Tried() const { return done.tried; }

    /// Called before each target is counted.
    StepHook onTarget;

    std::optional<Failure> TryRemoveFolder(const QString &path) override;

private:
    void AddTarget(RemovalCount &to) const;
    bool HoldsSomething(const QString &folder) const;

    RemovalCount done; ///< without the present target, but for the number tried
    bool lastLevelRemoved = false;
    QString lastLevel;
};

} // namespace tressel
