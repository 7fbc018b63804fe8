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

/// The page that takes the rows of a database table into the list.
class DatabasePage {
public:
    explicit DatabasePage(const ToolContext &context);

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
};

} // namespace tressel
