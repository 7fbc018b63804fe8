// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace tressel {

/// The desktop, asked to do what a double click there would do.
class Shell {
public:
    virtual ~Shell() = default;
    /// Opens a file, folder or address with the program that the desktop knows for it. A relative path
    /// is taken from `folder`. False if there is nothing to open or nothing to open it with.
    virtual bool Open(const QString &target, const QString &folder) = 0;
    /// Starts a text editor, or a file browser, on the path. False if none can be started.
    virtual bool EditText(const QString &file) = 0;
    virtual bool BrowseFolder(const QString &folder) = 0;
};

} // namespace tressel
