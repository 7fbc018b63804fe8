// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/IsButton.h"
#include "controls/Label.h"
#include "tools/ToolContext.h"

namespace tressel {

class FolderListFile;
class Steps;

/// The two buttons with which the list is loaded from a text file and saved to one.
class TextListTool {
public:
    TextListTool(const ToolContext &context, FolderListFile &listFile);

    /// Puts back where the two file dialogs open.
    void Restore(Steps &steps);
    /// Writes what Restore reads.
    void Save();

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
    Settings &settings;
    Session &session;
};

} // namespace tressel
