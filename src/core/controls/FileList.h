// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/ListBox.h"
#include "machine/FileSystem.h"

namespace tressel {

/// The names of the files in a folder, and of links to files, in the order of a listing; hidden ones are left
/// out. Fails as FileSystem::List does.
QStringList ShownFiles(FileSystem &files, const QString &folder);

/// The names of the files of one folder, as ShownFiles has them.
class FileList : public ListBox {
public:
    /// Nothing is read before the path is set.
    FileList(Form &form, const QString &name, FileSystem &files);

    const QString &Path() const { return path; }
    /// Lists another folder; the same one is listed anew. Fails with 76 if it isn't there. A folder that
    /// can't be read gives an empty list.
    void SetPath(const QString &folder);
    void Refresh();

    /// The bare name of the selected file, empty if none is.
    QString FileName() const { return Text(); }

private:
    FileSystem &files;
    QString path;
};

} // namespace tressel
