// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/database/DatabasePage.h"

#include "base/Numbers.h"
#include "base/Steps.h"
#include "base/Version.h"
#include "machine/Dialogs.h"
#include "machine/FileSystem.h"
#include "machine/Paths.h"
#include "settings/Settings.h"
#include "tools/ClickSound.h"
#include "tools/WorkArea.h"
#include "tools/database/DatabaseFileDialog.h"
#include "tools/database/DelimitedList.h"
#include "tools/folders/FolderTree.h"

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

const QString sampleQuery = u"SELECT * FROM Products"_s;

/// What a cancelled dialog fails with; it ends the click that asked.
constexpr FailureNumber cancelled{32755};

/// The folder part of a path, without a separator at its end.
QString ExtractPath(const FileSystem &files, const QString &path)
{
    return path.left(std::max<qsizetype>(path.lastIndexOf(files.Separator()), 0));
}

} // namespace

DatabasePage::DatabasePage(const ToolContext &toolContext, FolderTree &folderTree)
    : page(toolContext.form, u"FrameXPMenu(4)"_s)
    , lblDatabaseFile(toolContext.form, u"lblDatabaseFile"_s, u"Database File"_s)
    , txtDatabaseFile(toolContext.form, u"txtDatabaseFile"_s)
    , btnGBOpenDatabase(toolContext.form, u"btnGBOpenDatabase"_s, u"Database"_s)
    , lblstrSQL(toolContext.form, u"lblstrSQL"_s, u"Tables"_s)
    , Tables(toolContext.form, u"ListBox(0)"_s)
    , lblTable(toolContext.form, u"lblTable"_s, u"No Fields"_s)
    , Fields(toolContext.form, u"ListBox(1)"_s)
    , btnGBLoadList(toolContext.form, u"btnGBLoadList"_s, u"Load List"_s)
    , txtstrSQL(toolContext.form, u"txtstrSQL"_s, sampleQuery)
    , schema(*this, toolContext)
    , loading(*this, toolContext)
    , context(toolContext)
    , tree(folderTree)
{
    txtDatabaseFile.SetToolTip(
        u" Type in your path to mdb database file or open database with click on \"Database\" button "_s);
    Tables.SetToolTip(u" Pick Table from list "_s);
    Fields.SetToolTip(u" Pick Fields from list "_s);
    txtstrSQL.SetVisible(false);
    btnGBOpenDatabase.Click.Handle([this] { btnGBOpenDatabase_Click(); });
    btnGBLoadList.Click.Handle([this] { btnGBLoadList_Click(); });
    Tables.Click.Handle([this] { schema.ShowFieldsOfTable(); });
    Fields.ItemCheck.Handle([this](int field) { schema.NoteCheckMark(field); });
}

void DatabasePage::Restore(Steps &steps)
{
    QString field;
    steps.Do([&] { txtDatabaseFile.SetText(context.settings.ReadText(keys::DatabaseFile)); });
    steps.Do([&] { field = context.settings.ReadText(keys::SQLString); });
    steps.Do([&] { storedTable = context.settings.ReadText(keys::Table); });
    const QString file = txtDatabaseFile.Text();
    if (file.isEmpty())
        return;
    steps.Do([&] { schema.TableCount = schema.GetTables(file, schema.Connection, false, Tables); });
    if (schema.TableCount > 0)
        steps.Do([&] { SelectTable(file); });
    // The table and the field of the last session, as far as they are there. Below 0 none was selected.
    steps.Do([&] {
        const std::int32_t table = ToInt32(storedTable);
        if (table >= 0 && table != Tables.ListIndex())
            Tables.SetListIndex(table);
    });
    const bool selects = steps.Do([&] {
        const std::int32_t index = ToInt32(field);
        if (index >= 0 && index < Fields.ListCount())
            Fields.SetListIndex(index);
    });
    if (!selects)
        txtstrSQL.SetText(field);
}

void DatabasePage::Save()
{
    context.settings.Write(keys::DatabaseFile, txtDatabaseFile.Text());
    // A text that isn't the place of a field goes back as it came.
    const bool hasQuery = txtstrSQL.Text() != sampleQuery;
    context.settings.Write(keys::SQLString,
                           hasQuery ? txtstrSQL.Text() : QString::number(Fields.ListIndex()));
    context.settings.Write(keys::Table, QString::number(Tables.ListIndex()));
    // Kept: the text is made and goes nowhere, so every start begins with all fields checked.
    QString selections;
    schema.Selections.LoadSaveSelects(selections, true);
    schema.ClearAll();
}

void DatabasePage::btnGBOpenDatabase_Click()
{
    context.clickSound.Play();
    try {
        QString none;
        schema.Selections.LoadSaveSelects(none, false);
        const QString file = FileToOpen();
        if (file.isEmpty())
            return;
        schema.TableCount = schema.GetTables(file, schema.Connection, false, Tables);
        if (schema.TableCount > 0)
            SelectTable(file);
        RecentFiles = UpdateDelimitedList(RecentFiles, file, u","_s, 3, false);
    } catch (const Failure &) {
        // Whatever it was, it ends the click and nothing else.
    }
}

/// Empty if there is nothing to open.
QString DatabasePage::FileToOpen()
{
    if (!OpensPresetFile)
        return GetMdbFileName(OpenDBPath);
    const QString file = txtDatabaseFile.Text();
    if (!FileExists(context.machine.files, file)) {
        context.machine.dialogs.Show({u"File "_s + file + u" not Found!"_s, ApplicationTitle});
        RecentFiles = UpdateDelimitedList(RecentFiles, file, u","_s, 3, true);
        return {};
    }
    schema.ClearAll();
    return file;
}

QString DatabasePage::GetMdbFileName(const QString &StartDir)
{
    // The drive of the start folder must be there.
    if (!StartDir.isEmpty())
        context.machine.files.VolumeLabel(StartDir);
    const auto answer = context.machine.dialogs.OpenFile(DatabaseFileRequest(u"Open file"_s, StartDir));
    if (!answer)
        throw Failure(cancelled, u"Cancel was selected."_s);
    OpenDBPath = answer->folder;
    schema.ClearAll();
    txtDatabaseFile.SetText(answer->paths.value(0));
    return txtDatabaseFile.Text();
}

/// Which table stands selected after a file was opened.
void DatabasePage::SelectTable(const QString &file)
{
    schema.FolderPath = ExtractPath(context.machine.files, file);
    const std::int32_t index = ToInt32(storedTable);
    // Kept: a stored place beyond the list is selected, which fails, and one within isn't.
    if (index + 1 > schema.TableCount)
        Tables.SetListIndex(index);
    else if (Tables.ListIndex() < 0)
        Tables.SetListIndex(0);
    if (Fields.ListCount() == 0)
        schema.ShowFieldsOfTable();
}

void DatabasePage::btnGBLoadList_Click()
{
    context.clickSound.Play();
    loading.LoadFieldToList(Tables.Text(), context.area.LstItem, Fields.Text());
    tree.RefreshFolderTree();
    // Kept: a load that failed ends with this text too.
    context.area.lblStatusLine.SetCaption(u"Finished"_s);
}

void DatabasePage::RestoreFolder(Steps &steps)
{
    steps.Do([&] { OpenDBPath = context.settings.ReadText(keys::OpenDBPath); });
}

void DatabasePage::SaveFolder()
{
    context.settings.Write(keys::OpenDBPath, OpenDBPath);
}

} // namespace tressel
