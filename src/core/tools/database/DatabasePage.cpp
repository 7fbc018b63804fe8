// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/database/DatabasePage.h"

#include "base/Steps.h"
#include "settings/Settings.h"

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
    , settings(context.settings)
{
    txtDatabaseFile.SetToolTip(
        u" Type in your path to mdb database file or open database with click on \"Database\" button "_s);
    Tables.SetToolTip(u" Pick Table from list "_s);
    Fields.SetToolTip(u" Pick Fields from list "_s);
    btnGBOpenDatabase.SetEnabled(false);
    btnGBLoadList.SetEnabled(false);
    txtstrSQL.SetVisible(false);
}

void DatabasePage::Restore(Steps &steps)
{
    steps.Do([&] { txtDatabaseFile.SetText(settings.ReadText(keys::DatabaseFile)); });
    steps.Do([&] { table = settings.ReadText(keys::SQLString); });
    steps.Do([&] { field = settings.ReadText(keys::Table); });
}

void DatabasePage::Save()
{
    settings.Write(keys::DatabaseFile, txtDatabaseFile.Text());
    settings.Write(keys::SQLString, table);
    settings.Write(keys::Table, field);
}

void DatabasePage::RestoreFolder(Steps &steps)
{
    steps.Do([&] { OpenDBPath = settings.ReadText(keys::OpenDBPath); });
}

void DatabasePage::SaveFolder()
{
    settings.Write(keys::OpenDBPath, OpenDBPath);
}

} // namespace tressel
