// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/CheckListBox.h"
#include "controls/Frame.h"
#include "controls/IsButton.h"
#include "controls/Label.h"
#include "controls/TextBox.h"
#include "tools/ToolContext.h"

namespace tressel {

class Steps;

/// The page that takes the rows of a database table into the list.
class DatabasePage {
public:
    explicit DatabasePage(const ToolContext &context);

    /// Puts back what the settings hold, but for the dialog's folder.
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

    TextBox txtstrSQL; ///< no one sees or reads it; its text is kept from session to session

    QString OpenDBPath; ///< where the database dialog opens, kept from session to session

private:
    Settings &settings;
    QString table; ///< what the settings hold of the two lists
    QString field;
};

} // namespace tressel
