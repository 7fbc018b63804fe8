// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/ItemList.h"
#include "machine/FileSystem.h"

#include <algorithm>
#include <optional>

namespace tressel {

/// A list of folders for finding one's way: the folders from the root down to the present one, and below
/// them the present one's sub folders. A click selects a row; a double click or Enter goes there.
class FolderList : public ItemList {
public:
    /// Stands at the root of the first volume. Nothing is read before the path is set or the list refreshed.
    FolderList(Form &form, const QString &name, FileSystem &files);

    /// The rows' names. The disc is read at the first look at them, so that a run may go through thousands of
    /// folders, or ask for a fresh list after each step, and pays for no more lists than somebody sees.
    const QStringList &Items() const override;

    /// The present folder.
    const QString &Path() const { return path; }
    /// Goes to a folder, lists it and raises Change if it is another one. Fails with 76 if it isn't
    /// there, and then stays where it was.
    void SetPath(const QString &folder);
    /// Has the present folder's sub folders read anew.
    void Refresh();

    /// The folder of the selected row, the present one if none is selected.
    QString SelectedPath() const;
    /// How deep a row is indented: 0 for the root.
    int Depth(int row) const { return std::min(row, PresentRow() + 1); }
    /// The row of the present folder; the rows after it are its sub folders.
    int PresentRow() const;

    Event<> Change;

    // For faces.
    void UserActivates(int index);

private:
    /// What was read when the list was last looked at.
    struct Listing {
        QStringList rows;
        int presentRow = 0;
    };

    const Listing &Listed() const;
    Listing ListDisc() const;
    QString PathOf(int row) const;

    FileSystem &files;
    QString path;
    mutable std::optional<Listing> listing = Listing(); ///< none if the next look is to read the disc
};

} // namespace tressel
