// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/database/DatabasePage.h"

namespace tressel {

using namespace Qt::StringLiterals;

DatabasePage::DatabasePage(const ToolContext &context)
    : page(context.form, u"FrameXPMenu(4)"_s)
    , lblDatabaseFile(context.form, u"lblDatabaseFile"_s, u"Database File"_s)
    , txtDatabaseFile(context.form, u"txtDatabaseFile"_s)
    , btnGBOpenDatabase(context.form, u"btnGBOpenDatabase"_s, u"Database"_s)
    , lblstrSQL(context.form, u"lblstrSQL"_s, u"No Tables"_s)
    , Tables(context.form, u"ListBox(0)"_s)
    , lblTable(context.form, u"lblTable"_s, u"No Fields"_s)
    , Fields(context.form, u"ListBox(1)"_s)
    , btnGBLoadList(context.form, u"btnGBLoadList"_s, u"Load List"_s)
    , txtstrSQL(context.form, u"txtstrSQL"_s, u"SELECT * FROM Products"_s)
{
    txtDatabaseFile.SetToolTip(
        u" Type in your path to mdb database file or open database with click on \"Database\" button "_s);
    Tables.SetToolTip(u" Pick Table from list "_s);
    Fields.SetToolTip(u" Pick Fields from list "_s);
    btnGBOpenDatabase.SetEnabled(false);
    btnGBLoadList.SetEnabled(false);
    txtstrSQL.SetVisible(false);
}

} // namespace tressel
