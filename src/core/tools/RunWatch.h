// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace tressel {

struct Failure;

/// What a run did to one thing.
enum class Outcome {
    Made, ///< it came into being
    AlreadyThere, ///< it was to be made and stood there already
    Renamed,
    Rewritten, ///< it has other contents now
    Removed,
    NotThere, ///< it was to be worked on and isn't there
    Kept, ///< it was looked at and left as it was, for a reason of the run's own
    Found, ///< it was looked for, or listed
    Searched, ///< a folder was gone through for what is in it
};

/// Hears what a run does while it does it. A run tells its steps here and nowhere else counts them: the
/// window listens to nothing, the command line counts, names and shows progress. A watch changes nothing of
/// the run.
class RunWatch {
public:
    virtual ~RunWatch() = default;

    /// The run begins, with so many things before it; -1 where it can't know.
    virtual void Started(qint64 /*total*/) { }
    /// The run comes to its next thing, which it hasn't touched yet: the place to show how far it is, and to
    /// stop it for good.
    virtual void Next(const QString & /*path*/) { }
    /// One thing is done. `path` is whole, in the form of the platform. More than one may be done for what
    /// was next: each folder made on the way to it is one.
    virtual void Did(Outcome, const QString & /*path*/) { }
    /// One thing failed, whether the run passes over it or ends with it. It is told once, and no Did about
    /// the same thing beside it.
    virtual void Failed(const QString & /*path*/, const Failure &) { }
};

} // namespace tressel
