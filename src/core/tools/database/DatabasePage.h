// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/CheckListBox.h"
#include "controls/Frame.h"
#include "controls/IsButton.h"
#include "controls/Label.h"
#include "controls/TextBox.h"
#include "tools/ToolContext.h"
#include "tools/database/DatabaseSchema.h"
#include "tools/database/FieldLoading.h"

namespace tressel {

class FolderTree;
class Steps;

/// The page that takes the rows of a database table into the list.
class DatabasePage {
public:
    DatabasePage(const ToolContext &context, FolderTree &tree);

    /// Puts back what the settings hold, but for the dialog's folder, and opens the file that they name.
    void Restore(Steps &steps);
    /// Writes what Restore reads.
    void Save();
    /// Where the database dialog opens has a place of its own in the order of the settings.
    void RestoreFolder(Steps &steps);
    void SaveFolder();

    Frame page;
    Label lblDatabaseFile;
    TextBox txtDatabaseFile;
    IsButton btnGBOpenDatabase;
    Label lblstrSQL; ///< heads the tables
    CheckListBox Tables; ///< ListBox(0)
    Label lblTable; ///< heads the fields
    CheckListBox Fields; ///< ListBox(1)
    IsButton btnGBLoadList;

    TextBox txtstrSQL; ///< no one sees or reads it

    DatabaseSchema schema;
    FieldLoading loading;

    QString OpenDBPath; ///< where the dialog opens, kept from session to session
    QString RecentFiles; ///< the files opened last, with "," between them
    bool OpensPresetFile = false; ///< kept: nothing ever sets it; the file in its text box is opened unasked

private:
    void btnGBOpenDatabase_Click();
    void btnGBLoadList_Click();
    QString FileToOpen();
    QString GetMdbFileName(const QString &StartDir);
    void SelectTable(const QString &file);

    ToolContext context;
    FolderTree &tree;
    QString storedTable; ///< the place of a table in its list, as the settings had it at the start
};

} // namespace tressel
