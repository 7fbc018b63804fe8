// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "machine/FileSystem.h"
#include "machine/posix/Descriptor.h"
#include "machine/posix/NativePath.h"

#include <list>
#include <memory>
#include <optional>

namespace tressel {

/// The folders of a file system that are held, and which of them a path is below.
class HeldFolders {
public:
    /// See FileSystem::Hold. The answer must not outlive this.
    std::unique_ptr<FolderHold> Hold(const QString &folder);
    /// A path in the form of the system's calls, from the innermost held folder on that it is below.
    NativePath PathOf(const QString &path) const;
    /// An open folder, and two paths from it on.
    struct TwoBelow {
        int folder = -1;
        QStringView one;
        QStringView other;
    };
    /// Two paths from a held folder on that both are below, the innermost one of the first. Nothing if there
    /// is none, or it isn't open yet.
    std::optional<TwoBelow> BelowOne(const QString &one, const QString &other) const;
    /// For a path that now stands for something else than before: what is held there is opened anew.
    void Forget(const QString &path) const;

private:
    class OneHold;
    struct Held {
        QString root; ///< with the separator at its end
        int holds = 0; ///< that are alive
        mutable Descriptor folder; ///< open from the first step below it on
    };
    const Held *Innermost(const QString &path) const;

    std::list<Held> all;
};

} // namespace tressel
