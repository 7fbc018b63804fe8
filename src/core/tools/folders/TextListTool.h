// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/IsButton.h"
#include "controls/Label.h"
#include "machine/Dialogs.h"
#include "tools/WorkArea.h"

namespace tressel {

class ClickSound;
class FileSystem;
class FolderListFile;
struct Session;

/// The two buttons with which the list is loaded from a text file and saved to one.
class TextListTool {
public:
    TextListTool(WorkArea &area, FileSystem &files, Dialogs &dialogs, const ClickSound &clickSound,
                 FolderListFile &listFile, Session &session);

    Label lblInfo;
    IsButton btnGBLoadFile;
    IsButton btnGBSaveFile;

    QString OpenTXTPath; ///< where the two file dialogs open, kept from session to session

private:
    void btnGBLoadFile_Click();
    void btnGBSaveFile_Click();
    bool MayBeOverwritten(const QString &path);

    FileSystem &files;
    Dialogs &dialogs;
    const ClickSound &clickSound;
    FolderListFile &listFile;
    Session &session;
};

} // namespace tressel
