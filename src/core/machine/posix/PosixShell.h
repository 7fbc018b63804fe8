// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "machine/Shell.h"

namespace tressel {

/// The desktop of a POSIX system, through xdg-open.
class PosixShell : public Shell {
public:
    bool Open(const QString &target, const QString &folder) override;
    /// The first known editor that is installed, else the program that the desktop knows for the file.
    bool EditText(const QString &file) override;
    bool BrowseFolder(const QString &folder) override;
};

} // namespace tressel
