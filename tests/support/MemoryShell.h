// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "machine/Shell.h"
#include "support/Journal.h"

namespace tressel {

class MemoryShell : public Shell {
public:
    explicit MemoryShell(Journal &journal)
        : journal(journal)
    {
    }
    /// Journal: "Open" about the target, the folder as detail.
    bool Open(const QString &target, const QString &folder) override
    {
        journal.Note(QStringLiteral("Open"), target, folder);
        return canStart;
    }
    /// Journal: "EditText" about the file.
    bool EditText(const QString &file) override
    {
        journal.Note(QStringLiteral("EditText"), file);
        return canStart;
    }
    /// Journal: "BrowseFolder" about the folder.
    bool BrowseFolder(const QString &folder) override
    {
        journal.Note(QStringLiteral("BrowseFolder"), folder);
        return canStart;
    }

    bool canStart = true; ///< what all of them return

private:
    Journal &journal;
};

} // namespace tressel
