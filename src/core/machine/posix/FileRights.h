// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

#include <sys/stat.h>

namespace tressel {

/// Who may do what with a file: owner, group, mode and access list.
class FileRights {
public:
    /// Of an open file. Fails with the number of the system's error.
    explicit FileRights(int file);

    /// Gives them to another open file, but for the right to run as somebody else, which was given to the old
    /// contents. Where one of them can't be given, group and others get nothing at all, and it says false.
    /// Fails if not even that can be done.
    bool GiveTo(int file) const;
    const struct stat &Status() const { return status; }

private:
    bool GiveListTo(int file) const;

    struct stat status = {};
    QByteArray accessList; ///< as the system tells it, empty if there is none
    bool isListKnown = true;
};

/// Takes from a file that was written to the right to run as somebody else.
void TakeSpecialRights(int file);

} // namespace tressel
