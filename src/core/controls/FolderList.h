// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/ItemList.h"
#include "machine/FileSystem.h"

namespace tressel {

/// A list of folders for finding one's way: the folders from the root down to the present one, and below
/// them the present one's sub folders. A click selects a row; a double click or Enter goes there.
class FolderList : public ItemList {
public:
    /// Stands at the root of the first volume. Nothing is read before the path is set or the list refreshed.
    FolderList(Form &form, const QString &name, FileSystem &files);

    /// The present folder.
    const QString &Path() const { return path; }
    /// Goes to a folder, lists it and raises Change if it is another one. Fails with 76 if it isn't
    /// there, and then stays where it was.
    void SetPath(const QString &folder);
    /// Reads the present folder's sub folders anew.
    void Refresh();

    /// The folder of the selected row, the present one if none is selected.
    QString SelectedPath() const;
    /// How deep a row is indented: 0 for the root.
    int Depth(int row) const { return depths.at(row); }
    /// The row of the present folder; the rows after it are its sub folders.
    int PresentRow() const { return presentRow; }

    Event<> Change;

    // For faces.
    void UserActivates(int index);

private:
    void ListAnew();

    FileSystem &files;
    QString path;
    QStringList paths; ///< of each row
    QList<int> depths;
    int presentRow = 0;
};

} // namespace tressel
