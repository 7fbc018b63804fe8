// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/Failure.h"
#include "machine/posix/Descriptor.h"

#include <QByteArrayView>
#include <QStringView>
#include <QVarLengthArray>

#include <fcntl.h>
#include <optional>

namespace tressel {

/// A path in the form that the system's calls take: the open folder to start from, and the rest of the
/// path as bytes. The system takes no path beyond 4,096 bytes at once, so a longer one is walked in
/// pieces up to a rest that it takes. Separators at the end are left out, but for the root's own.
class NativePath {
public:
    explicit NativePath(QStringView path);
    explicit NativePath(QByteArrayView bytes);
    /// A path from a folder on that is held open and outlives this: no link in it is followed, and ".." fails
    /// with 75.
    NativePath(int heldFolder, QStringView path);
    /// One that can't be used.
    explicit NativePath(FailureNumber whyNot);
    NativePath(const NativePath &) = delete;
    NativePath &operator=(const NativePath &) = delete;

    /// Why the path can't be used: 52 if it is empty, 5 if no name can be like that, 76 or 75 if a folder
    /// on the way can't be passed. Folder and Rest must not be used then.
    std::optional<FailureNumber> Problem() const { return problem; }
    /// Throws the problem if there is one.
    void Demand() const;

    /// The folder that the rest starts from; AT_FDCWD for most paths.
    int Folder() const;
    /// Ends in a NUL character.
    const char *Rest() const { return bytes.constData() + reached; }
    /// The last name of the path.
    QByteArrayView Name() const;
    /// The whole path without the name; empty if there is none before it.
    QByteArrayView Above() const;
    /// The whole path.
    QByteArrayView Bytes() const { return {bytes.constData(), bytes.size() - 1}; }

    /// From a folder on that is held: the rest is the last name alone.
    bool IsHeld() const { return isHeld; }
    /// O_NOFOLLOW if links aren't followed, for calls that open what the path names.
    int FlagAgainstLinks() const { return isHeld ? O_NOFOLLOW : 0; }

    /// For a file that the system doesn't find: 53 if the folder for it is there, else 76.
    FailureNumber NumberOfMissingFile() const;

private:
    void Convert(QStringView path);
    void Finish();
    void Reach();
    void ReachBeneath();

    QVarLengthArray<char, 1024> bytes;
    qsizetype reached = 0; ///< where the rest starts
    int start = AT_FDCWD; ///< where the whole path starts
    bool isHeld = false; ///< the start is a folder that is held
    Descriptor folder; ///< of a long path, or below a held folder
    std::optional<FailureNumber> problem;
};

} // namespace tressel
