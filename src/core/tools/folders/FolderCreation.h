// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/FolderList.h"
#include "tools/ToolContext.h"

namespace tressel {

/// The run that makes one folder for each entry of the list, in session.DestinationPath.
class FolderCreation {
public:
    /// `DirList` is the folder list of the page for browsing.
    FolderCreation(const ToolContext &context, FolderList &DirList);

    /// Makes the folders in list order. A folder that can't be made is passed over without a word; any
    /// other failure ends the run, and only one of number 75 is told in a box.
    void CreateFolders();

private:
    void CreateFolder(int index);
    void MakeEntry(const QString &item);
    QString PathOf(int index) const;
    void RaiseRunNumber();
    void EndAsFailed(const Failure &failure, int index);

    WorkArea &area;
    FolderList &DirList;
    FileSystem &files;
    Events &events;
    Dialogs &dialogs;
    Session &session;
    RunWatch &watch;
};

} // namespace tressel
