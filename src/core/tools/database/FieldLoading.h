// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tools/ToolContext.h"

#include <QString>

namespace tressel {

class DatabasePage;
class ListBox;

/// Replaces the folder list by the values of one field.
class FieldLoading {
public:
    FieldLoading(DatabasePage &page, const ToolContext &context);

    /// Every row of the table gives one entry. A failure ends it without a word, and the list keeps what was
    /// added so far: a table that can't be opened leaves the list as it was, a row without a value ends it
    /// there, and more rows than 16 bits can count leave it empty.
    void LoadFieldToList(QString Table, ListBox &List, const QString &Field);

    QString NoRecordsFlag; ///< kept: nothing ever sets it; only "False" tells of a table without rows

private:
    DatabasePage &page;
    ToolContext context;
};

} // namespace tressel
